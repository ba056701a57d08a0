#include "catalog/import_pictures.h"

#include "catalog/import_review.h"
#include "catalog/library_pictures.h"
#include "catalog/whole_png.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "host/icon_service.h"
#include "module/properties.h"
#include "persistence/foreign_paths.h"
#include "persistence/path_operations.h"

#include <QFile>

#include <algorithm>
#include <utility>

namespace tc {
namespace {

/// While it lives, the decoders of pictures say nothing of what they cannot read: the report says
/// it.
class QuietDecoding {
 public:
  QuietDecoding() { s_former = qInstallMessageHandler(&QuietDecoding::handle); }
  ~QuietDecoding() { qInstallMessageHandler(s_former); }
  QuietDecoding(const QuietDecoding&) = delete;
  QuietDecoding& operator=(const QuietDecoding&) = delete;

 private:
  static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text) {
    const bool isOfDecoder =
        context.category && qstrncmp(context.category, "qt.gui.imageio", 14) == 0;
    if (!isOfDecoder && s_former) s_former(type, context, text);
  }
  static inline QtMessageHandler s_former = nullptr;
};

constexpr qsizetype kLongestName = 80;

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

/// Nothing if the file cannot be read: the decoder will not read it either.
QByteArray bytesOf(const OdString& path) {
  QFile file(odpath::toPlatform(path));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void worsen(OdTcImportedTool& row, OdTcPictureFate fate, const OdString& file) {
  if (fate <= row.picture) return;
  row.picture = fate;
  row.pictureFile = file;
}

/// The path as the file has it: an image that finds its picture puts a separator before it.
OdString nameInFile(const OdTcImage& image) {
  const OdString path = image.src();
  return path.startsWith(QLatin1String("\\.")) ? path.mid(1) : path;
}

std::uint64_t sizeKey(const OdTcImage& image) {
  return static_cast<std::uint64_t>(image.cx()) << 32 | image.cy();
}

/// An image that is not tied to any file yet.
OdTcImagePtr blankLike(const OdTcImage& other) {
  const OdTcImagePtr image = OdTcImage::createObject();
  if (other.sizeKind() != 0) image->setSizeKind(other.sizeKind());
  image->setSize(other.cx(), other.cy());
  return image;
}

} // namespace

ImportPictures::ImportPictures(const OdString& file, const OdTcForeignContent& content)
  : m_home(odpath::folderOf(file)) {
  if (!content.dependentFilesPath.isNull()) {
    const OdString named = content.dependentFilesPath.trimmed();
    const std::optional<OdString> inside = insidePath(named);
    if (inside && !inside->isEmpty()) {
      addFolder(*inside + u'\\');
    } else if (!named.isEmpty()) {
      m_refusedFolder = named;
      m_refusedBecause = inside ? translated(u"it is the root folder") : whyOutside(named);
    }
  }
  addFolder(odpath::titleOf(file) + u'\\');
  addFolder({});
}

void ImportPictures::addFolder(const OdString& folder) {
  if (!m_folders.contains(folder)) m_folders << folder;
}

ForeignFolder::Found ImportPictures::find(const OdString& inside) {
  ForeignFolder::Found result;
  for (const OdString& folder : m_folders) {
    const ForeignFolder::Found found = m_home.find(folder + inside);
    if (!found.path.isEmpty()) return found;
    result.isRefused |= found.isRefused;
  }
  return result;
}

bool ImportPictures::showsPicture(const OdString& file) {
  const auto known = m_shown.constFind(file);
  if (known != m_shown.constEnd()) return *known;
  const QuietDecoding quiet;
  return m_shown[file] =
             isNoBrokenPng(bytesOf(file)) && OdTcImage::createObject()->loadFromFile(file);
}

void ImportPictures::look(OdTcCatalogItem& item, std::uint32_t dark) { look(item, dark, m_own); }

void ImportPictures::look(OdTcCatalogItem& item, std::uint32_t dark, OdTcImportedTool& row) {
  Plan plan{OdTcCatalogItemPtr(&item), &row, {}};
  const OdTcImageList* const images = item.images();
  const std::vector<Candidate> chosen =
      images ? chosenFrom(*images, dark) : std::vector<Candidate>();
  const bool hasFound = std::any_of(chosen.begin(), chosen.end(), [](const Candidate& each) {
    return each.sight.fate == OdTcPictureFate::kFound;
  });
  for (const Candidate& each : chosen) {
    const Sight& sight = each.sight;
    if (sight.fate == OdTcPictureFate::kNone) continue;
    if (sight.rank() > 0) plan.pictures.push_back({each.image, sight.name, sight.file});
    // Where there is one picture, the other sizes are made from it.
    if (!sight.isNamed || !hasFound) worsen(row, sight.fate, sight.name);
  }
  m_plans.push_back(std::move(plan));
}

/// One image a size: one that can be shown, and among those the one for light windows.
std::vector<ImportPictures::Candidate> ImportPictures::chosenFrom(const OdTcImageList& images,
                                                                  std::uint32_t dark) {
  std::vector<Candidate> chosen;
  const OdTcEnumPtr<OdTcImage> all = images.enumImages();
  for (std::uint32_t bit = 1; OdTcImage* const image = all->next(); bit <<= 1) {
    Candidate next{OdTcImagePtr(image), (dark & bit) != 0, sightOf(*image)};
    const auto same = std::find_if(chosen.begin(), chosen.end(), [&](const Candidate& other) {
      return sizeKey(*other.image) == sizeKey(*image);
    });
    if (same == chosen.end()) {
      chosen.push_back(std::move(next));
      continue;
    }
    const int rank = next.sight.rank(), former = same->sight.rank();
    if (rank > former || (rank == former && same->isDark && !next.isDark)) std::swap(*same, next);
    if (next.isDark && !same->isDark) ++m_dark;
  }
  return chosen;
}

int ImportPictures::Sight::rank() const {
  if (fate == OdTcPictureFate::kFound || fate == OdTcPictureFate::kResource) return 2;
  return isNamed ? 1 : 0;
}

ImportPictures::Sight ImportPictures::sightOf(OdTcImage& image) {
  const OdString name = nameInFile(image);
  if (isInForeignLibrary(image)) return {OdTcPictureFate::kMissing, name, {}, true};
  if (image.isResource()) {
    // Without the host's icons nobody knows what it will show.
    const bool isThere = !host::service<IHostIconService>() || !image.getBitmap().isNull();
    image.releaseBitmap();
    return {isThere ? OdTcPictureFate::kResource : OdTcPictureFate::kMissing, name, {}, true};
  }
  if (name.isEmpty()) return {};
  const std::optional<OdString> inside = insidePath(name);
  if (!inside) return {OdTcPictureFate::kRefused, name, {}};
  const ForeignFolder::Found found = inside->isEmpty() ? ForeignFolder::Found{} : find(*inside);
  if (found.path.isEmpty())
    return {found.isRefused ? OdTcPictureFate::kRefused : OdTcPictureFate::kMissing, name, {}};
  if (!showsPicture(found.path)) return {OdTcPictureFate::kUnreadable, name, {}};
  return {OdTcPictureFate::kFound, name, found.path};
}

OdString ImportPictures::freeName(const OdString& file) {
  OdString title = odpath::titleOf(file).left(kLongestName);
  cleanFileName(title);
  title.removeIf([](QChar c) { return !c.isPrint(); });
  if (title.isEmpty()) title = translated(u"picture");
  const OdString extension = odpath::extensionOf(file);
  const OdString end = extension.isEmpty() ? OdString() : u'.' + extension;
  // Many tools may have pictures of one name: the count goes on where it stood.
  int& number = m_numbers[title + end];
  for (;;) {
    ++number;
    const OdString name =
        number == 1 ? title + end
                    : QStringLiteral("%1 (%2)%3").arg(title, OdString::number(number), end);
    if (!odrxSystemServices()->fileExists(m_target + u'\\' + name)) return name;
  }
}

bool ImportPictures::bringOne(const Picture& picture, OdTcImage& ours, OdTcImportedTool& row) {
  if (picture.file.isEmpty()) {
    ours.setResource(picture.name, picture.image->resource());
    return true;
  }
  const OdString name = freeName(picture.file);
  const OdString target = m_target + u'\\' + name;
  *m_made << target;
  try {
    odrxSystemServices()->copyFile(picture.file, target);
  } catch (const OdFileError& error) {
    // Where one size cannot be written, the others often cannot: the first shows why.
    if (row.picture != OdTcPictureFate::kMissing) remark(row, error.description());
    worsen(row, OdTcPictureFate::kMissing, picture.name);
    return false;
  }
  ours.setResource(QStringLiteral("\\Images\\") + name, picture.image->resource());
  ours.loadFromFile(target);
  return true;
}

void ImportPictures::bringAll(const Plan& plan) {
  const OdTcImageListPtr images = OdTcImageList::createObject();
  images->setOwner(plan.item->properties());
  for (const Picture& picture : plan.pictures) {
    const OdTcImagePtr ours = blankLike(*picture.image);
    if (bringOne(picture, *ours, *plan.row)) images->add(ours);
  }
  addMissingSizes(*images);
  const OdTcEnumPtr<OdTcImage> all = images->enumImages();
  while (OdTcImage* const image = all->next())
    if (!image->fullPath().isEmpty()) image->releaseBitmap();
  plan.item->setImages(images->count() > 0 ? images.get() : nullptr);
}

bool ImportPictures::bring(const OdString& palettesFolder, QStringList& made,
                           const std::function<bool()>& step) {
  m_target = palettesFolder + QLatin1String("\\Images");
  m_made = &made;
  const bool hasFiles = std::any_of(m_plans.begin(), m_plans.end(), [](const Plan& plan) {
    return std::any_of(plan.pictures.begin(), plan.pictures.end(),
                       [](const Picture& picture) { return !picture.file.isEmpty(); });
  });
  if (hasFiles && !odrxSystemServices()->createFolder(m_target))
    throw OdFileError(eFileAccess, m_target, translated(u"the folder cannot be made"));
  for (const Plan& plan : m_plans) {
    // The palette itself is none of the tools that are counted.
    if (plan.row != &m_own && !step()) return false;
    if (plan.item->images()) bringAll(plan);
  }
  m_made = nullptr;
  return true;
}

QStringList ImportPictures::notes() const {
  QStringList all;
  if (!m_refusedFolder.isEmpty())
    all << translated(u"The folder of the pictures, \"%1\", is not looked into: %2.")
               .arg(m_refusedFolder, m_refusedBecause);
  if (m_dark > 0)
    all << translated(u"Pictures for dark windows that were left out: %1").arg(m_dark);
  if (m_own.picture >= OdTcPictureFate::kRefused)
    all << translated(u"The palette's own picture \"%1\" is missing.").arg(m_own.pictureFile);
  return all;
}

} // namespace tc
