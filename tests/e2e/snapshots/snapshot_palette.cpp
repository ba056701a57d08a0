// Makes a catalog of snapshots from a drawing: a tool for each of its layers, line types, text
// styles and dimension styles, which draws a line with that record in force. For the tests that
// compare what arrives in other drawings.
//
// Usage: snapshot_palette DRAWING.dxf FOLDER
#include "catalog/catalog.h"
#include "catalog/database.h"
#include "catalog/tool.h"
#include "catalog/tool_palette.h"
#include "drawing/database.h"
#include "frame/file_path.h"
#include "module/entry/class_table.h"
#include "persistence/path_operations.h"
#include "properties/database_property_impl.h"
#include "properties/property_bag.h"
#include "tools/action_agent.h"

#include <QDir>

#include <cstdio>

namespace {

using namespace tc;

struct Kind {
  QStringView element; ///< of the property, and the first word of the tools' names
  OdDbObjectId (OdDbDatabase::*table)() const;
};

constexpr Kind kKinds[] = {{u"Layer", &OdDbDatabase::getLayerTableId},
                           {u"Linetype", &OdDbDatabase::getLinetypeTableId},
                           {u"Textstyle", &OdDbDatabase::getTextStyleTableId},
                           {u"Dimstyle", &OdDbDatabase::getDimStyleTableId}};

OdTcToolPtr toolWith(QStringView element, const OdDbSymbolTableRecord& record) {
  OdTcToolPtr tool = OdTcTool::createObject();
  tool->setName(element.toString() + u' ' + record.getName());
  tool->setToolType(OdTcTool::kRegular);
  const auto agent = OdTcToolCommand::createObject();
  agent->setCommandString(QStringLiteral("_LINE 0,0 1,0;"));
  tool->setActionAgent(agent);
  const OdTcEnumPtr<OdTcProperty> properties = tool->getGeneralProperties()->enumProperties();
  while (OdTcProperty* const property = properties->next())
    if (property->elementName() == element)
      dynamic_cast<OdTcDatabasePropertyImpl&>(*property).takeRecord(record.objectId());
  return tool;
}

void writeCatalog(const OdDbDatabase& drawing, const OdString& folder) {
  const OdString file = folder + u'\\' + OdString::fromUtf16(kCatalogFileName);
  const OdTcCatalogPtr catalog = OdTcCatalog::createObject();
  catalog->setName(QStringLiteral("Snapshots"));
  catalog->save(file);
  const OdTcToolPalettePtr palette = OdTcToolPalette::createObject();
  palette->setName(QStringLiteral("Snapshots"));
  palette->suspendAutoSave();
  for (const Kind& kind : kKinds) {
    const auto table = (drawing.*kind.table)().openAs<OdDbSymbolTable>();
    for (const auto at = table->newIterator(); !at->done(); at->step())
      if (const OdDbSymbolTableRecordPtr record = at->getRecord(); !record->getName().isEmpty())
        palette->addItem(toolWith(kind.element, *record));
  }
  catalog->addPalette(palette);
  if (!palette->save()) throw OdError(eInvalidInput, palette->getDatabase()->saveProblem());
  catalog->save(file);
}

} // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: snapshot_palette DRAWING.dxf FOLDER\n", stderr);
    return 2;
  }
  registerModuleClasses();
  int result = 0;
  try {
    QDir().mkpath(QString::fromLocal8Bit(argv[2]));
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(QString::fromLocal8Bit(argv[1]));
    writeCatalog(*drawing, odpath::fromPlatform(QString::fromLocal8Bit(argv[2])));
  } catch (const OdError& error) {
    std::fprintf(stderr, "%s\n", qPrintable(error.description()));
    result = 1;
  }
  unregisterModuleClasses();
  return result;
}
