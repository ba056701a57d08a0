// A folder with catalogs, and a module to load them.
#pragma once

#include "catalog/catalog.h"
#include "catalog/database.h"
#include "catalog/palette_manager.h"
#include "catalog/tool.h"
#include "catalog/tool_list.h"
#include "catalog/tool_palette.h"
#include "frame/file_path.h"
#include "frame/system_services.h"
#include "support/failing_services.h"
#include "support/held_clock.h"
#include "support/module_fixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace testhost {

using namespace Qt::StringLiterals;
using namespace tc;

/// The test host, under a name that is not that of the interfaces' namespace.
inline TestHost& theHost() { return host(); }

/// Prints strings as text in failure messages.
inline std::string text(const OdString& s) { return s.toStdString(); }

/// Records what an item tells its reactors: "added A", "removed B", "changed C" by name.
struct ItemLog : OdTcCatalogItemReactor {
  QStringList log;
  void itemAdded(OdTcCatalogItem* item) override { log << u"added "_s + item->name(); }
  void itemRemoved(OdTcCatalogItem* item) override { log << u"removed "_s + item->name(); }
  void itemChanged(OdTcCatalogItem* item) override { log << u"changed "_s + item->name(); }
};

template <class T>
QStringList namesOf(const OdTcEnumPtr<T>& items) {
  QStringList names;
  while (const T* item = items->next()) names << item->name();
  return names;
}

class CatalogFixture : public ModuleFixture {
 protected:
  /// What is saved twice is the same twice.
  HeldClock clock{1700000000};

  CatalogFixture() { host().application.userFolder = stored(u"user"_s); }

  /// The stored path of a file below the test's folder.
  OdString stored(const OdString& relative) const {
    return odpath::fromPlatform(m_folder.path()) + u'\\' + relative;
  }
  OdString platform(const OdString& relative) const {
    OdString inside = relative;
    return m_folder.path() + u'/' + inside.replace(u'\\', u'/');
  }
  void writeFile(const OdString& relative, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(platform(relative)).path());
    QFile file(platform(relative));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << text(relative);
    file.write(bytes);
  }
  QByteArray readFile(const OdString& relative) const {
    QFile file(platform(relative));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  bool exists(const OdString& relative) const { return QFileInfo::exists(platform(relative)); }

  static QByteArray paletteXml(const QByteArray& id, const QByteArray& name,
                               const QByteArray& tools = "<Tools/>") {
    return "<Palette><ItemID idValue=\"" + id + "\"/><Properties><ItemName>" + name +
           "</ItemName></Properties>" + tools + "</Palette>";
  }
  static QByteArray loaderXml(const QByteArray& id, const QByteArray& href) {
    return "<Palette><ItemID idValue=\"" + id + "\"/><Properties><ItemName>" + id +
           "</ItemName></Properties><Url href=\"" + href + "\"/></Palette>";
  }
  static QByteArray catalogXml(const QByteArray& loaders, const QByteArray& groups = {}) {
    return "<Catalog><ItemID idValue=\"{CATALOG}\"/><Palettes>" + loaders + "</Palettes>" +
           (groups.isEmpty() ? QByteArray() : "<Groups>" + groups + "</Groups>") + "</Catalog>";
  }
  static QByteArray groupXml(const QByteArray& id, const QByteArray& contents) {
    return "<ToolPaletteGroup><ItemID idValue=\"" + id + "\"/><Properties><ItemName>" + id +
           "</ItemName></Properties><Contents>" + contents + "</Contents></ToolPaletteGroup>";
  }

  /// A catalog `name\DrfTcCatalog.dtc` with the palettes A and B in `Palettes`.
  OdString writeTwoPalettes(const OdString& name, const QByteArray& groups = {}) const {
    writeFile(name + u"\\Palettes\\a.dtc"_s, paletteXml("A", "Alpha"));
    writeFile(name + u"\\Palettes\\b.dtc"_s, paletteXml("B", "Beta"));
    const OdString file = name + u"\\DrfTcCatalog.dtc"_s;
    writeFile(
        file,
        catalogXml(loaderXml("A", "Palettes\\a.dtc") + loaderXml("B", "Palettes\\b.dtc"), groups));
    return stored(file);
  }

  OdTcCatalogPtr load(const OdString& path) const {
    OdTcCatalogPtr catalog = OdTcCatalog::createObject();
    EXPECT_TRUE(catalog->load(path)) << text(path);
    return catalog;
  }
  OdTcGroupPtr group(const OdString& name) const {
    OdTcGroupPtr made = OdTcGroup::createObject();
    made->setName(name);
    return made;
  }
  OdTcToolPalettePtr palette(const OdString& name) const {
    OdTcToolPalettePtr made = OdTcToolPalette::createObject();
    made->setName(name);
    return made;
  }
  OdTcToolPtr tool(const OdString& name) const {
    OdTcToolPtr made = OdTcTool::createObject();
    made->setName(name);
    return made;
  }
  /// The palette of a file with these children of its root.
  OdTcToolPalettePtr loadedPalette(const QByteArray& content) const {
    writeFile(u"loaded.dtc"_s, "<Palette>" + content + "</Palette>");
    OdTcToolPalettePtr made = OdTcToolPalette::createObject();
    EXPECT_TRUE(made->load(stored(u"loaded.dtc"_s)));
    return made;
  }
  /// The one tool of a file, read from these children of its element.
  OdTcToolPtr loadedTool(const QByteArray& content) const {
    const OdTcToolPalettePtr holder = loadedPalette("<Tools><Tool>" + content + "</Tool></Tools>");
    return OdTcToolPtr(holder->getDatabase()->tools()->at(0));
  }

  /// Whether something that the user was told holds all of these texts.
  static bool wasTold(std::initializer_list<OdString> parts) {
    for (const OdString& line : host().log) {
      if (!line.startsWith(u"print")) continue;
      bool isThere = true;
      for (const OdString& part : parts) isThere = isThere && line.contains(part);
      if (isThere) return true;
    }
    return false;
  }

 private:
  QTemporaryDir m_folder;
};

} // namespace testhost
