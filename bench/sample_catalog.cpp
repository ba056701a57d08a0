#include "bench/sample_catalog.h"

#include "catalog/database.h"
#include "catalog/tool.h"
#include "frame/file_path.h"
#include "module/entry/class_table.h"
#include "persistence/path_operations.h"
#include "tools/action_agent.h"

#include <QDir>
#include <QDirIterator>

namespace bench {

Classes::Classes() { tc::registerModuleClasses(); }
Classes::~Classes() { tc::unregisterModuleClasses(); }

tc::OdTcToolPalettePtr makePalette(const OdString& name, int tools) {
  tc::OdTcToolPalettePtr palette = tc::OdTcToolPalette::createObject();
  palette->setName(name);
  palette->suspendAutoSave();
  for (int i = 0; i < tools; ++i) {
    const tc::OdTcToolPtr tool = tc::OdTcTool::createObject();
    tool->setName(QStringLiteral("Tool %1 of %2").arg(i).arg(name));
    tool->setDescription(QStringLiteral("Draws a line of %1 units").arg(i));
    tool->setToolType(tc::OdTcTool::kRegular);
    const OdSmartPtr<tc::OdTcToolCommand> agent = tc::OdTcToolCommand::createObject();
    agent->setCommandString(QStringLiteral("^C^C_LINE 0,0 %1,0;").arg(i));
    tool->setActionAgent(agent);
    palette->addItem(tool);
  }
  return palette;
}

OdString writeCatalog(const OdString& folder, int palettes, int tools) {
  const OdString file =
      odpath::fromPlatform(folder) + u'\\' + OdString::fromUtf16(tc::kCatalogFileName);
  const tc::OdTcCatalogPtr catalog = tc::OdTcCatalog::createObject();
  catalog->setName(QStringLiteral("Benchmark"));
  catalog->save(file);
  for (int i = 0; i < palettes; ++i) {
    const tc::OdTcToolPalettePtr palette = makePalette(QStringLiteral("Palette %1").arg(i), tools);
    catalog->addPalette(palette);
    if (!palette->save()) qFatal("%s", qPrintable(palette->getDatabase()->saveProblem()));
  }
  catalog->save(file);
  return file;
}

QStringList catalogFiles(const OdString& folder) {
  QStringList files;
  QDirIterator walk(folder, {QStringLiteral("*.dtc")}, QDir::Files, QDirIterator::Subdirectories);
  while (walk.hasNext()) files << walk.next();
  return files;
}

} // namespace bench
