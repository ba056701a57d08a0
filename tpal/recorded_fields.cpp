#include "tpal/recorded_fields.h"

#include "catalog/inside_folder.h"
#include "frame/file_path.h"
#include "images/image_list.h"
#include "persistence/filer.h"
#include "persistence/path_operations.h"
#include "tools/action_agent.h"
#include "tools/tool_source.h"
#include "tpal/loaded_catalog.h"

#include <algorithm>

namespace tpal {
namespace {

/// Of each item its own, or not the user's.
constexpr QLatin1String kPassedOver[] = {QLatin1String("Revision"), QLatin1String("ItemID"),
                                         QLatin1String("Time")};

/// Takes the fields that an object writes, and no files: what it would read is nothing.
class FieldRecorder final : public tc::OdTcFiler {
 public:
  bool openCatalog(OdStreamBuf*, tc::OdTcPersist*, bool) override { return false; }
  bool openPalette(OdStreamBuf*, tc::OdTcPersist*, bool) override { return false; }
  void pushObject(tc::OdTcPersist*) override {}
  void popObject(bool) override {}
  bool readElement(tc::OdTcFieldMap&) override { return false; }
  bool readAttributes(tc::OdTcFieldMap&) override { return false; }
  tc::OdTcPersistPtr readObject(tc::OdTcPersist*) override { return nullptr; }
  QByteArray takeDeferred() override { return {}; }
  void flush() override {}
  bool isConverted() const override { return false; }
  tc::OdTcPersist* currentObject() const override { return nullptr; }
  bool advance() override { return false; }
  bool atEnd() const override { return true; }
  OdString problem() const override { return {}; }
  tc::OdTcFieldMap& scratchMap() override { return m_scratch; }

  void writeObject(tc::OdTcPersist* object) override {
    if (!object) return;
    if (const auto* const images = odrxCast<tc::OdTcImageList>(object)) {
      // Pictures that are written come on the disk.
      forEach(images->enumImages(),
              [&](tc::OdTcImage* image) { note(QStringLiteral("Images/Image"), image->src()); });
      return;
    }
    writeBelow(object->elementName(), [&] { object->write(this); });
  }
  void writeAttributes(const tc::OdTcFieldMap& map) override {
    for (const auto& [name, value] : map) writeAttribute(name, value);
  }
  void writeAttribute(const OdString& name, const OdVariant& value) override { take(name, value); }
  void writeElementAttribute(const OdString& element, const OdString& attribute,
                             const OdVariant& value) override {
    writeBelow(element, [&] { take(attribute, value); });
  }
  void writeElementAttributes(const OdString& element, const tc::OdTcFieldMap& map) override {
    writeBelow(element, [&] { writeAttributes(map); });
  }
  void writeElement(const OdString& element, const OdVariant& value, bool) override {
    take(element, value);
  }

  QMap<OdString, OdString> fields;
  OdString home;
  const tc::OdTcToolActionAgent* agent = nullptr; ///< whose source it is

 private:
  static bool isPassedOver(const OdString& name) {
    return std::ranges::find(kPassedOver, name) != std::end(kPassedOver);
  }
  template <class Write>
  void writeBelow(const OdString& element, const Write& write) {
    if (isPassedOver(element)) return;
    const OdString around = m_place;
    m_place += element + u'/';
    write();
    m_place = around;
  }
  void take(const OdString& name, const OdVariant& value) {
    if (auto* const object = odrxCast<tc::OdTcPersist>(value.object()))
      writeObject(object);
    else if (!isPassedOver(name))
      note(name, value.toString());
  }
  void note(const OdString& name, const OdString& value) {
    // Of several of one name each has its number.
    OdString place = m_place + name;
    for (int number = 2; fields.contains(place); ++number)
      place = m_place + name + QStringLiteral(" %1").arg(number);
    fields.insert(place, name == QLatin1String("SourceFile") ? fromHome(value) : value);
  }
  OdString fromHome(const OdString& value) const {
    OdString path = tc::expandedStoredPath(value);
    if (agent) path = tc::sourceFromPalette(*agent, path);
    if (odpath::isRelative(path)) return value; // none, or one that is not found
    tc::normalizePath(path);
    OdString relative;
    const bool isBelow =
        tc::isInsideFolder(path, home) && tc::makeRelativePath(path, home, relative);
    return isBelow ? relative : path;
  }

  OdString m_place;
  tc::OdTcFieldMap m_scratch;
};

} // namespace

QMap<OdString, OdString> fieldsOf(tc::OdTcTool& tool, const OdString& home) {
  const auto recorder = odrxMake<FieldRecorder>();
  recorder->home = home;
  recorder->agent = tool.getActionAgent();
  tool.write(recorder.get());
  return recorder->fields;
}

} // namespace tpal
