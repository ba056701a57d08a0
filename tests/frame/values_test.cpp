#include "frame/array.h"
#include "frame/rx_members.h"
#include "frame/time_stamp.h"
#include "frame/variant.h"

#include <gtest/gtest.h>

#include <limits>

namespace values_test {

class Thing : public OdRxObject {
  ODRX_DECLARE_MEMBERS(Thing);
};
ODRX_DEFINE_MEMBERS(Thing, OdRxObject, "Thing");

} // namespace values_test

namespace {

using values_test::Thing;

class OtherThing : public OdRxObject {};

struct NumberText {
  const char16_t* text;
  std::int64_t number;
};

TEST(Numbers, AreReadAsTheCLibraryReadsThem) {
  const NumberText cases[] = {
      {u"12", 12},
      {u"-12", -12},
      {u"+12", 12},
      {u"  12", 12},
      {u"12abc", 12},
      {u"1 2", 1},
      {u"", 0},
      {u"abc", 0},
      {u"-", 0},
      {u"+", 0},
      {u"0x10", 0},
      {u"1.9", 1},
      {u"\u0663", 0},
      {u"--1", 0},
      {u"+-1", 0},
      {u"99999999999999999999", std::numeric_limits<std::int64_t>::max()},
      {u"-99999999999999999999", std::numeric_limits<std::int64_t>::min()},
  };
  for (const NumberText& c : cases)
    EXPECT_EQ(odParseInt(c.text), c.number) << QString::fromUtf16(c.text).toStdString();
}

TEST(Numbers, WithoutSignWrapAndAreClamped) {
  EXPECT_EQ(odParseUInt(u"18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(odParseUInt(u"99999999999999999999"), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(odParseUInt(u"-1"), std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(odParseUInt(u" 7x"), 7u);
  EXPECT_EQ(odParseUInt(u""), 0u);
}

TEST(Numbers, WithAPointAreReadInAnyLocale) {
  EXPECT_DOUBLE_EQ(odParseReal(u" -1.5e2x"), -150.0);
  EXPECT_DOUBLE_EQ(odParseReal(u"1,5"), 1.0);
  EXPECT_DOUBLE_EQ(odParseReal(u".5"), 0.5);
  EXPECT_DOUBLE_EQ(odParseReal(u"word"), 0.0);
  EXPECT_DOUBLE_EQ(odParseReal(u"+-5"), 0.0);
}

TEST(Numbers, BeyondTheRangeOfRealsAreClamped) {
  constexpr double kHuge = std::numeric_limits<double>::infinity();
  EXPECT_EQ(odParseReal(u"1e999"), kHuge);
  EXPECT_EQ(odParseReal(u"-1e999"), -kHuge);
  EXPECT_DOUBLE_EQ(odParseReal(u"1e-999"), 0.0);
  EXPECT_DOUBLE_EQ(odParseReal(u"-1e-999"), 0.0);
  EXPECT_DOUBLE_EQ(odParseReal(u"0.00001e-999"), 0.0);
}

TEST(Numbers, OfManyDigitsAreReadWhole) {
  EXPECT_DOUBLE_EQ(odParseReal(QString(500, u'0') + QStringLiteral("1.5")), 1.5);
  EXPECT_EQ(odParseInt(QString(500, u'0') + QStringLiteral("7")), 7);
}

TEST(Variant, ConvertsEveryKindToEveryOther) {
  EXPECT_EQ(OdVariant(QStringLiteral("12x")).toInt32(), 12);
  EXPECT_DOUBLE_EQ(OdVariant(QStringLiteral("1.5")).toDouble(), 1.5);
  EXPECT_EQ(OdVariant(7).toString(), QStringLiteral("7"));
  EXPECT_DOUBLE_EQ(OdVariant(7).toDouble(), 7.0);
  EXPECT_EQ(OdVariant(-2.9).toInt32(), -2);
  EXPECT_EQ(OdVariant(0.1).toString(), QStringLiteral("0.10000000000000001"));
  EXPECT_EQ(OdVariant(1e300).toInt64(), 0);
  EXPECT_EQ(OdVariant(std::numeric_limits<double>::quiet_NaN()).toInt64(), 0);
  EXPECT_TRUE(OdVariant(true).toBool());
  EXPECT_EQ(OdVariant(true).toString(), QStringLiteral("1"));
  EXPECT_EQ(OdVariant(4000000000u).toUInt32(), 4000000000u);
  EXPECT_EQ(OdVariant(4000000000u).toInt32(), -294967296);
  EXPECT_EQ(OdVariant().toString(), OdString());
  EXPECT_EQ(OdVariant().toInt64(), 0);
  EXPECT_DOUBLE_EQ(OdVariant().toDouble(), 0.0);
  EXPECT_EQ(OdVariant(5).object(), nullptr);
}

TEST(Variant, KnowsItsKindWithAndWithoutFlags) {
  OdVariant value(std::int16_t{3});
  EXPECT_EQ(value.type(), OdVariant::kInt16);
  value.setFlags(OdVariant::kArray | OdVariant::kByRef);
  EXPECT_EQ(value.type(), OdVariant::kInt16);
  EXPECT_EQ(value.rawType(), 0xC4);
  EXPECT_TRUE(value.isArray());
  EXPECT_TRUE(value.isByRef());
  EXPECT_TRUE(OdVariant().isVoid());
  EXPECT_TRUE(OdVariant(u"x").isText());
  EXPECT_NE(OdVariant(1), OdVariant(1.0));
  EXPECT_EQ(OdVariant(u"x"), OdVariant(QStringLiteral("x")));
}

TEST(Variant, HoldsAReferenceToItsObject) {
  Thing::rxInit();
  const auto thing = odrxMake<Thing>();
  {
    const OdVariant value(thing);
    EXPECT_TRUE(value.isObject());
    EXPECT_EQ(thing->numRefs(), 2);
    EXPECT_EQ(value.objectAs<Thing>().get(), thing.get());
    EXPECT_EQ(value.toString(), OdString());
  }
  EXPECT_EQ(thing->numRefs(), 1);
  EXPECT_THROW(OdVariant(odrxMake<OtherThing>()).objectAs<Thing>(), OdError_NotThatKindOfClass);
  EXPECT_THROW(OdVariant(5).objectAs<Thing>(), OdError_NotThatKindOfClass);
  Thing::rxUninit();
}

TEST(Array, RaisesForAnIndexOutsideIt) {
  OdArray<int> array = {1, 2};
  EXPECT_THROW(array.at(2), OdError_InvalidIndex);
  EXPECT_THROW(array.at(-1), OdError_InvalidIndex);
  EXPECT_THROW(array[2] = 1, OdError_InvalidIndex);
  EXPECT_THROW(array.removeAt(2), OdError_InvalidIndex);
  EXPECT_THROW(array.insertAt(3, 1), OdError_InvalidIndex);
  EXPECT_THROW(OdArray<int>().at(0), OdError_InvalidIndex);
  try {
    array.at(7);
    FAIL();
  } catch (const OdError_InvalidIndex& error) {
    EXPECT_EQ(error.code(), eInvalidIndex);
    EXPECT_EQ(error.description(), QStringLiteral("Index 7 is outside an array of 2"));
  }
}

TEST(Array, KeepsItsOrderWhenItChanges) {
  OdArray<int> array;
  array.append(1);
  array.append(3);
  array.insertAt(1, 2);
  array.insertAt(3, 1);
  EXPECT_EQ(array, OdArray<int>({1, 2, 3, 1}));
  EXPECT_TRUE(array.removeFirst(1));
  EXPECT_FALSE(array.removeFirst(9));
  EXPECT_EQ(array, OdArray<int>({2, 3, 1}));
  EXPECT_EQ(array.indexOf(1), 2);
  EXPECT_EQ(array.indexOf(9), -1);
  EXPECT_TRUE(array.contains(3));
  array.removeAt(0);
  array.clear();
  EXPECT_TRUE(array.isEmpty());
}

TEST(Array, SharesItsElementsUntilACopyChanges) {
  OdArray<int> a = {1, 2};
  OdArray<int> b = a;
  b[0] = 9;
  EXPECT_EQ(a.at(0), 1);
  EXPECT_EQ(b.at(0), 9);
}

TEST(Error, SaysWhatItsCodeMeans) {
  EXPECT_EQ(OdError(eNotApplicable).description(), QStringLiteral("Operation is not applicable"));
  EXPECT_STREQ(OdError(static_cast<OdResult>(7777)).what(), "Error 7777");
  EXPECT_STREQ(OdError(eInvalidInput, QStringLiteral("K\u00fcche")).what(), "K\xC3\xBC"
                                                                            "che");
}

TEST(TimeStamp, IsTextInUniversalTime) {
  const QDateTime time(QDate(2026, 11, 21), QTime(3, 0), Qt::OffsetFromUTC, 3600);
  EXPECT_EQ(OdTimeStamp(time).toText(), QStringLiteral("2026-11-21T02:00:00Z"));
  EXPECT_EQ(OdTimeStamp().toText(), OdString());
  EXPECT_FALSE(OdTimeStamp().isValid());
}

} // namespace
