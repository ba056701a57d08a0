#include "drafton/desktop/first_run.h"

#include "desktop/desktop_fixture.h"
#include "frame/file_path.h"

#include <QDir>
#include <QFile>

using namespace drafton;

namespace {

class FirstRunTest : public DesktopFixture {
 protected:
  FirstRunTest() {
    write("program/samples/drawings/floor-plan.dxf", "plan");
    write("program/samples/catalog/DrfTcCatalog.dtc", "catalog");
    write("program/samples/catalog/Palettes/Images/a.png", "picture");
    // What is installed belongs to the system.
    QFile::setPermissions(path("program/samples/drawings/floor-plan.dxf"), QFile::ReadOwner);
  }
  void write(const char* name, const QByteArray& bytes) {
    const QString file = path(name);
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(bytes);
  }
  QByteArray read(const char* name) {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
  }
  OdString bring() { return bringSamples(desktop(), path("program")); }
  OdString catalogs() {
    OdString folder;
    desktop().engine().application().setting(QStringLiteral("ToolPaletteDir"), folder);
    return folder;
  }
};

TEST_F(FirstRunTest, TheSamplesAreCopiedToTheUsersDataAndShown) {
  EXPECT_EQ(bring(), path("data/Samples/drawings/floor-plan.dxf"));
  EXPECT_EQ(read("data/Samples/drawings/floor-plan.dxf"), "plan");
  EXPECT_EQ(read("data/Samples/catalog/Palettes/Images/a.png"), "picture");
  EXPECT_EQ(catalogs(), odpath::fromPlatform(path("data/Samples/catalog")));
  EXPECT_EQ(desktop().engine().settings().keys({QStringLiteral("Startup")}),
            QStringList(QStringLiteral("ToolPalettes")));
  EXPECT_TRUE(QFile::permissions(path("data/Samples/drawings/floor-plan.dxf")) & QFile::WriteOwner)
      << "they may be changed";
  EXPECT_FALSE(QFile::exists(path("data/Samples.part")));
}

TEST_F(FirstRunTest, HappensOnce) {
  EXPECT_FALSE(bring().isEmpty());
  EXPECT_EQ(bring(), OdString());
  stop();
  start();
  EXPECT_EQ(bring(), OdString());
}

TEST_F(FirstRunTest, WhatWasDrawnInTheCopiesStays) {
  write("data/Samples/drawings/floor-plan.dxf", "mine");
  EXPECT_FALSE(bring().isEmpty());
  EXPECT_EQ(read("data/Samples/drawings/floor-plan.dxf"), "mine");
}

TEST_F(FirstRunTest, CatalogsThatTheSettingsNameStayTheOnlyOnes) {
  desktop().engine().application().setSetting(QStringLiteral("ToolPaletteDir"),
                                              OdString(QStringLiteral("\\office")));
  EXPECT_EQ(bring(), OdString());
  EXPECT_EQ(catalogs(), QStringLiteral("\\office"));
  EXPECT_FALSE(QFile::exists(path("data/Samples")));
}

TEST_F(FirstRunTest, WithoutSamplesNothingHappens) {
  EXPECT_EQ(bringSamples(desktop(), path("elsewhere")), OdString());
  EXPECT_FALSE(history().contains(QStringLiteral("samples")));
}

TEST_F(FirstRunTest, AFolderThatCannotBeWrittenIsToldAndTriedAgain) {
  write("data", "a file in the way");
  EXPECT_EQ(bring(), OdString());
  EXPECT_TRUE(history().contains(path("data/Samples"))) << history().toStdString();
  QFile::remove(path("data"));
  EXPECT_FALSE(bring().isEmpty());
}

} // namespace
