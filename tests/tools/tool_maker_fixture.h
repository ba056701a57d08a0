// A drawing and a folder of which tools are made.
#pragma once

#include "catalog/palette_manager.h"
#include "drawing/database.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/raster_image.h"
#include "frame/file_path.h"
#include "images/image_list.h"
#include "properties/property_bag.h"
#include "support/module_fixture.h"

#include <QFile>
#include <QTemporaryDir>

namespace testhost {

using namespace Qt::StringLiterals;

/// The document "plan.dxf" of the host, a menu with one command, and short ways to fill both.
struct ToolMakerFixture : ModuleFixture {
  ToolMakerFixture() {
    document.databaseOfDocument = drawing;
    host().menu.entries = {{.isCommand = false,
                            .commandName = u"LINE"_s,
                            .label = u"Draw"_s,
                            .shortText = {},
                            .macro = {}},
                           {.isCommand = true,
                            .commandName = u"LINE"_s,
                            .label = u"Line"_s,
                            .shortText = u"&Draw a line"_s,
                            .macro = u"^C^C_LINE "_s}};
  }

  tc::OdTcPaletteManager& manager() { return *tc::OdTcPaletteManager::instance(); }
  OdString stored(const QString& name) const { return odpath::fromPlatform(folder.filePath(name)); }
  OdString write(const QString& name, const QByteArray& bytes) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return stored(name);
  }
  OdString writePicture(const QString& name) const {
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::red);
    EXPECT_TRUE(picture.save(folder.filePath(name)));
    return stored(name);
  }
  OdDbBlockTableRecordPtr addBlock(const OdString& name, bool hasContents = true) const {
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(name);
    drawing->getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite)->add(block);
    if (hasContents)
      block->appendOdDbEntity(odrxMake<OdDbCircle>(OdGePoint3d(), OdGeVector3d::zAxis(), 5.0));
    return block;
  }
  OdDbObjectId add(OdDbEntity* entity) const {
    return drawing->getModelSpaceId()
        .openAs<OdDbBlockTableRecord>(OdDb::kForWrite)
        ->appendOdDbEntity(entity);
  }
  /// An image of a picture with the name "Site".
  OdDbRasterImagePtr addImage(const OdString& path) const {
    const auto definition = odrxMake<OdDbRasterImageDef>();
    definition->setSourceFileName(path);
    const auto image = odrxMake<OdDbRasterImage>();
    image->setImageDefId(OdDbRasterImageDef::createImageDictionary(*drawing)
                             .openAs<OdDbDictionary>(OdDb::kForWrite)
                             ->setAt(u"Site"_s, definition));
    add(image);
    return image;
  }
  /// The document gets a file, and its drawing is that of the file.
  void save(const QString& name = u"plan.dxf"_s) {
    document.filePath = stored(name);
    drawing->writeFile(document.filePath);
    drawing->setFileName(document.filePath);
  }
  template <class Agent>
  const Agent& agentOf(const tc::OdTcToolPtr& tool) {
    return dynamic_cast<const Agent&>(*tool->getActionAgent());
  }
  static QStringList sizesOf(const tc::OdTcToolPtr& tool) {
    QStringList sizes;
    if (!tool->images()) return sizes;
    const auto all = tool->images()->enumImages();
    while (const tc::OdTcImage* image = all->next()) sizes << OdString::number(image->cx());
    return sizes;
  }
  QStringList boxes() const {
    QStringList texts;
    for (const auto& box : host().messages.boxes) texts << box.caption + u": "_s + box.text;
    return texts;
  }
  static OdString general(const tc::OdTcToolPtr& tool, const OdString& label) {
    return tool->getGeneralProperties()->findByName(label)->getValue().toString();
  }

  const QStringList kThree{u"16"_s, u"32"_s, u"64"_s};
  QTemporaryDir folder;
  OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
  TestDocument& document = host().documents.open(u"plan.dxf"_s);
};

} // namespace testhost
