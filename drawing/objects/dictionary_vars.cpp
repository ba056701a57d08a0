#include "drawing/objects/dictionary_vars.h"

#include "drawing/database_data.h"
#include "drawing/dxf/colors.h"

namespace {

const QLatin1String kVariables("AcDbVariableDictionary");
const QLatin1String kExactColor("OD_CECOLOR");
const QLatin1String kExactTransparency("OD_CETRANSPARENCY");

/// Digits of a whole value.
constexpr qsizetype kDigits = 8;

/// What a text begins with, as the whole value of a colour or transparency.
std::optional<std::uint32_t> wholeValue(const OdString& text) {
  bool ok = false;
  const std::uint32_t value = QStringView(text).left(kDigits).toUInt(&ok, 16);
  return ok ? std::optional(value) : std::nullopt;
}

/// Leaves changes out of undo while those of variables are: these objects are variables as well.
class AsVariable {
 public:
  explicit AsVariable(OdDbDatabase& database)
    : m_undo(database.data().undo)
    , m_former(m_undo.record(false)) {
    m_undo.record(m_former && m_undo.recordsVariables());
  }
  ~AsVariable() { m_undo.record(m_former); }
  AsVariable(const AsVariable&) = delete;
  AsVariable& operator=(const AsVariable&) = delete;

 private:
  OdDbUndo& m_undo;
  bool m_former;
};

OdString shownValue(std::uint32_t value) {
  return OdString::number(value, 16).toUpper().rightJustified(kDigits, u'0');
}

} // namespace

OdString oddb::dictionaryVar(const OdDbDatabase& database, const OdString& name) {
  const OdDbObjectPtr rootObject = database.getNamedObjectsDictionaryId().openObject();
  const auto* const root = odrxCast<OdDbDictionary>(rootObject.get());
  const OdDbObjectPtr varsObject = root ? root->getAt(kVariables).openObject() : nullptr;
  const auto* const vars = odrxCast<OdDbDictionary>(varsObject.get());
  const OdDbObjectPtr varObject = vars ? vars->getAt(name).openObject() : nullptr;
  const auto* const var = odrxCast<OdDbDictionaryVar>(varObject.get());
  return var ? var->value() : OdString();
}

void oddb::setDictionaryVar(OdDbDatabase& database, const OdString& name, const OdString& text) {
  if (text == dictionaryVar(database, name)) return;
  const AsVariable unrecorded(database);
  const OdDbDictionaryPtr root =
      database.getNamedObjectsDictionaryId().safeOpenObject(OdDb::kForWrite);
  OdDbObjectId varsId = root->getAt(kVariables);
  if (!odrxCast<OdDbDictionary>(varsId.openObject().get()))
    varsId = root->setAt(kVariables, odrxMake<OdDbDictionary>());
  const OdDbDictionaryPtr vars = varsId.safeOpenObject(OdDb::kForWrite);
  OdDbObjectId id = vars->getAt(name);
  if (text.isEmpty()) {
    id.safeOpenObject(OdDb::kForWrite)->erase();
    return;
  }
  if (!odrxCast<OdDbDictionaryVar>(id.openObject().get()))
    id = vars->setAt(name, odrxMake<OdDbDictionaryVar>());
  id.openAs<OdDbDictionaryVar>(OdDb::kForWrite)->setValue(text);
}

void oddb::keepExactColor(OdDbDatabase& database) {
  const OdCmColor color = database.currentColor();
  OdString text;
  if (color.isByColor() || color.hasNames()) text = shownValue(color.color());
  if (color.hasNames()) text += u' ' + oddxf::colorNames(color);
  setDictionaryVar(database, kExactColor, text);
}

OdCmColor oddb::exactColor(const OdDbDatabase& database, const OdCmColor& byIndex) {
  const OdString text = dictionaryVar(database, kExactColor);
  const std::optional<std::uint32_t> value = wholeValue(text);
  if (!value) return byIndex;
  OdCmColor exact;
  exact.setColor(*value);
  // Behind a blank.
  if (text.size() > kDigits + 1) oddxf::setColorNames(exact, text.mid(kDigits + 1));
  return exact.colorIndex() == byIndex.colorIndex() ? exact : byIndex;
}

void oddb::keepExactTransparency(OdDbDatabase& database, OdCmTransparency transparency) {
  const bool isWhole = transparency.method() != OdCmTransparency::kByAlpha ||
                       OdCmTransparency::fromPercent(transparency.percent()) == transparency;
  setDictionaryVar(database, kExactTransparency,
                   isWhole ? OdString() : shownValue(transparency.value()));
}

OdCmTransparency oddb::exactTransparency(const OdDbDatabase& database, OdCmTransparency byPercent) {
  const std::optional<std::uint32_t> value =
      wholeValue(dictionaryVar(database, kExactTransparency));
  if (!value) return byPercent;
  const OdCmTransparency exact = OdCmTransparency::fromValue(*value);
  const bool agrees =
      exact.method() == byPercent.method() && exact.percent() == byPercent.percent();
  return agrees ? exact : byPercent;
}
