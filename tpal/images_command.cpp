// tpal images: which tools lack a picture, and making them.
#include "catalog/database.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "images/image_home.h"
#include "images/image_list.h"
#include "images/picture_file.h"
#include "module/properties.h"
#include "tools/command_tool.h"
#include "tools/source_files.h"
#include "tools/tool_source.h"
#include "tpal/command.h"
#include "tpal/console_host.h"
#include "tpal/tool_place.h"
#include "tpal/writable_catalog.h"

#include <QDir>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace tpal {
namespace {

/// The sizes that a tool is shown in, by kind and by pixels; the largest first, as a picture that
/// is missing can be made from a larger one.
struct Size {
  tc::OdTcSizeKind kind;
  int pixels;
};
constexpr std::array kSizes = {Size{tc::OdTcSizeKind::kLarge, 64},
                               Size{tc::OdTcSizeKind::kNormal, 32},
                               Size{tc::OdTcSizeKind::kSmall, 16}};

std::int32_t codeOf(const Size& size) { return static_cast<std::int32_t>(size.kind); }

/// A tool that lacks pictures, or was given some.
struct Row {
  ToolPlace place;
  OdString kind;
  std::vector<int> missing, made; ///< pixels
  OdString reason;                ///< why pictures are still missing
};

/// True if the picture can be shown. One of the program's buttons is there if the program has it.
bool isThere(tc::OdTcImage* image) {
  if (!image) return false;
  const bool isShown = !image->getBitmap().isNull();
  // A picture that was just made is nowhere else yet.
  if (!image->fullPath().isEmpty()) image->releaseBitmap();
  return isShown;
}

std::vector<Size> missingSizes(const tc::OdTcTool& tool) {
  const tc::OdTcImageList* const images = tool.images();
  std::vector<Size> missing;
  for (const Size& size : kSizes)
    if (!images || !isThere(images->findBySize(codeOf(size)))) missing.push_back(size);
  return missing;
}

std::vector<int> pixelsOf(const std::vector<Size>& sizes) {
  std::vector<int> pixels;
  for (const Size& size : sizes) pixels.push_back(size.pixels);
  std::sort(pixels.begin(), pixels.end());
  return pixels;
}

/// Which picture files the tools of a catalog show, and how many of them each. Its palettes have
/// one folder of pictures in common.
class FileUse {
 public:
  void add(const tc::OdTcToolPalette& palette) {
    for (const tc::OdTcTool* tool : toolsOf(palette))
      if (const tc::OdTcImageList* const images = tool->images())
        forEach(images->enumImages(),
                [&](tc::OdTcImage* image) { ++m_counts[fileOf(image->fullPath())]; });
  }
  bool isShared(const OdString& path) const { return m_counts.value(fileOf(path)) > 1; }

 private:
  /// One name for each file, however its path is spelled.
  static OdString fileOf(const OdString& path) { return QDir::cleanPath(odpath::toPlatform(path)); }

  QHash<OdString, int> m_counts;
};

/// Makes pictures of tools, with the sources that many of them share read once. Each is written at
/// once, so that the next one of its name gets another.
class PictureMaker {
 public:
  /// Makes the pictures of some sizes; those that could be made are in their files and in the
  /// tool. False if there are none.
  bool make(tc::OdTcTool& tool, const std::vector<Size>& sizes, const OdString& palette,
            const FileUse& use) {
    m_problem.clear();
    const bool hadImages = tool.images() != nullptr;
    if (!hadImages) tool.setImages(tc::OdTcImageList::createObject());
    tc::OdTcImageList& images = *tool.images();
    bool hasChanged = false;
    for (const Size& size : sizes) {
      const tc::OdTcImagePtr picture = pictureOf(tool, images, size);
      hasChanged |= picture && take(images, picture, size, palette, use);
    }
    if (hasChanged)
      tool.setModified();
    else if (!hadImages)
      tool.setImages(nullptr);
    return hasChanged;
  }
  /// Why the last call did not make all.
  const OdString& problem() const { return m_problem; }

