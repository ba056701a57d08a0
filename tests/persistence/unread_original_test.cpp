#include "persistence/unread_original.h"

#include "host/host_locator.h"
#include "support/failing_services.h"
#include "support/test_host.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace tc;

namespace {

class UnreadOriginal : public testing::Test {
 protected:
  void SetUp() override {
    testhost::host().reset();
    host::setModuleDirectory(nullptr); // forgets the application that an earlier test had
    testhost::host().application.userFolder = m_folder.filePath(QStringLiteral("user"));
    write("broken");
  }
  static void withoutHost() {
    testhost::host().switchOff(testhost::kApplication);
    host::setModuleDirectory(nullptr);
  }
  void write(const char* bytes) {
    QFile file(path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  OdString path() const { return m_folder.filePath(QStringLiteral("Catalog.dtc")); }
  QByteArray kept(const char* name) const {
    QFile file(m_folder.filePath(QStringLiteral("user/ToolPalette/Unread/")) +
               QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }

  QTemporaryDir m_folder;
};

TEST_F(UnreadOriginal, IsKeptInTheModulesFolderAndSaid) {
  keepUnreadOriginal(path());
  EXPECT_EQ(kept("Catalog.dtc"), "broken");
  ASSERT_EQ(testhost::host().messages.printed.size(), 1);
  EXPECT_TRUE(testhost::host().messages.printed[0].contains(path()));
  EXPECT_TRUE(testhost::host().messages.printed[0].contains(QStringLiteral("Unread\\Catalog.dtc")));
}

TEST_F(UnreadOriginal, NeverTakesThePlaceOfAnother) {
  keepUnreadOriginal(path());
  write("second");
  keepUnreadOriginal(path());
  write("third");
  keepUnreadOriginal(path());
  EXPECT_EQ(kept("Catalog.dtc"), "broken");
  EXPECT_EQ(kept("Catalog (2).dtc"), "second");
  EXPECT_EQ(kept("Catalog (3).dtc"), "third");
}

TEST_F(UnreadOriginal, NeedsNoCopyIfThereIsNoFile) {
  keepUnreadOriginal(m_folder.filePath(QStringLiteral("nothing.dtc")));
  EXPECT_TRUE(testhost::host().messages.printed.isEmpty());
}

TEST_F(UnreadOriginal, RaisesWhenTheCopyFails) {
  testhost::FailingServices services;
  services.deniedFolder = m_folder.filePath(QStringLiteral("user"));
  EXPECT_THROW(keepUnreadOriginal(path()), OdFileError);
}

TEST_F(UnreadOriginal, RaisesWithoutAHostToKeepItFor) {
  withoutHost();
  EXPECT_THROW(keepUnreadOriginal(path()), OdFileError);
}

TEST_F(UnreadOriginal, IsReportedByNameAndReason) {
  reportUnreadFile(QStringLiteral("C:\\%1.dtc"), QStringLiteral("it is broken"));
  EXPECT_EQ(testhost::host().messages.printed,
            QStringList(QStringLiteral("\nError: cannot read file C:\\%1.dtc: it is broken")));
}

} // namespace
