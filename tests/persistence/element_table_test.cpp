#include "persistence/element_table.h"

#include "module/persist_impl.h"

#include <gtest/gtest.h>

using namespace tc;

namespace {

class First : public OdTcPersistImpl<OdTcPersist> {};
class Second : public OdTcPersistImpl<OdTcPersist> {};

OdTcPersist* makeFirst() { return new First; }
OdTcPersist* makeSecond() { return new Second; }

TEST(ElementTable, LooksNamesUpWithCase) {
  OdTcElementTable table;
  table.add(QStringLiteral("Linetype"), &makeFirst);
  EXPECT_TRUE(table.contains(QStringLiteral("Linetype")));
  EXPECT_FALSE(table.contains(QStringLiteral("LineType")));
  EXPECT_TRUE(table.create(QStringLiteral("linetype")).isNull());
  EXPECT_TRUE(table.create(OdString()).isNull());
}

TEST(ElementTable, MakesObjectsWithOneReference) {
  OdTcElementTable table;
  table.add(QStringLiteral("A"), &makeFirst);
  EXPECT_EQ(table.create(QStringLiteral("A"))->numRefs(), 1);
}

TEST(ElementTable, LetsALaterRowTakeThePlaceOfAnEarlier) {
  OdTcElementTable table;
  table.add(QStringLiteral("Data"), &makeFirst);
  table.add(QStringLiteral("Other"), &makeFirst);
  table.add(QStringLiteral("Data"), &makeSecond);
  const OdTcPersistPtr made = table.create(QStringLiteral("Data"));
  EXPECT_NE(dynamic_cast<Second*>(made.get()), nullptr);
  EXPECT_EQ(table.names(), QStringList({QStringLiteral("Data"), QStringLiteral("Other")}));
}

int g_built = 0;
void countedBuilder(OdTcElementTable& table) {
  ++g_built;
  table.add(QStringLiteral("Counted"), &makeFirst);
}
void otherBuilder(OdTcElementTable& table) { table.add(QStringLiteral("Other"), &makeFirst); }

TEST(ElementTable, IsBuiltAtTheFirstLookupAndKept) {
  g_built = 0;
  OdTcElementTable::setBuilder(&otherBuilder);
  OdTcElementTable::setBuilder(&countedBuilder);
  EXPECT_EQ(g_built, 0);
  EXPECT_TRUE(OdTcElementTable::instance().contains(QStringLiteral("Counted")));
  EXPECT_FALSE(OdTcElementTable::instance().contains(QStringLiteral("Other")));
  OdTcElementTable::setBuilder(&countedBuilder);
  EXPECT_EQ(OdTcElementTable::instance().names().size(), 1);
  EXPECT_EQ(g_built, 1);
}

} // namespace
