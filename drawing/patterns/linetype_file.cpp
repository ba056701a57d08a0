#include "drawing/patterns/linetype_file.h"

#include "drawing/database.h"
#include "drawing/patterns/file_lines.h"
#include "drawing/patterns/line_shapes.h"

#include <algorithm>

namespace {

using Dash = OdLinetypeDash;

/// Splits at commas that stand neither in brackets nor in quotes.
QStringList parts(const OdString& text) {
  QStringList result;
  OdString part;
  bool quoted = false;
  int depth = 0;
  for (const QChar c : text) {
    if (c == u'"') quoted = !quoted;
    if (!quoted && c == u'[') ++depth;
    if (!quoted && c == u']') --depth;
    if (!quoted && depth == 0 && c == u',') {
      result << part.trimmed();
      part.clear();
    } else {
      part += c;
    }
  }
  result << part.trimmed();
  return result;
}

/// What the letters in front of `=` set.
struct Setting {
  char16_t letter;
  void (*store)(Dash& dash, double value);
};

constexpr double kDegree = kOdaPi / 180;
constexpr Setting kSettings[] = {
    {u's', [](Dash& dash, double value) { dash.scale = value; }},
    {u'x', [](Dash& dash, double value) { dash.offset.x = value; }},
    {u'y', [](Dash& dash, double value) { dash.offset.y = value; }},
    {u'r',
     [](Dash& dash, double value) {
       dash.angle = value * kDegree;
       dash.rotation = Dash::Rotation::kRelative;
     }},
    {u'a',
     [](Dash& dash, double value) {
       dash.angle = value * kDegree;
       dash.rotation = Dash::Rotation::kAbsolute;
     }},
    {u'u',
     [](Dash& dash, double value) {
       dash.angle = value * kDegree;
       dash.rotation = Dash::Rotation::kUpright;
     }},
};

/// Angles may be told in radians ("1.57r") or gradians ("100g").
std::optional<double> numberOf(OdString text) {
  double factor = 1;
  if (text.endsWith(u'r', Qt::CaseInsensitive)) factor = 1 / kDegree;
  if (text.endsWith(u'g', Qt::CaseInsensitive)) factor = 0.9;
  if (factor != 1 || text.endsWith(u'd', Qt::CaseInsensitive)) text.chop(1);
  bool isNumber = false;
  const double value = text.toDouble(&isNumber) * factor;
  return isNumber && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

/// `[shape,file,s=..]` or `["text",style,s=..]`, which go with the dash before them.
bool takeOrnament(const OdString& text, Dash& dash) {
  if (!text.endsWith(u']') || !dash.text.isEmpty() || !dash.shape.isEmpty()) return false;
  const QStringList fields = parts(text.mid(1, text.size() - 2));
  if (fields.size() < 2 || fields[0].isEmpty()) return false;
  const bool isText = fields[0].startsWith(u'"');
  if (isText && (fields[0].size() < 3 || !fields[0].endsWith(u'"'))) return false;
  (isText ? dash.text : dash.shape) = isText ? fields[0].mid(1, fields[0].size() - 2) : fields[0];
  dash.source = fields[1];
  for (qsizetype i = 2; i < fields.size(); ++i) {
    const OdString& field = fields[i];
    const qsizetype equals = field.indexOf(u'=');
    if (equals != 1) return false;
    const auto setting =
        std::ranges::find(kSettings, field[0].toLower().unicode(), &Setting::letter);
    const std::optional<double> value = numberOf(field.mid(2).trimmed());
    if (setting == std::end(kSettings) || !value) return false;
    setting->store(dash, *value);
  }
  return true;
}

std::optional<OdString> takeDashes(const OdString& text, OdLinetypeDefinition& linetype) {
  QStringList fields = parts(text);
  if (fields.takeFirst().compare(u'A', Qt::CaseInsensitive) != 0 || fields.isEmpty())
    return QStringLiteral("dashes begin with A and a comma");
  for (const OdString& field : fields) {
    if (field.startsWith(u'[')) {
      if (linetype.dashes.empty() || !takeOrnament(field, linetype.dashes.back()))
        return QStringLiteral("%1 is no text or shape").arg(field);
      continue;
    }
    bool isNumber = false;
    const double length = field.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(length))
      return QStringLiteral("a dash that is no number: %1").arg(field);
    linetype.dashes.emplace_back().length = length;
  }
  if (linetype.patternLength() <= 0) return QStringLiteral("dashes that add up to nothing");
  return std::nullopt;
}

/// The text style of a name, or the entry of a shape file; made if the drawing has none.
OdDbObjectId styleFor(OdDbDatabase& database, const Dash& dash) {
  const auto table = database.getTextStyleTableId().openAs<OdDbTextStyleTable>(OdDb::kForWrite);
  if (!dash.text.isEmpty()) {
    if (const OdDbObjectId id = table->getAt(dash.source)) return id;
    auto style = odrxMake<OdDbTextStyleTableRecord>();
    style->setName(dash.source);
    return table->add(style);
  }
  for (auto it = table->newIterator(); !it->done(); it->step()) {
    const OdSmartPtr<OdDbTextStyleTableRecord> record = it->getRecord();
    if (record->isShapeFile() && record->fileName().compare(dash.source, Qt::CaseInsensitive) == 0)
      return record->objectId();
  }
  // Files give the entries of shape files no name; a table needs one.
  auto style = odrxMake<OdDbTextStyleTableRecord>();
  style->setName(dash.source);
  style->setIsShapeFile(true);
  style->setFileName(dash.source);
  return table->add(style);
}

std::uint16_t shapeNumber(const Dash& dash) {
  bool isNumber = false;
  const std::uint16_t number = dash.shape.toUShort(&isNumber);
  if (isNumber) return number;
  const OdLineShape* const shape = odpattern::findShape(dash.shape);
  return shape != nullptr ? shape->number : std::uint16_t{0};
}

} // namespace