 private:
  tc::OdTcImagePtr pictureOf(const tc::OdTcTool& tool, tc::OdTcImageList& list, const Size& size) {
    const tc::OdTcToolActionAgent* const agent = tool.getActionAgent();
    tc::OdTcImagePtr image = tc::OdTcImage::createObject();
    image->setOwner(&list);
    image->setSizeKind(codeOf(size));
    m_sources.setProblem({});
    if (agent && agent->makePicture(*image, m_sources)) return image;
    // A command shows itself by the program's icon of it, where there is one and nobody has given
    // it another picture.
    tc::OdTcImage* const former = list.findBySize(codeOf(size));
    const bool hasOwn = isThere(former) && !former->isResource();
    const auto* const command = dynamic_cast<const tc::OdTcToolCommandImpl*>(agent);
    if (command && !hasOwn && command->imageSourceFromMacro(image) && !image->getBitmap().isNull())
      return image;
    m_problem = whyNot(agent);
    return isThere(list.findBySize(codeOf(size))) ? tc::OdTcImagePtr() : scaled(list, size);
  }
  OdString whyNot(const tc::OdTcToolActionAgent* agent) const {
    const OdString source = agent ? tc::sourceFromPalette(*agent, agent->sourcePath()) : OdString();
    if (!m_sources.problem().isEmpty()) return m_sources.problem();
    return source.isEmpty() ? QStringLiteral("there is nothing to make a picture of")
                            : QStringLiteral("no picture comes of %1").arg(source);
  }
  /// From the largest picture that there is.
  static tc::OdTcImagePtr scaled(const tc::OdTcImageList& images, const Size& size) {
    tc::OdTcImage* largest = nullptr;
    forEach(images.enumImages(), [&](tc::OdTcImage* image) {
      if (!image->isResource() && isThere(image) && (!largest || image->cx() > largest->cx()))
        largest = image;
    });
    return largest ? largest->cloneAtSize(codeOf(size)) : tc::OdTcImagePtr();
  }
  /// Writes a picture into the file of the former one, if no other tool shows that, or else into
  /// one of its own.
  bool take(tc::OdTcImageList& images, const tc::OdTcImagePtr& picture, const Size& size,
            const OdString& palette, const FileUse& use) {
    tc::OdTcImage* const former = images.findBySize(codeOf(size));
    // One of the program's buttons has no file.
    if (picture->isResource()) {
      replace(images, former, picture);
      return true;
    }
    const OdString formerFile = former ? former->fullPath() : OdString();
    // Pictures elsewhere are not the catalog's to write.
    const bool staysInPlace = tc::isBelowPalette(palette, formerFile) && !use.isShared(formerFile);
    const OdString file = staysInPlace ? formerFile : odpath::folderOf(palette) + picture->src();
    const OdString kind = odpath::extensionOf(file);
    if (!tc::makePictureFolder(file, &m_problem) ||
        !tc::savePicture(picture->getBitmap(), file,
                         kind.isEmpty() ? tc::formatExtension(tc::kPngFormat) : kind, &m_problem))
      return false;
    if (staysInPlace) {
      former->releaseBitmap();
      return true;
    }
    picture->loadFromFile(file);
    picture->releaseBitmap();
    replace(images, former, picture);
    return true;
  }
  static void replace(tc::OdTcImageList& images, const tc::OdTcImage* former,
                      const tc::OdTcImagePtr& picture) {
    std::vector<tc::OdTcImagePtr> all;
    forEach(images.enumImages(), [&](tc::OdTcImage* image) {
      if (image != former) all.emplace_back(image);
    });
    all.push_back(picture);
    images.removeAll(false);
    for (const tc::OdTcImagePtr& image : all) images.add(image);
  }

  tc::OdTcSourceFiles m_sources;
  OdString m_problem;
};

class ImagesRun {
 public:
  ImagesRun(const Arguments& arguments, Console& console)
    : m_arguments(arguments)
    , m_console(console) {}

  ExitCode run() {
    const ModuleClasses classes;
    // Without an option nothing is written.
    const auto writes =
        makes() ? WritableCatalog::Writes::kPalettes : WritableCatalog::Writes::kNothing;
    WritableCatalog catalog(m_arguments.words.first(), writes, m_arguments, m_console);
    if (!catalog.isOpen()) return kFailed;
    for (const tc::OdTcToolPalette* palette : palettesOf(*catalog)) m_use.add(*palette);
    for (tc::OdTcToolPalette* palette : palettesOf(*catalog)) look(catalog, *palette);
    report();
    const bool isComplete = std::all_of(m_rows.begin(), m_rows.end(),
                                        [](const Row& row) { return row.missing.empty(); });
    return m_hasFailed ? kFailed : isComplete ? kOk : kFindings;
  }

