// tpal make: tools from drawings, pictures and commands.
#include "catalog/database.h"
#include "catalog/palette_filling.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "images/image_list.h"
#include "images/picture_file.h"
#include "module/properties.h"
#include "tools/tool_maker.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/make_sources.h"
#include "tpal/picture_workers.h"
#include "tpal/progress.h"
#include "tpal/writable_catalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace tpal {
namespace {

/// A tool that was made, or a source that gave none.
struct Row {
  MakeSource source;
  tc::OdTcToolPtr tool;
  std::vector<int> pictures; ///< pixels
  OdString problem;
};

bool hasButton(const Row& row) { return row.source.kind == MakeSource::Kind::kCommand; }

class MakeRun {
 public:
  MakeRun(const Arguments& arguments, Console& console)
    : m_arguments(arguments)
    , m_console(console) {}

  ExitCode run() {
    const ModuleClasses classes;
    WritableCatalog target(m_arguments.words[0], WritableCatalog::Writes::kCatalogThatMayBeNew,
                           m_arguments, m_console);
    if (!target.isOpen() || !choosePalette(*target)) return kFailed;
    makeTools();
    ConsoleHost::instance().takeMessages();
    if (toolCount() > 0) enter(target);
    report();
    if (!m_failure.isEmpty()) {
      m_console.err << "tpal: " << m_failure << "\n";
      return kFailed;
    }
    if (toolCount() == 0) return kFailed;
    const bool isComplete =
        std::all_of(m_rows.begin(), m_rows.end(), [](const Row& r) { return r.problem.isEmpty(); });
    return isComplete ? kOk : kFindings;
  }

 private:
  std::ptrdiff_t toolCount() const {
    return std::count_if(m_rows.begin(), m_rows.end(),
                         [](const Row& r) { return r.tool != nullptr; });
  }

  /// False if the name is that of several palettes, or the one that has it cannot take tools.
  bool choosePalette(const tc::OdTcCatalog& catalog) {
    OdString problem;
    const tc::OdTcToolPalette* const palette = findPalette(catalog, m_arguments.words[1], problem);
    const bool isNew = !palette && !catalog.findPaletteByName(m_arguments.words[1]);
    if (palette && palette->getDatabase()->isUnread())
      problem =
          QStringLiteral("%1 cannot be read: %2")
              .arg(odpath::toPlatform(palette->getPath()), palette->getDatabase()->readProblem());
    if (isNew || problem.isEmpty()) return true;
    m_console.err << "tpal: " << problem << "\n";
    return false;
  }

  void makeTools() {
    tc::OdTcToolMaker maker(tc::OdTcToolMaker::Pictures::kLater);
    const MakeSources found = findSources(m_arguments.words.mid(2));
    Progress progress(m_console, QStringLiteral("sources"), found.sources.size());
    std::size_t done = 0;
    for (const MakeSource& source : found.sources) {
      progress.show(done++);
      if (m_arguments.blocks && isDrawing(source))
        makeOfBlocks(maker, source);
      else
        makeOf(maker, source);
    }
    for (const MakeProblem& problem : found.problems)
      m_rows.push_back({{MakeSource::Kind::kFile, problem.word, {}}, nullptr, {}, problem.reason});
  }
  /// A tool of each block, as long as the drawing is at hand.
  void makeOfBlocks(tc::OdTcToolMaker& maker, const MakeSource& drawing) {
    const QStringList blocks = maker.blocksOf(drawing.word);
    if (blocks.isEmpty()) m_rows.push_back({drawing, nullptr, {}, maker.problem()});
    for (const OdString& block : blocks)
      makeOf(maker, {MakeSource::Kind::kBlock, drawing.word, block});
  }
  void makeOf(tc::OdTcToolMaker& maker, const MakeSource& source) {
    const tc::OdTcToolPtr tool = tc::OdTcTool::createObject();
    const bool isMade = make(maker, *tool, source);
    m_rows.push_back({source, isMade ? tool : nullptr, {}, isMade ? OdString() : maker.problem()});
  }
  static bool make(tc::OdTcToolMaker& maker, tc::OdTcTool& tool, const MakeSource& source) {
    switch (source.kind) {
    case MakeSource::Kind::kFile:
      return maker.fromFile(tool, source.word);
    case MakeSource::Kind::kBlock:
      return maker.fromDrawingBlock(tool, source.word, source.block);
    case MakeSource::Kind::kCommand:
      return maker.fromCommand(tool, source.word);
    }
    return false;
  }

  /// Brings the tools with their pictures into the palette, all or none. A dry run goes the same
  /// way up to the disk, so that it promises nothing that fails.
  void enter(WritableCatalog& target) {
    tc::OdTcPaletteFilling filling(*target, m_arguments.words[1], m_arguments.group);
    for (const Row& row : m_rows)
      if (row.tool) filling.add(row.tool);
    makeAllPictures(filling);
    if (m_arguments.dryRun) return;
    m_failure =
        target.whyNotWritable(filling.isNew() ? target.file() : filling.palette().getPath());
    if (m_failure.isEmpty() && !filling.commit())
      m_failure = QStringLiteral("%1: not written: %2")
                      .arg(odpath::toPlatform(filling.palette().getPath()), filling.problem());
    ConsoleHost::instance().takeMessages();
  }

