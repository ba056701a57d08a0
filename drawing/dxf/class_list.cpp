#include "drawing/dxf/class_list.h"

#include "drawing/database_data.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/text.h"

#include <set>

namespace {

struct ClassInfo {
  const char* dxfName;
  const char* cppName;
  const char* application;
  int flags;
  bool isEntity;
};

constexpr char kCore[] = "ObjectDBX Classes";
constexpr char kImages[] = "ISM";

// The classes that programs do not know by themselves.
constexpr ClassInfo kClasses[] = {
    {"ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault", kCore, 0, false},
    {"ACDBPLACEHOLDER", "AcDbPlaceHolder", kCore, 0, false},
    {"ARC_DIMENSION", "AcDbArcDimension", "ACDB_ARCDIMENSION_CLASS", 0, true},
    {"DICTIONARYVAR", "AcDbDictionaryVar", kCore, 0, false},
    {"IMAGE", "AcDbRasterImage", kImages, 127, true},
    {"IMAGEDEF", "AcDbRasterImageDef", kImages, 0, false},
    {"IMAGEDEF_REACTOR", "AcDbRasterImageDefReactor", kImages, 1, false},
    {"LAYOUT", "AcDbLayout", kCore, 0, false},
    {"MATERIAL", "AcDbMaterial", kCore, 1153, false},
    {"MLEADERSTYLE", "AcDbMLeaderStyle", "ACDB_MLEADERSTYLE_CLASS", 4095, false},
    {"RASTERVARIABLES", "AcDbRasterVariables", kImages, 0, false},
    {"SCALE", "AcDbScale", kCore, 1153, false},
    {"SORTENTSTABLE", "AcDbSortentsTable", kCore, 0, false},
    {"TABLESTYLE", "AcDbTableStyle", kCore, 4095, false},
    {"VISUALSTYLE", "AcDbVisualStyle", kCore, 4095, false},
    {"WIPEOUTVARIABLES", "AcDbWipeoutVariables", "WipeOut", 0, false},
};

const ClassInfo* infoOf(std::string_view name) {
  const auto* const at = std::find_if(std::begin(kClasses), std::end(kClasses),
                                      [&](const ClassInfo& c) { return name == c.dxfName; });
  return at == std::end(kClasses) ? nullptr : at;
}

void addClass(QByteArray& lines, const ClassInfo& info) {
  const auto add = [&](int code, std::string_view value) { oddxf::addLines(lines, code, value); };
  add(0, "CLASS");
  add(1, info.dxfName);
  add(2, info.cppName);
  add(3, info.application);
  add(90, std::to_string(info.flags));
  add(91, "0");
  add(280, "0");
  add(281, info.isEntity ? "1" : "0");
}

} // namespace

QByteArray oddxf::missingClasses(const OdDbDatabase& database) {
  std::set<QByteArray> told;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(database.data().classes).tags)
    if (tag.code == 1) told.insert(tag.value.trimmed().toUpper());
  std::set<std::string_view> used;
  const OdDbStubPool& stubs = database.data().stubs;
  const char* last = nullptr;
  for (std::uint32_t i = 0; i < stubs.size(); ++i) {
    const OdDbObject* const object = stubs[i].object.get();
    if (!object || object->isErased()) continue;
    // Neighbours are mostly of one class.
    const char* const name = object->dxfName();
    if (name != last) used.insert(name);
    last = name;
  }
  QByteArray lines;
  for (const std::string_view name : used)
    if (const ClassInfo* const info = infoOf(name); info && !told.contains(info->dxfName))
      addClass(lines, *info);
  return lines;
}

bool oddxf::isLeftOut(OdDbObjectId id, const std::unordered_set<OdDbObjectId>& blocks) {
  if (const OdDbDatabase* const database = id.database();
      database && database->data().transient.contains(id))
    return true;
  // Owners that go round in a circle own nothing.
  constexpr int kDeepest = 64;
  for (int depth = 0; depth < kDeepest; ++depth) {
    const OdDbObjectPtr object = id.openObject(OdDb::kForRead, true);
    if (!object) return false;
    if (object->isErased() || (!blocks.empty() && blocks.contains(id))) return true;
    id = object->ownerId();
  }
  return false;
}
