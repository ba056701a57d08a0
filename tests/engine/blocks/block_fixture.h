// A drawing with blocks, and files beside it, for tests of the commands around them.
#pragma once

#include "drafton/engine/mem_param.h"
#include "drawing/entities/attribute_definition.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/circle.h"
#include "drawing/entities/line.h"
#include "engine/support/engine_fixture.h"
#include "frame/file_path.h"

#include <QTemporaryDir>

class BlockFixture : public EngineFixture {
 protected:
  static OdDbObjectId addBlock(OdDbDatabase& drawing, const char16_t* name) {
    const auto table = drawing.getBlockTableId().openAs<OdDbBlockTable>(OdDb::kForWrite);
    const auto block = odrxMake<OdDbBlockTableRecord>();
    block->setName(OdString::fromUtf16(name));
    return table->add(block);
  }
  static OdDbBlockTableRecordPtr opened(OdDbObjectId block) {
    return block.openAs<OdDbBlockTableRecord>(OdDb::kForWrite);
  }
  /// A block with one line of length 10.
  OdDbObjectId addLineBlock(const char16_t* name) {
    const OdDbObjectId block = addBlock(database(), name);
    opened(block)->appendOdDbEntity(odrxMake<OdDbLine>(OdGePoint3d{}, OdGePoint3d{10, 0, 0}));
    return block;
  }
  static void addDefinition(OdDbObjectId block, const char16_t* tag, const char16_t* prompt,
                            const char16_t* value, bool verified = false) {
    const auto definition = odrxMake<OdDbAttributeDefinition>();
    definition->setTag(OdString::fromUtf16(tag));
    definition->setPrompt(OdString::fromUtf16(prompt));
    definition->setTextString(OdString::fromUtf16(value));
    definition->setVerifiable(verified);
    opened(block)->appendOdDbEntity(definition);
  }

  /// The platform's path of a file in the test's folder.
  QString path(const char* name) const { return m_folder.filePath(QLatin1String(name)); }
  /// A drawing file with a circle of that radius in its model space.
  void writeDrawing(const char* name, double radius, int units = 4) {
    const OdDbDatabasePtr drawing = OdDbDatabase::createDatabase();
    opened(drawing->getModelSpaceId())
        ->appendOdDbEntity(odrxMake<OdDbCircle>(OdGePoint3d{}, OdGeVector3d::zAxis(), radius));
    drawing->setSysVar(QStringLiteral("INSUNITS"), std::int64_t{units});
    drawing->writeFile(odpath::fromPlatform(path(name)));
  }

  template <class T>
  std::vector<OdSmartPtr<T>> all() {
    std::vector<OdSmartPtr<T>> found;
    const auto space = database().getCurrentSpaceId().openAs<OdDbBlockTableRecord>();
    for (auto at = space->newIterator(); !at->done(); at->step()) {
      const OdDbEntityPtr entity = at->entity();
      if (auto* const one = odrxCast<T>(entity)) found.emplace_back(one);
    }
    return found;
  }
  std::vector<OdDbBlockReferencePtr> inserts() { return all<OdDbBlockReference>(); }
  bool hasBlock(const char16_t* name) {
    return database().getBlockTableId().openAs<OdDbBlockTable>()->has(OdString::fromUtf16(name));
  }
  bool isBusy() { return document().processor().isBusy(); }

  /// Words with | between them; each is followed by Enter.
  void words(const QString& text) {
    for (const QString& word : text.split(u'|')) type(word + u'\n');
  }
  using Values = std::initializer_list<std::pair<const char16_t*, OdVariant>>;
  /// Runs a command as a module does; it asks for the `answers`.
  bool runWith(const char16_t* command, Values values, std::initializer_list<const char*> answers) {
    const KVPtr<drafton::MemParam> set = kvMake<drafton::MemParam>();
    for (const auto& [name, value] : values) set->setValue(OdString::fromUtf16(name), value);
    for (const char* answer : answers) input().lines.push_back(QLatin1String(answer));
    return document().processor().run(OdString::fromUtf16(command), set.get());
  }

 private:
  QTemporaryDir m_folder;
};
