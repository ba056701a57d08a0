#include "drawing/xdata.h"

#include "drawing/database_data.h"
#include "drawing/dxf/johab.h"
#include "drawing/dxf/residue.h"
#include "drawing/dxf/text.h"

#include <QStringDecoder>

namespace {

constexpr int kApplication = 1001;

using Tags = std::vector<OdDbKeptTags::Tag>;

/// From an application's name to the next one; both `end()` if it is not there.
std::pair<Tags::iterator, Tags::iterator> rangeOf(Tags& tags, const char* application) {
  const auto begin = std::find_if(tags.begin(), tags.end(), [&](const auto& tag) {
    return tag.code == kApplication && tag.value.trimmed() == application;
  });
  if (begin == tags.end()) return {begin, begin};
  return {begin, std::find_if(begin + 1, tags.end(),
                              [](const auto& tag) { return tag.code == kApplication; })};
}

void registerApplication(OdDbDatabase& database, const OdString& name) {
  const auto table = database.getRegAppTableId().openAs<OdDbRegAppTable>(OdDb::kForWrite);
  if (name.isEmpty() || table->has(name)) return;
  const auto record = odrxMake<OdDbRegAppTableRecord>();
  record->setName(name);
  table->add(record);
}

} // namespace

std::vector<OdDbKeptTags::Tag> oddb::xdataOf(const OdDbObject& object, const char* application) {
  if (!object.residue() || object.residue()->xdata.isEmpty()) return {};
  OdDbKeptTags kept(object.residue()->xdata);
  const auto [begin, end] = rangeOf(kept.tags, application);
  return begin == end ? Tags() : Tags(begin + 1, end);
}

void oddb::setXData(OdDbObject& object, const char* application, const Tags& tags) {
  if (tags.empty() && !object.residue()) return;
  OdDbKeptTags kept(object.residue() ? object.residue()->xdata : QByteArray());
  const auto [begin, end] = rangeOf(kept.tags, application);
  auto at = kept.tags.erase(begin, end);
  if (!tags.empty()) {
    at = kept.tags.insert(at, {kApplication, application});
    kept.tags.insert(at + 1, tags.begin(), tags.end());
  }
  object.editResidue().xdata = kept.lines();
  if (object.database() && !tags.empty())
    registerApplication(*object.database(), textOfKept(application, object.database()));
}

QByteArray oddb::keptText(const OdString& text) {
  QByteArray bytes;
  for (const QChar c : text) {
    if (c >= u' ' && c <= u'~')
      bytes += static_cast<char>(c.unicode());
    else
      bytes += "\\U+" + QByteArray::number(c.unicode(), 16).rightJustified(4, '0').toUpper();
  }
  return bytes;
}

OdString oddb::textOfKept(const QByteArray& line, const OdDbDatabase* database) {
  const QByteArray encoding = database ? database->data().encoding : QByteArray("UTF-8");
  bool isBad = false;
  if (encoding == oddxf::kJohab) return oddxf::withoutEscapes(oddxf::fromJohab(line, isBad));
  QStringDecoder decoder(encoding.constData());
  return oddxf::withoutEscapes(decoder.decode(line));
}

void oddb::registerApplications(const OdDbObject& object) {
  if (!object.residue() || !object.database()) return;
  for (const OdDbKeptTags::Tag& tag : OdDbKeptTags(object.residue()->xdata).tags)
    if (tag.code == kApplication)
      registerApplication(*object.database(), textOfKept(tag.value.trimmed(), object.database()));
}
