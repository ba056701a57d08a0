// Where files keep the description of a layer: extended data of one application, whose second text
// it is.
#include "drawing/database_data.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"
#include "drawing/xdata.h"

namespace {

constexpr char kApplication[] = "AcAecLayerStandard";
constexpr int kApplicationCode = 1001;
constexpr int kTextCode = 1000;

/// The application's tags: from behind its name up to the next one's.
struct Range {
  std::vector<OdDbKeptTags::Tag>::iterator name, begin, end;
  /// The second text; `end` if there is none.
  auto text() const {
    const auto isText = [](const OdDbKeptTags::Tag& tag) { return tag.code == kTextCode; };
    const auto first = std::find_if(begin, end, isText);
    return first == end ? end : std::find_if(first + 1, end, isText);
  }
};

Range rangeIn(std::vector<OdDbKeptTags::Tag>& tags) {
  const auto isName = [](const OdDbKeptTags::Tag& tag) { return tag.code == kApplicationCode; };
  const auto name = std::find_if(tags.begin(), tags.end(), [&](const OdDbKeptTags::Tag& tag) {
    return isName(tag) && tag.value.trimmed() == kApplication;
  });
  if (name == tags.end()) return {name, name, name};
  return {name, name + 1, std::find_if(name + 1, tags.end(), isName)};
}

} // namespace

OdString OdDbLayerTableRecord::description() const {
  if (!residue() || residue()->xdata.isEmpty()) return {};
  OdDbKeptTags tags(residue()->xdata);
  const Range range = rangeIn(tags.tags);
  const auto text = range.text();
  if (text == range.end) return {};
  return oddb::textOfKept(text->value, database());
}

void OdDbLayerTableRecord::setDescription(const OdString& text) {
  const OdString line = oddxf::oneLine(text);
  if (line == description()) return;
  QByteArray& xdata = editResidue().xdata;
  OdDbKeptTags tags(xdata);
  Range range = rangeIn(tags.tags);
  if (range.name == tags.tags.end()) {
    tags.tags.push_back({kApplicationCode, kApplication});
    range = rangeIn(tags.tags);
  }
  if (const auto at = range.text(); at != range.end) {
    at->value = oddb::keptText(line);
  } else {
    // The first text is the name of the standard that the layer follows.
    std::vector<OdDbKeptTags::Tag> added{{kTextCode, oddb::keptText(line)}};
    const bool hasFirst = std::any_of(
        range.begin, range.end, [](const OdDbKeptTags::Tag& tag) { return tag.code == kTextCode; });
    if (!hasFirst) added.insert(added.begin(), {kTextCode, QByteArray()});
    tags.tags.insert(range.end, added.begin(), added.end());
  }
  range = rangeIn(tags.tags);
  const bool saysNothing = std::all_of(range.begin, range.end, [](const OdDbKeptTags::Tag& tag) {
    return tag.code == kTextCode && tag.value.trimmed().isEmpty();
  });
  if (saysNothing) tags.tags.erase(range.name, range.end);
  xdata = tags.lines();
  if (database() && !line.isEmpty()) registerDescriptions();
}

void OdDbLayerTableRecord::registerDescriptions() {
  const auto table = database()->getRegAppTableId().openAs<OdDbRegAppTable>(OdDb::kForWrite);
  const OdString name = OdString::fromLatin1(kApplication);
  if (table->has(name)) return;
  const auto record = odrxMake<OdDbRegAppTableRecord>();
  record->setName(name);
  table->add(record);
}
