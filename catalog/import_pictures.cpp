#include "catalog/import_pictures.h"

#include "persistence/foreign_paths.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "host/host_locator.h"
#include "module/properties.h"
#include "persistence/path_operations.h"

#include <algorithm>
#include <array>

namespace tc {
namespace {

/// The library of another program, whose pictures its own tools replace once they are in.
constexpr QStringView kForeignLibrary = u"AcTpCatalogRes.dll";

/// Sizes that every tool has here, the largest first: the others are made from it.
constexpr std::array kSizes = {OdTcSizeKind::kLarge, OdTcSizeKind::kNormal, OdTcSizeKind::kSmall};

constexpr qsizetype kLongestName = 80;

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

void worsen(OdTcImportedTool& row, OdTcPictureFate fate, const OdString& file) {
  if (fate <= row.picture) return;
  row.picture = fate;
  row.pictureFile = file;
}

bool isElsewhere(const OdTcImage& image) {
  return image.isResource() || image.src().compare(kForeignLibrary, Qt::CaseInsensitive) == 0;
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

/// A picture to make the missing sizes from: the largest that can be decoded.
OdTcImage* largestOf(const OdTcImageList& images) {
  OdTcImage* largest = nullptr;
  const OdTcEnumPtr<OdTcImage> all = images.enumImages();
  while (OdTcImage* const image = all->next())
    if (!isElsewhere(*image) && (!largest || image->cx() > largest->cx())) largest = image;
  return largest;
}

void addMissingSizes(OdTcImageList& images) {
  OdTcImage* const source = largestOf(images);
  if (!source || source->getBitmap().isNull()) return;
  for (const OdTcSizeKind kind : kSizes) {
    if (!images.findBySize(static_cast<std::int32_t>(kind)))
      images.add(source->cloneAtSize(static_cast<std::int32_t>(kind)));
  }
}

} // namespace

ImportPictures::ImportPictures(const OdString& file, const OdTcForeignContent& content) {
  const OdString home = odpath::folderOf(file);
  if (!content.dependentFilesPath.isNull()) {
    const OdString named = content.dependentFilesPath.trimmed();
    const std::optional<OdString> inside = insidePath(named);
    if (inside && !inside->isEmpty()) {
      addFolder(home + u'\\' + *inside);
    } else if (!named.isEmpty()) {
      m_refusedFolder = named;
      m_refusedBecause = inside ? translated(u"it is the root folder") : whyOutside(named);
    }
  }
  addFolder(home + u'\\' + odpath::titleOf(file));
  addFolder(home);
}

void ImportPictures::addFolder(const OdString& folder) {
  if (!m_folders.contains(folder)) m_folders << folder;
}

const QHash<OdString, OdString>& ImportPictures::filesIn(const OdString& folder) {
  const auto known = m_files.constFind(folder);
  if (known != m_files.constEnd()) return *known;
  QHash<OdString, OdString> names;
  for (const OdString& name : odrxSystemServices()->filesIn(folder)) names[name.toLower()] = name;
  return m_files[folder] = names;
}

OdString ImportPictures::find(const OdString& inside) {
  for (const OdString& folder : m_folders) {
    const OdString path = folder + u'\\' + inside;
    const OdString in = odpath::folderOf(path);
    const OdString name = odpath::fileNameOf(path);
    const OdString found = filesIn(in).value(name.toLower());
    if (!found.isEmpty()) return in + u'\\' + found;
    if (odrxSystemServices()->fileExists(path)) return path;
  }
  return {};
}

void ImportPictures::look(OdTcCatalogItem& item, std::uint32_t dark) { look(item, dark, m_own); }

void ImportPictures::look(OdTcCatalogItem& item, std::uint32_t dark, OdTcImportedTool& row) {
  const OdTcImageList* const images = item.images();
  if (!images) return;
  Plan plan{OdTcCatalogItemPtr(&item), &row, {}};
  struct Candidate {
    OdTcImagePtr image;
    bool isDark;
  };
  std::vector<Candidate> chosen;
  const OdTcEnumPtr<OdTcImage> all = images->enumImages();
  for (std::uint32_t bit = 1; OdTcImage* const image = all->next(); bit <<= 1) {
    const bool isDark = dark & bit;
    const auto same = std::find_if(chosen.begin(), chosen.end(), [&](const Candidate& other) {
      return sizeKey(*other.image) == sizeKey(*image);
    });
    if (same == chosen.end()) {
      chosen.push_back({OdTcImagePtr(image), isDark});
      continue;
    }
    if (isDark != same->isDark) ++m_dark;
    if (same->isDark && !isDark) *same = {OdTcImagePtr(image), false};
  }
  for (const Candidate& each : chosen) lookAt(*each.image, plan, row);
  m_plans.push_back(std::move(plan));
}

void ImportPictures::lookAt(OdTcImage& image, Plan& plan, OdTcImportedTool& row) {
  const OdString name = nameInFile(image);
  if (isElsewhere(image)) {
    plan.pictures.push_back({OdTcImagePtr(&image), name, {}});
    worsen(row, OdTcPictureFate::kResource, name);
    return;
  }
  if (name.isEmpty()) return;
  const std::optional<OdString> inside = insidePath(name);
  if (!inside) return worsen(row, OdTcPictureFate::kRefused, name);
  const OdString file = inside->isEmpty() ? OdString() : find(*inside);
  if (file.isEmpty()) return worsen(row, OdTcPictureFate::kMissing, name);
  plan.pictures.push_back({OdTcImagePtr(&image), name, file});
  worsen(row, OdTcPictureFate::kFound, name);
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
    worsen(row, OdTcPictureFate::kMissing, picture.name);
    row.reason = error.description();
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

void ImportPictures::bring(const OdString& palettesFolder, QStringList& made) {
  m_target = palettesFolder + QLatin1String("\\Images");
  m_made = &made;
  const bool hasFiles = std::any_of(m_plans.begin(), m_plans.end(), [](const Plan& plan) {
    return std::any_of(plan.pictures.begin(), plan.pictures.end(),
                       [](const Picture& picture) { return !picture.file.isEmpty(); });
  });
  if (hasFiles && !odrxSystemServices()->createFolder(m_target))
    throw OdFileError(eFileAccess, m_target, translated(u"the folder cannot be made"));
  for (const Plan& plan : m_plans) bringAll(plan);
  m_made = nullptr;
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