 private:
  bool makes() const { return m_arguments.missing || m_arguments.rebuild; }

  void look(WritableCatalog& catalog, tc::OdTcToolPalette& palette) {
    if (palette.getDatabase()->isUnread()) return;
    bool hasChanged = false;
    const std::size_t first = m_rows.size();
    for (tc::OdTcTool* tool : toolsOf(palette))
      if (tool->isRegular()) hasChanged |= look(palette, *tool);
    const OdString problem = hasChanged ? catalog.save(palette) : OdString();
    if (problem.isEmpty()) return;
    m_console.err << "tpal: " << odpath::toPlatform(palette.getPath())
                  << ": not written: " << problem << "\n";
    m_hasFailed = true;
    // No tool on the disk shows what was made.
    for (std::size_t i = first; i < m_rows.size(); ++i) takeBack(m_rows[i]);
  }
  static void takeBack(Row& row) {
    row.missing.insert(row.missing.end(), row.made.begin(), row.made.end());
    std::sort(row.missing.begin(), row.missing.end());
    row.made.clear();
    if (row.reason.isEmpty()) row.reason = QStringLiteral("the palette is not written");
  }

  /// True if the tool was changed.
  bool look(const tc::OdTcToolPalette& palette, tc::OdTcTool& tool) {
    const std::vector<Size> missing = missingSizes(tool);
    const std::vector<Size> wanted =
        m_arguments.rebuild ? std::vector<Size>(kSizes.begin(), kSizes.end()) : missing;
    if (wanted.empty()) return false;
    Row row{{palette, tool}, summarize(tool).kind, pixelsOf(missing), {}, {}};
    const bool hasChanged = makes() && m_maker.make(tool, wanted, palette.getPath(), m_use);
    if (makes()) {
      row.missing = pixelsOf(missingSizes(tool));
      if (hasChanged) row.made = without(pixelsOf(wanted), row.missing);
      row.reason = m_maker.problem();
    }
    if (!row.missing.empty() || !row.made.empty()) m_rows.push_back(std::move(row));
    return hasChanged;
  }
  static std::vector<int> without(std::vector<int> sizes, const std::vector<int>& others) {
    std::erase_if(sizes, [&](int size) { return std::ranges::count(others, size) > 0; });
    return sizes;
  }

  void report() const {
    if (m_arguments.json) {
      m_console.out << OdString::fromUtf8(QJsonDocument(asJson()).toJson());
      return;
    }
    for (const Row& row : m_rows) {
      m_console.out << row.place.palette << ": " << row.place.tool << " (" << row.kind << ")";
      if (!row.made.empty()) m_console.out << ": made " << words(row.made);
      if (!row.missing.empty()) m_console.out << ": lacks " << words(row.missing);
      if (!row.reason.isEmpty()) m_console.out << ": " << row.reason;
      m_console.out << "\n";
    }
  }
  static OdString words(const std::vector<int>& sizes) {
    QStringList all;
    for (const int pixels : sizes) all << OdString::number(pixels);
    return all.join(QLatin1String(", "));
  }
  static QJsonArray numbers(const std::vector<int>& sizes) {
    QJsonArray all;
    for (const int pixels : sizes) all.append(pixels);
    return all;
  }
  QJsonArray asJson() const {
    QJsonArray rows;
    for (const Row& row : m_rows) {
      QJsonObject object = row.place.asJson();
      object.insert(QStringLiteral("kind"), row.kind);
      object.insert(QStringLiteral("missing"), numbers(row.missing));
      object.insert(QStringLiteral("made"), numbers(row.made));
      object.insert(QStringLiteral("reason"), row.reason);
      rows.append(object);
    }
    return rows;
  }

  const Arguments& m_arguments;
  Console& m_console;
  FileUse m_use;
  PictureMaker m_maker;
  std::vector<Row> m_rows;
  bool m_hasFailed = false;
};

} // namespace

ExitCode imagesCommand(const Arguments& arguments, Console& console) {
  if (arguments.missing && arguments.rebuild) {
    console.err << "tpal: --missing and --rebuild exclude each other\n";
    return kUsage;
  }
  return ImagesRun(arguments, console).run();
}

} // namespace tpal
