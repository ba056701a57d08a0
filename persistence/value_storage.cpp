#include "persistence/value_storage.h"

#include "host/host_locator.h"
#include "persistence/path_operations.h"

#include <algorithm>
#include <array>
#include <span>

namespace tc {
namespace {

constexpr std::array<QStringView, 21> kUnsupportedCommands = {
    u"imageframe",   u"MTextEdit",    u"nsf",          u"pface",
    u"qparams",      u"refclose",     u"refset",       u"SplitViewport_2",
    u"FitViewport",  u"NetLoad",      u"lsp",          u"appload",
    u"ATTRNORMAL",   u"ATTROFF",      u"ATTRON",       u"Lock_Unlock_Viewport",
    u"objeciorder1", u"objeciorder2", u"objeciorder3", u"ON_OFF_Viewport",
    u"ViewZoomScale"};

constexpr std::array<QStringView, 3> kDrawingExtensions = {u"dwg", u"dxf", u"dwf"};
constexpr std::array<QStringView, 5> kImageExtensions = {u"bmp", u"jpeg", u"tiff", u"jpg", u"png"};

// Not an object at namespace scope: the storage must not outlive what its end needs.
OdSmartPtr<OdTcValueStorageImpl>& holder() {
  static OdSmartPtr<OdTcValueStorageImpl> storage;
  return storage;
}

OdString setting(const OdString& name) {
  OdString value;
  IHostApplication* const application = host::application();
  return application && application->setting(name, value) ? value : OdString();
}

/// The extensions that a setting names, or the usual ones.
QStringList extensions(const OdString& name, std::span<const QStringView> usual) {
  QStringList all;
  for (const OdString& extension : splitPathList(setting(name)))
    if (!extension.isEmpty()) all << extension.toLower();
  if (all.isEmpty())
    for (const QStringView extension : usual) all << extension.toString();
  return all;
}

} // namespace

OdString OdTcValueStorageImpl::toolPaletteFolders() const {
  return setting(QStringLiteral("ToolPaletteDir"));
}

OdString OdTcValueStorageImpl::fontFolders() const { return setting(QStringLiteral("Shx")); }

QStringList OdTcValueStorageImpl::drawingExtensions() {
  return extensions(QStringLiteral("ToolDrawingExtensions"), kDrawingExtensions);
}

QStringList OdTcValueStorageImpl::imageExtensions() {
  return extensions(QStringLiteral("ToolImageExtensions"), kImageExtensions);
}

bool OdTcValueStorageImpl::hasOwnDisplayName(const OdString& command) {
  const auto names = splitPathList(setting(QStringLiteral("ToolCommandsByLabel")));
  return std::any_of(names.begin(), names.end(), [&](const OdString& name) {
    return name.compare(command, Qt::CaseInsensitive) == 0;
  });
}

bool OdTcValueStorageImpl::isCommandUnsupported(const OdString& name) {
  return std::find(kUnsupportedCommands.begin(), kUnsupportedCommands.end(), QStringView(name)) !=
         kUnsupportedCommands.end();
}

const QMap<OdString, OdString>& OdTcValueStorageImpl::kindNames() {
  static const QMap<OdString, OdString> names = {
      {QStringLiteral("VisualStyle"), QStringLiteral("Visual style")}};
  return names;
}

OdTcValueStorageImpl* OdTcValueStorageImpl::instance() { return holder(); }

void OdTcValueStorageImpl::setInstance(const OdSmartPtr<OdTcValueStorageImpl>& storage) {
  holder() = storage;
}

} // namespace tc
