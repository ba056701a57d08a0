// Values that the host keeps for the module: configured folders.
#pragma once

#include "module/persist_impl.h"

#include <QMap>

namespace tc {

/// Reads the configured folders from the host's application object. Without a host, or without the
/// setting, each is empty.
class OdTcValueStorageImpl : public OdTcPersistImpl<OdTcPersist> {
 public:
  /// The setting `ToolPaletteDir`: folders separated by ";".
  OdString toolPaletteFolders() const;
  /// The setting `Shx`: folders of fonts.
  OdString fontFolders() const;

  /// The extensions, in lower case, of the files that block tools and raster tools are made of:
  /// the settings `ToolDrawingExtensions` and `ToolImageExtensions`, separated by ";", or else the
  /// usual ones.
  static QStringList drawingExtensions();
  static QStringList imageExtensions();
  /// True for a command, in any case, that has a display name of its own: the label that its menu
  /// entry has in every language. They are listed, separated by ";", in the setting
  /// `ToolCommandsByLabel`.
  static bool hasOwnDisplayName(const OdString& command);

  /// True for the name (compared exactly) of a command of another program that cannot run here.
  static bool isCommandUnsupported(const OdString& name);
  /// How the kinds of tool are called that are not called as their elements are, in English.
  static const QMap<OdString, OdString>& kindNames();

  /// The storage of the process; null before the module's start and after its stop.
  static OdTcValueStorageImpl* instance();
  static void setInstance(const OdSmartPtr<OdTcValueStorageImpl>& storage);
};

} // namespace tc
