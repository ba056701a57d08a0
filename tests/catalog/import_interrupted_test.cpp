// Imports that the user cancels, or whose process is ended from outside, at every point.
#include "catalog/import_fixture.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <utility>

namespace {

using namespace testhost;

/// Ends the process before the file operation of that number, or in the midst of it.
class DyingServices : public FailingServices {
 public:
  explicit DyingServices(int operationsLeft)
    : m_left(operationsLeft) {}

  OdStreamBufPtr createFile(const OdString& path, Oda::FileAccessMode access,
                            Oda::FileShareMode share,
                            Oda::FileCreationDisposition creation) override {
    if (!(access & Oda::kFileWrite))
      return FailingServices::createFile(path, access, share, creation);
    operation();
    const OdStreamBufPtr stream = FailingServices::createFile(path, access, share, creation);
    operation();
    return odrxMake<Stream>(stream, *this);
  }
  bool createFolder(const OdString& path) override {
    operation();
    return FailingServices::createFolder(path);
  }
  bool removeFile(const OdString& path) override {
    operation();
    return FailingServices::removeFile(path);
  }
  bool replaceFile(const OdString& from, const OdString& to) override {
    operation();
    return FailingServices::replaceFile(from, to);
  }
  void copyFile(const OdString& from, const OdString& to) override {
    operation();
    if (m_left == 0) {
      const OdStreamBufPtr half =
          FailingServices::createFile(to, Oda::kFileWrite, Oda::kShareDenyNo, Oda::kCreateAlways);
      half->putBytes("half", 4);
      half->flush();
    }
    operation();
    FailingServices::copyFile(from, to);
  }

 private:
  class Stream : public FailingStream {
   public:
    Stream(OdStreamBufPtr inner, DyingServices& services)
      : FailingStream(std::move(inner), services.m_room)
      , m_services(services) {}
    void putBytes(const void* buffer, std::uint32_t count) override {
      if (m_services.m_left == 0) {
        FailingStream::putBytes(buffer, count / 2);
        flush();
      }
      m_services.operation();
      FailingStream::putBytes(buffer, count);
      m_services.operation();
    }

   private:
    DyingServices& m_services;
  };

  void operation() {
    if (m_left-- == 0) ::kill(::getpid(), SIGKILL);
  }

  std::uint64_t m_room = std::uint64_t{1} << 40;
  int m_left;
};

struct ImportInterrupted : ImportFixture {
  ImportInterrupted() {
    writeFile(u"in\\p\\Images\\a.png"_s, png());
    writeFile(u"in\\p\\Images\\b.png"_s, png(32));
    m_file = exported(commandXml("A", imageXml(".\\Images\\a.png")) + toolXml("L", "<Light/>") +
                      commandXml("B", imageXml(".\\Images\\b.png", "cx=\"32\" cy=\"32\"")) +
                      toolXml("H", "<Hatch><PatternName>ANSI31</PatternName></Hatch>"));
    m_options.group = u"Imported"_s;
  }
  /// The names of what a catalog holds in memory.
  static QStringList contents(const OdTcCatalog& catalog) {
    return namesOf(catalog.palettesEnum()) + namesOf(catalog.groupsEnum()) +
           QStringList(OdString::number(catalog.loaders()->count()));
  }
  OdTcCatalogPtr loadedAgain() { return load(stored(u"c\\DrfTcCatalog.dtc"_s)); }

  OdString m_file;
  OdTcImportOptions m_options;
};

struct CountedProgress : OdTcImportProgress {
  explicit CountedProgress(int allowedSteps)
    : allowed(allowedSteps) {
    setInstance(this);
  }
  ~CountedProgress() { setInstance(nullptr); }
  void start(int count) override { range = count; }
  bool step() override { return steps++ < allowed; }
  void stop() override {}
  int allowed, range = 0, steps = 0;
};

TEST_F(ImportInterrupted, CancelledAtAnyStepLeavesTheCatalogAsItWas) {
  ASSERT_TRUE(import(m_file, m_options)) << "a catalog that has something to lose";
  const auto files = allFiles();
  const QStringList before = contents(catalog());
  bool isDone = false;
  int cancels = 0;
  for (; !isDone; ++cancels) {
    CountedProgress progress(cancels);
    isDone = import(m_file, m_options) != nullptr;
    if (isDone) {
      EXPECT_EQ(progress.steps, progress.range);
      break;
    }
    EXPECT_EQ(progress.steps, cancels + 1);
    EXPECT_EQ(allFiles(), files) << cancels;
    EXPECT_EQ(contents(catalog()), before) << cancels;
    ASSERT_LT(cancels, 100);
  }
  EXPECT_EQ(cancels, 12) << "three for each tool";
  EXPECT_EQ(namesOf(catalog().palettesEnum()), QStringList({u"p"_s, u"p (2)"_s}));
}

TEST_F(ImportInterrupted, KilledAtAnyPointLeavesTheCatalogOnTheDiskAsItWasOrWhole) {
  ASSERT_TRUE(import(m_file, m_options)) << "a catalog that has something to lose";
  const auto files = allFiles();
  const QStringList before = contents(*loadedAgain());
  int kills = 0, whole = 0;
  for (bool isDone = false; !isDone;) {
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
      const DyingServices services(kills);
      ::_exit(import(m_file, m_options) ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    isDone = WIFEXITED(status);
    EXPECT_TRUE(isDone ? WEXITSTATUS(status) == 0 : WTERMSIG(status) == SIGKILL) << status;
    kills += !isDone;

    const OdTcCatalogPtr after = loadedAgain();
    ASSERT_FALSE(after->isUnread()) << kills << text(after->readProblem());
    const bool isIn = contents(*after) != before;
    if (isIn) {
      ++whole;
      EXPECT_EQ(namesOf(after->palettesEnum()), QStringList({u"p"_s, u"p (2)"_s})) << kills;
      OdTcToolPalette* const palette = after->findPaletteByName(u"p (2)"_s);
      ASSERT_TRUE(palette);
      for (const OdTcTool* const tool : toolsOf(*palette)) {
        if (!tool->images()) continue;
        const OdTcEnumPtr<OdTcImage> images = tool->images()->enumImages();
        while (OdTcImage* const image = images->next())
          EXPECT_FALSE(image->getBitmap().isNull()) << kills << text(tool->name());
      }
    }
    EXPECT_TRUE(isIn || !isDone);
    // What was there before is there, to the byte; the catalog's own file changes at one blow.
    const auto now = allFiles();
    for (auto file = files.begin(); file != files.end(); ++file)
      if (file.key() != u"c/DrfTcCatalog.dtc"_s || !isIn) {
        EXPECT_EQ(now.value(file.key()), file.value()) << kills << text(file.key());
      }
    // What is left over stands in nobody's way.
    if (!isIn) {
      EXPECT_TRUE(after->importPalette(m_file, m_options, report)) << kills;
    }

    for (const OdString& name : allFiles().keys())
      EXPECT_TRUE(files.contains(name) || QFile::remove(platform(name)));
    for (auto file = files.begin(); file != files.end(); ++file)
      writeFile(file.key(), file.value());
    ASSERT_LT(kills, 1000);
  }
  EXPECT_GT(kills, 20);
  EXPECT_GT(whole, 0);
  EXPECT_LT(whole, kills);
}

} // namespace
