// Stored numbers at the edges of what a file can say.
#include "properties/stored_field.h"

#include "support/golden.h"
#include "support/module_fixture.h"

#include <map>

namespace {

using namespace tc;

struct Numbers {
  double real = 0;
  double whole = 0;
};
constexpr StoredField<Numbers> kNumbers[] = {
    {u"Real", &Numbers::real},
    {u"Whole", &Numbers::whole, FieldForm::kWholeNumber},
};

class NumbersRecord : public OdTcPersistImpl<OdTcPersist> {
 public:
  void writeFields(OdTcFiler* filer) override {
    writeStoredElements(filer, numbers, std::span<const StoredField<Numbers>>(kNumbers));
  }
  Numbers numbers;
};

QByteArray saved(const char* text) {
  const auto record = odrxMake<NumbersRecord>();
  for (const StoredField<Numbers>& field : kNumbers)
    EXPECT_TRUE(readStoredField(record->numbers, std::span<const StoredField<Numbers>>(kNumbers),
                                field.name.toString(), OdVariant(QString::fromLatin1(text))));
  return testhost::written(record);
}

QByteArray textIn(const QByteArray& document, const QByteArray& element) {
  const qsizetype from = document.indexOf('<' + element + '>') + element.size() + 2;
  return document.mid(from, document.indexOf("</" + element + '>') - from);
}

struct NumberRow {
  const char* text;
  const char* real;
  const char* whole;
};
class StoredNumbers : public testhost::ModuleFixture,
                      public testing::WithParamInterface<NumberRow> {};

TEST_P(StoredNumbers, AreTheSameFromTheFirstSaveOn) {
  const QByteArray first = saved(GetParam().text);
  EXPECT_EQ(textIn(first, "Real"), GetParam().real);
  EXPECT_EQ(textIn(first, "Whole"), GetParam().whole);
  EXPECT_EQ(textIn(saved(GetParam().real), "Real"), GetParam().real);
  EXPECT_EQ(textIn(saved(GetParam().whole), "Whole"), GetParam().whole);
}

INSTANTIATE_TEST_SUITE_P(Texts, StoredNumbers,
                         testing::Values(NumberRow{"1", "1", "1"}, NumberRow{"-2.5", "-2.5", "-2"},
                                         NumberRow{"1234567", "1.23457e+06", "1234567"},
                                         NumberRow{"1e400", "1.79769e+308", "1"},
                                         NumberRow{"-1e400", "-1.79769e+308", "-1"},
                                         NumberRow{"-99999999999999999999", "-1e+20",
                                                   "-9223372036854775808"},
                                         NumberRow{"none", "0", "0"}));

struct Widths {
  std::uint8_t tiny = 1;
  std::uint16_t small = 2;
  std::int32_t number = 3;
  std::uint32_t bits = 4;
  double real = 5;
};
constexpr StoredField<Widths> kWidths[] = {
    {u"tiny", &Widths::tiny}, {u"small", &Widths::small}, {u"number", &Widths::number},
    {u"bits", &Widths::bits}, {u"real", &Widths::real},
};

struct WidthRow {
  const char16_t* field;
  const char16_t* text;
  double value;
  bool isTold;
};
class StoredWidths : public testhost::ModuleFixture,
                     public testing::WithParamInterface<WidthRow> {};

TEST_P(StoredWidths, TakeWhatHasTheirBitsAndTellOfTheRest) {
  const auto& [field, text, value, isTold] = GetParam();
  Widths widths;
  EXPECT_TRUE(readStoredField(widths, std::span<const StoredField<Widths>>(kWidths),
                              OdString::fromUtf16(field), OdVariant(OdString::fromUtf16(text))));
  const auto values = [](const Widths& w) {
    return std::map<QString, double>{{QStringLiteral("tiny"), static_cast<double>(w.tiny)},
                                     {QStringLiteral("small"), static_cast<double>(w.small)},
                                     {QStringLiteral("number"), static_cast<double>(w.number)},
                                     {QStringLiteral("bits"), static_cast<double>(w.bits)},
                                     {QStringLiteral("real"), w.real}};
  };
  auto expected = values(Widths());
  expected[OdString::fromUtf16(field)] = value;
  EXPECT_EQ(values(widths), expected);
  const QString told = testhost::host().log.join(u'\n');
  EXPECT_EQ(told.contains(OdString::fromUtf16(field) + QStringLiteral(": \"") +
                          OdString::fromUtf16(text) + u'"'),
            isTold)
      << qPrintable(told);
  EXPECT_EQ(testhost::host().log.isEmpty(), !isTold);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, StoredWidths,
    testing::Values(WidthRow{u"tiny", u"255", 255, false}, WidthRow{u"tiny", u"256", 1, true},
                    WidthRow{u"tiny", u"-1", 255, false}, WidthRow{u"tiny", u"-129", 1, true},
                    WidthRow{u"small", u"65535", 65535, false},
                    WidthRow{u"small", u"65537", 2, true}, WidthRow{u"small", u"-32769", 2, true},
                    WidthRow{u"number", u"-2147483648", -2147483648.0, false},
                    WidthRow{u"number", u"4294967293", -3, false},
                    WidthRow{u"number", u"4294967296", 3, true},
                    WidthRow{u"number", u"-2147483649", 3, true},
                    WidthRow{u"bits", u"4294967295", 4294967295.0, false},
                    WidthRow{u"bits", u"99999999999999999999", 4, true},
                    WidthRow{u"real", u"nan", 5, true}, WidthRow{u"real", u"-NaN", 5, true},
                    WidthRow{u"real", u"inf", 5, true}, WidthRow{u"real", u"-.5", -0.5, false},
                    WidthRow{u"real", u"", 0, false}, WidthRow{u"tiny", u"many", 1, true}));

} // namespace
