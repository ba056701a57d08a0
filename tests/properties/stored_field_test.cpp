// Stored numbers at the edges of what a file can say.
#include "properties/stored_field.h"

#include "support/golden.h"
#include "support/module_fixture.h"

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

} // namespace