double OdLinetypeDefinition::patternLength() const {
  double length = 0;
  for (const Dash& dash : dashes) length += std::abs(dash.length);
  return length;
}

OdDbObjectId OdLinetypeDefinition::addTo(OdDbDatabase& database) const {
  const auto table = database.getLinetypeTableId().openAs<OdDbLinetypeTable>(OdDb::kForWrite);
  if (const OdDbObjectId id = table->getAt(name)) return id;
  auto record = odrxMake<OdDbLinetypeTableRecord>();
  record->setName(name);
  record->setComments(description);
  record->setPatternLength(patternLength());
  record->setNumDashes(static_cast<int>(dashes.size()));
  for (int i = 0; i < record->numDashes(); ++i) {
    const Dash& dash = dashes[static_cast<std::size_t>(i)];
    record->setDashLengthAt(i, dash.length);
    if (dash.text.isEmpty() && dash.shape.isEmpty()) continue;
    record->setShapeStyleAt(i, styleFor(database, dash));
    record->setShapeScaleAt(i, dash.scale);
    record->setShapeRotationAt(i, dash.angle);
    record->setShapeOffsetAt(i, dash.offset);
    record->setShapeIsUcsOrientedAt(i, dash.rotation == Dash::Rotation::kAbsolute);
    record->setShapeIsUprightAt(i, dash.rotation == Dash::Rotation::kUpright);
    if (dash.text.isEmpty())
      record->setShapeNumberAt(i, shapeNumber(dash));
    else
      record->setTextAt(i, dash.text);
  }
  return table->add(record);
}

OdLinetypeFile OdLinetypeFile::read(const OdString& path) {
  return parse(odpattern::fileBytes(path));
}

OdLinetypeFile OdLinetypeFile::parse(const QByteArray& bytes) {
  OdLinetypeFile file;
  std::optional<OdLinetypeDefinition> open;
  const auto complain = [&](const odpattern::FileLine& line, const OdString& reason) {
    file.m_errors << odpattern::lineError(line, reason);
  };
  for (const odpattern::FileLine& line : odpattern::fileLines(bytes)) {
    if (line.text.startsWith(u'*')) {
      if (open) complain(line, QStringLiteral("the line type %1 has no dashes").arg(open->name));
      open.reset();
      if (const auto head = odpattern::headLine(line.text))
        open = OdLinetypeDefinition{head->first, head->second, {}};
      else
        complain(line, QStringLiteral("a line type without a name"));
      continue;
    }
    if (!open) {
      complain(line, QStringLiteral("a line that belongs to no line type"));
      continue;
    }
    if (const auto error = takeDashes(line.text, *open))
      complain(line, *error);
    else
      file.m_linetypes.push_back(std::move(*open));
    open.reset();
  }
  if (open) file.m_errors << QStringLiteral("the line type %1 has no dashes").arg(open->name);
  return file;
}

const OdLinetypeDefinition* OdLinetypeFile::find(const OdString& name) const {
  const auto found = std::ranges::find_if(m_linetypes, [&](const OdLinetypeDefinition& linetype) {
    return linetype.name.compare(name, Qt::CaseInsensitive) == 0;
  });
  return found == m_linetypes.end() ? nullptr : &*found;
}
