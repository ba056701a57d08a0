// Chains of values and the extended data of objects.
#include "drawing/database.h"
#include "drawing/entities/line.h"
#include "drawing/res_buf.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

const OdString kMine = QStringLiteral("MINE");

struct ExtendedData : testing::Test {
  OdDbDatabasePtr db = OdDbDatabase::createDatabase();
  OdDbObjectId id = db->getModelSpaceId()
                        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
                        ->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d(), OdGePoint3d(1, 0, 0)));

  OdDbObjectPtr object(OdDb::OpenMode mode = OdDb::kForWrite) { return id.openObject(mode); }
};

/// One value of each kind behind an application's name.
OdResBufPtr everything(const OdString& application) {
  const OdResBufPtr chain = OdResBuf::newRb(1001, application);
  chain->last()->setNext(OdResBuf::newRb(1000, QStringLiteral("Größe 日本 \t tab")));
  chain->last()->setNext(OdResBuf::newRb(1002, QStringLiteral("{")));
  chain->last()->setNext(OdResBuf::newRb(1003, QStringLiteral("0")));
  chain->last()->setNext(OdResBuf::newRb(1004, QByteArray("\x01\xFE\x00", 3)));
  chain->last()->setNext(OdResBuf::newRb(1005, QStringLiteral("2A")));
  chain->last()->setNext(OdResBuf::newRb(1002, QStringLiteral("}")));
  chain->last()->setNext(OdResBuf::newRb(1010, OdGePoint3d(1.5, -2.5, 1e-9)));
  chain->last()->setNext(OdResBuf::newRb(1013, OdGePoint3d(4, 5, 6)));
  chain->last()->setNext(OdResBuf::newRb(1040, 0.1));
  chain->last()->setNext(OdResBuf::newRb(1070, std::int64_t{-32768}));
  chain->last()->setNext(OdResBuf::newRb(1071, std::int64_t{2'000'000'000}));
  return chain;
}

void expectEqual(const OdResBuf* a, const OdResBuf* b) {
  for (; a && b; a = a->next().get(), b = b->next().get()) {
    EXPECT_EQ(a->restype(), b->restype());
    EXPECT_TRUE(a->value() == b->value()) << a->restype();
  }
  EXPECT_EQ(a, b);
}

} // namespace

TEST_F(ExtendedData, IsReadAsItWasSet) {
  oddbSetXData(*object(), everything(kMine).get());
  const OdResBufPtr expected = everything(kMine);
  expected->next()->setString(QStringLiteral("Größe 日本 ^I tab")); // a line has no tabs
  expectEqual(oddbXData(*object(), kMine).get(), expected.get());
  EXPECT_TRUE(db->getRegAppTableId().openAs<OdDbRegAppTable>()->has(kMine));
}

TEST_F(ExtendedData, IsSavedInEveryVersion) {
  oddbSetXData(*object(), everything(kMine).get());
  const OdResBufPtr before = oddbXData(*object(), kMine);
  for (const auto version : {OdDb::kR2000, OdDb::kR2007, OdDb::kR2018}) {
    const OdDbDatabasePtr back = OdDbDatabase::readDxf(db->writeDxf(version), QString());
    const OdDbObjectPtr read = back->getOdDbObjectId(id.getHandle()).openObject();
    expectEqual(oddbXData(*read, kMine).get(), before.get());
  }
}

TEST_F(ExtendedData, OfSeveralApplicationsIsKeptApart) {
  const OdResBufPtr both = OdResBuf::newRb(1001, QStringLiteral("A"));
  both->last()->setNext(OdResBuf::newRb(1070, std::int64_t{1}));
  both->last()->setNext(OdResBuf::newRb(1001, QStringLiteral("B")));
  both->last()->setNext(OdResBuf::newRb(1070, std::int64_t{2}));
  oddbSetXData(*object(), both.get());
  expectEqual(oddbXData(*object()).get(), both.get());
  EXPECT_EQ(oddbXData(*object(), QStringLiteral("b"))->next()->getInt(), 2);
  EXPECT_EQ(oddbXData(*object(), QStringLiteral("C")), nullptr);
  // A name alone takes its data away.
  oddbSetXData(*object(), OdResBuf::newRb(1001, QStringLiteral("A")).get());
  EXPECT_EQ(oddbXData(*object(), QStringLiteral("A")), nullptr);
  EXPECT_EQ(oddbXData(*object())->getString(), QStringLiteral("B"));
}

TEST_F(ExtendedData, IsUndoneWithTheRest) {
  const QByteArray before = db->writeDxf();
  db->startUndoRecord(QStringLiteral("XDATA"));
  oddbSetXData(*object(), everything(kMine).get());
  db->startUndoRecord(QStringLiteral("NEXT"));
  db->undo();
  EXPECT_EQ(db->writeDxf(), before);
  object(OdDb::kForRead)->downgradeOpen();
  EXPECT_THROW(oddbSetXData(*object(OdDb::kForRead), everything(kMine).get()), OdError);
}

TEST_F(ExtendedData, RefusesWhatItCannotHave) {
  const auto behindName = [](int code, OdResBuf::Value value) {
    const OdResBufPtr chain = OdResBuf::newRb(1001, kMine);
    chain->setNext(OdResBuf::newRb(code, std::move(value)));
    return chain;
  };
  const OdResBufPtr wrong[] = {
      OdResBuf::newRb(1000, QStringLiteral("without a name")),
      OdResBuf::newRb(1001, QString()),
      OdResBuf::newRb(1001),
      behindName(40, 1.0),
      behindName(1020, 1.0),
      behindName(1000, 1.0),
      behindName(1040, std::nan("")),
      behindName(1010, OdGePoint3d(0, std::nan(""), 0)),
      behindName(1070, std::int64_t{40000}),
      behindName(1071, std::int64_t{1} << 40),
      behindName(1004, QStringLiteral("00")),
  };
  for (const OdResBufPtr& chain : wrong)
    EXPECT_THROW(oddbSetXData(*object(), chain.get()), OdError);
  oddbSetXData(*object(), nullptr);
  EXPECT_EQ(object()->residue(), nullptr);
}

TEST(ResBuf, GivesItsValueOnlyAsWhatItIs) {
  const OdResBufPtr rb = OdResBuf::newRb(1040, 2.5);
  EXPECT_EQ(rb->getDouble(), 2.5);
  EXPECT_THROW(rb->getInt(), OdError);
  EXPECT_THROW(rb->getString(), OdError);
  EXPECT_THROW(rb->getPoint3d(), OdError);
  EXPECT_THROW(rb->getBinaryChunk(), OdError);
  rb->setRestype(1070);
  rb->setInt(7);
  EXPECT_EQ(rb->getInt(), 7);
  rb->setPoint3d({1, 2, 3});
  EXPECT_EQ(rb->getPoint3d(), OdGePoint3d(1, 2, 3));
  rb->setBinaryChunk("x");
  EXPECT_EQ(rb->getBinaryChunk(), "x");
  EXPECT_STREQ(qPrintable(OdResBuf::desc()->name()), "OdResBuf");
}

TEST(ResBuf, NeverBecomesARing) {
  const OdResBufPtr a = OdResBuf::newRb(1);
  const OdResBufPtr b = a->setNext(OdResBuf::newRb(2));
  EXPECT_THROW(b->setNext(a), OdError);
  EXPECT_THROW(a->setNext(a), OdError);
  EXPECT_EQ(a->last()->restype(), 2);
  EXPECT_EQ(b->setNext(nullptr), nullptr);
}

TEST(ResBuf, IsClonedAndDestroyedHoweverLong) {
  const OdResBufPtr first = OdResBuf::newRb(0);
  OdResBufPtr at = first;
  for (int i = 1; i < 300'000; ++i) {
    const OdResBufPtr next = OdResBuf::newRb(i);
    at->setNext(next);
    at = next;
  }
  const OdResBufPtr copy = first->clone();
  expectEqual(copy.get(), first.get());
  EXPECT_NE(copy->next(), first->next());
}