  void makeAllPictures(tc::OdTcPaletteFilling& filling) {
    std::vector<Row*> rows;
    std::vector<tc::OdTcToolPtr> tools;
    for (Row& row : m_rows) {
      if (!row.tool || hasButton(row)) continue;
      rows.push_back(&row);
      tools.push_back(row.tool);
    }
    Progress progress(m_console, QStringLiteral("pictures"), tools.size());
    makePictures(tools, [&](std::size_t index, const MadePictures& made) {
      progress.show(index);
      take(*rows[index], made, filling);
    });
  }

  /// Writes the pictures at once, so that the next ones of their names get others.
  void take(Row& row, const MadePictures& made, tc::OdTcPaletteFilling& filling) {
    if (made.pictures.empty()) {
      row.problem = QStringLiteral("no picture: %1").arg(made.problem);
      return;
    }
    if (m_arguments.dryRun) {
      for (const MadePicture& picture : made.pictures) row.pictures.push_back(picture.pixels);
      return;
    }
    row.tool->setImages(tc::OdTcImageList::createObject());
    const OdString folder = odpath::folderOf(filling.palette().getPath());
    for (const MadePicture& picture : made.pictures) {
      OdString src = picture.src;
      if (odrxSystemServices()->fileExists(folder + src)) src = freshName(*row.tool);
      const OdString file = folder + src;
      OdString problem;
      if (!tc::makePictureFolder(file, &problem) ||
          !tc::savePictureBytes(picture.png, file, &problem)) {
        row.problem = QStringLiteral("no picture: %1").arg(problem);
        row.pictures.clear();
        row.tool->setImages(nullptr);
        return;
      }
      filling.noteFile(file);
      const tc::OdTcImagePtr image = tc::OdTcImage::createObject();
      image->setSizeKind(tc::kindOfPixels(static_cast<std::uint32_t>(picture.pixels)));
      image->setResource(src, {});
      row.tool->images()->add(image);
      row.pictures.push_back(picture.pixels);
    }
  }
  static OdString freshName(const tc::OdTcTool& tool) {
    return tc::uniquePictureName(summarize(tool).kind == QLatin1String("raster")
                                     ? QStringLiteral("Raster tool instrument")
                                     : QStringLiteral("Block tool instrument"));
  }

  void report() const {
    if (m_arguments.json) {
      m_console.out << OdString::fromUtf8(QJsonDocument(asJson()).toJson());
      return;
    }
    for (const Row& row : m_rows) {
      // Tools that came to nothing with their palette are nobody's.
      if (!m_failure.isEmpty() && row.problem.isEmpty()) continue;
      m_console.out << row.source.word;
      if (!row.source.block.isEmpty()) m_console.out << ", block " << row.source.block;
      if (row.tool)
        m_console.out << ": " << (m_arguments.dryRun ? "would be " : "") << row.tool->name() << " ("
                      << summarize(*row.tool).kind << ")";
      if (!row.problem.isEmpty()) m_console.out << ": " << row.problem;
      m_console.out << "\n";
    }
    if (!m_failure.isEmpty() || toolCount() == 0) return;
    const bool isOne = toolCount() == 1;
    m_console.out << toolCount() << (isOne ? " tool " : " tools ")
                  << (m_arguments.dryRun ? "would be"
                      : isOne            ? "is"
                                         : "are")
                  << " on the palette \"" << m_arguments.words[1] << "\"\n";
  }
  QJsonArray asJson() const {
    QJsonArray rows;
    for (const Row& row : m_rows) {
      QJsonArray pictures;
      for (const int pixels : row.pictures) pictures.append(pixels);
      rows.append(QJsonObject{
          {QStringLiteral("source"), row.source.word},
          {QStringLiteral("block"), row.source.block},
          {QStringLiteral("made"), row.tool && !m_arguments.dryRun && m_failure.isEmpty()},
          {QStringLiteral("tool"), row.tool ? row.tool->name() : OdString()},
          {QStringLiteral("id"), row.tool ? row.tool->id() : OdString()},
          {QStringLiteral("kind"), row.tool ? summarize(*row.tool).kind : OdString()},
          {QStringLiteral("pictures"), pictures},
          {QStringLiteral("problem"), row.problem}});
    }
    return rows;
  }

  const Arguments& m_arguments;
  Console& m_console;
  std::vector<Row> m_rows;
  OdString m_failure;
};

} // namespace

ExitCode makeCommand(const Arguments& arguments, Console& console) {
  if (arguments.words[1].trimmed().isEmpty()) {
    console.err << "tpal: the palette needs a name\n";
    return kUsage;
  }
  return MakeRun(arguments, console).run();
}

} // namespace tpal
