#include "properties/database_property_impl.h"

#include "drawing/database.h"
#include "drawing/entities/entity.h"
#include "host/host_locator.h"
#include "module/persist_cast.h"
#include "module/string_table.h"
#include "persistence/filer.h"
#include "properties/color_value.h"
#include "properties/owned_part.h"
#include "properties/owner_item.h"
#include "properties/property_basic_info_impl.h"
#include "properties/stored_field.h"
#include "properties/value_words.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <variant>

namespace tc {

/// The property as the host sees it. It has no count of its own: the property's two operations of
/// these names give nothing back, and so cannot be the host's themselves.
class OdTcDatabasePropertyImpl::Component final : public IKVUnknown {
 public:
  static constexpr KVInterfaceId kPropertyId = "OdTcDatabaseProperty";

  explicit Component(OdTcDatabasePropertyImpl& property)
    : m_property(property) {}

  bool queryInterface(KVInterfaceId id, void** out) override {
    *out = id == IKVUnknown::kId ? static_cast<void*>(static_cast<IKVUnknown*>(this))
           : id == kPropertyId   ? static_cast<void*>(&m_property)
                                 : nullptr;
    if (*out) addRef();
    return *out != nullptr;
  }
  unsigned long addRef() override {
    m_property.OdRxObject::addRef();
    return static_cast<unsigned long>(m_property.numRefs());
  }
  unsigned long release() override {
    const auto left = static_cast<unsigned long>(m_property.numRefs() - 1);
    m_property.OdRxObject::release();
    return left;
  }

 private:
  OdTcDatabasePropertyImpl& m_property;
};

/// What only a run or the inspector needs.
struct OdTcDatabasePropertyImpl::Extras {
  CurrentValue saved;
  bool isImposed = false;
  std::unique_ptr<Component> component;
};

OdTcDatabasePropertyImpl::OdTcDatabasePropertyImpl() = default;
OdTcDatabasePropertyImpl::~OdTcDatabasePropertyImpl() = default;

OdTcDatabasePropertyImpl::Extras& OdTcDatabasePropertyImpl::extras() {
  if (!m_extras) m_extras = std::make_unique<Extras>();
  return *m_extras;
}

IKVUnknown* OdTcDatabasePropertyImpl::component() {
  Extras& more = extras();
  if (!more.component) more.component = std::make_unique<Component>(*this);
  return more.component.get();
}

OdTcDatabasePropertyImpl* OdTcDatabasePropertyImpl::fromComponent(IKVUnknown* component) {
  void* found = nullptr;
  if (!component || !component->queryInterface(Component::kPropertyId, &found)) return nullptr;
  auto* const property = static_cast<OdTcDatabasePropertyImpl*>(found);
  component->release();
  return property;
}

OdString OdTcDatabasePropertyImpl::elementName() const { return staticName(kind().element); }

OdString OdTcDatabasePropertyImpl::getDisplayName() const {
  const QStringView label = kind().label;
  return label.isEmpty() ? OdString() : host::translate(label.toString());
}

// --- records

OdTcPropertyBasicInfo* OdTcDatabasePropertyImpl::getBasicInfo() const {
  if (!m_basicInfo)
    m_basicInfo =
        adoptPart(OdTcPropertyBasicInfoPtr(odrxMake<OdTcPropertyBasicInfoImpl>()), self());
  return m_basicInfo;
}

OdTcPropertyCreateInfo* OdTcDatabasePropertyImpl::getCreateInfo() const {
  if (!m_createInfo && kind().makeCreateInfo)
    m_createInfo = adoptPart(kind().makeCreateInfo(), self());
  return m_createInfo;
}

OdTcPropertyCreateInfoBase* OdTcDatabasePropertyImpl::createInfo() const {
  return static_cast<OdTcPropertyCreateInfoBase*>(m_createInfo.get());
}

OdTcRecordCreateInfo* OdTcDatabasePropertyImpl::recordInfo() const {
  return kind().record ? static_cast<OdTcRecordCreateInfo*>(m_createInfo.get()) : nullptr;
}

void OdTcDatabasePropertyImpl::setCreateInfo(const OdTcPropertyCreateInfoPtr& info) {
  m_createInfo = adoptPart(info, this);
}

bool OdTcDatabasePropertyImpl::hasColor() const {
  return kind().makeCreateInfo && !kind().record && m_createInfo && !createInfo()->isEmpty();
}

OdCmColor OdTcDatabasePropertyImpl::color() const {
  return hasColor() ? static_cast<OdTcColorPropertyCreateInfoImpl*>(m_createInfo.get())->color()
                    : OdCmColor();
}

void OdTcDatabasePropertyImpl::setColor(const OdCmColor& color) {
  auto info = odrxMake<OdTcColorPropertyCreateInfoImpl>();
  info->setColor(color);
  setCreateInfo(info);
  getBasicInfo()->setUnspecified(false);
}

OdString OdTcDatabasePropertyImpl::text() const {
  return m_basicInfo ? m_basicInfo->value().toString() : OdString();
}

void OdTcDatabasePropertyImpl::setText(const OdString& text) {
  getBasicInfo()->setValue(text);
  m_basicInfo->setUnspecified(false);
}

OdTcSymbolTableRecord* OdTcDatabasePropertyImpl::record() const {
  return recordInfo() ? recordInfo()->record() : nullptr;
}

void OdTcDatabasePropertyImpl::takeRecord(OdDbObjectId id) {
  const OdTcSymbolTableRecordPtr snapshot = kind().record->makeRecord();
  snapshot->takeFrom(id);
  const OdTcPropertyCreateInfoPtr info = kind().makeCreateInfo();
  static_cast<OdTcRecordCreateInfo*>(info.get())->setRecord(snapshot);
  setCreateInfo(info);
  setText(snapshot->recordName());
}

void OdTcDatabasePropertyImpl::setRecordName(const OdString& name) {
  IHostDocument* const document = host::curDocument();
  const OdDbDatabase* const database = document ? document->database() : nullptr;
  const bool isWord = std::ranges::find(kind().words, QStringView(name)) != kind().words.end();
  if (database && !isWord) {
    const OdDbObjectId table = kind().record->makeRecord()->tableId(database);
    if (const OdDbObjectId found = table.openAs<OdDbSymbolTable>()->getAt(name)) {
      takeRecord(found);
      return;
    }
  }
  const OdTcSymbolTableRecord* const snapshot = record();
  // Names that differ in case only are the same record.
  if (snapshot && snapshot->recordName().compare(name, Qt::CaseInsensitive) != 0)
    m_createInfo = nullptr;
  setText(name);
}

OdDbObjectId OdTcDatabasePropertyImpl::recordIn(OdDbDatabase* database) const {
  if (!kind().record) return {};
  if (const OdTcSymbolTableRecord* const snapshot = record();
      snapshot && !snapshot->recordName().isEmpty())
    return ensureRecord(database, snapshot);
  // Without a snapshot the name alone can lead to a record that the drawing has.
  if (text().isEmpty()) return {};
  const QStringView word = storedWord(text());
  const bool isWord = std::ranges::find(kind().words, word) != kind().words.end();
  return usableRecord(kind().record->makeRecord()->tableId(database),
                      isWord ? word.toString() : text());
}

// --- a run

namespace {

/// The record without which a value cannot be put back; null if it needs none.
const OdDbObjectId* recordOf(const CurrentValue& value) {
  if (const auto* const id = std::get_if<OdDbObjectId>(&value)) return id;
  if (const auto* const style = std::get_if<CurrentDimStyle>(&value)) return &style->id;
  const auto* const style = std::get_if<CurrentPlotStyle>(&value);
  return style && style->type == OdDb::kPlotStyleNameById ? &style->id : nullptr;
}

} // namespace

bool OdTcDatabasePropertyImpl::hasSavedValue() const {
  return m_extras && m_extras->saved.index() != 0;
}

void OdTcDatabasePropertyImpl::applyToDatabase(OdDbDatabase* database) {
  const GeneralPropertyKind& row = kind();
  if (m_frozen || !database || !row.current) return;
  // Kept even if nothing is imposed: the tool's own command may change the value, and a run leaves
  // no value behind.
  extras().saved = row.current(*database);
  m_extras->isImposed = false;
  if (m_basicInfo && m_basicInfo->isUnspecified()) return;
  const CurrentValue wanted = row.wanted(*this, *database);
  if (wanted.index() == 0) return;
  m_extras->isImposed = true;
  try {
    row.setCurrent(*database, wanted);
  } catch (const OdError_NotThatKindOfClass&) {
    throw;
  } catch (const OdError& error) {
    // The run goes on without the value.
    tellFailure(QStringLiteral("\nCannot set the drawing's %s: %s"), error);
  }
}

void OdTcDatabasePropertyImpl::restoreToDatabase(OdDbDatabase* database) {
  if (m_frozen || !database || !hasSavedValue()) return;
  const CurrentValue saved = std::exchange(m_extras->saved, CurrentValue());
  const bool wasImposed = m_extras->isImposed;
  if (!m_extras->component) m_extras.reset();
  const GeneralPropertyKind& row = kind();
  // A drawing that holds the value already is not to count as changed. What was imposed can have
  // changed more than the value tells.
  if (!wasImposed && row.current(*database) == saved) return;
  // The record that was current can be gone by now: the drawing then keeps what it has.
  if (const OdDbObjectId* const id = recordOf(saved); id && !id->isValid()) return;
  try {
    row.setCurrent(*database, saved);
  } catch (const OdError& error) {
    // A file can bring values that no drawing takes back. The other properties are restored all the
    // same.
    tellFailure(QStringLiteral("\nCannot put back the drawing's %s: %s"), error);
  }
}

void OdTcDatabasePropertyImpl::tellFailure(const OdString& text, const OdError& error) const {
  host::print(formatText(host::translate(text), getDisplayName(), error.description()));
}

bool OdTcDatabasePropertyImpl::captureFromObject(const OdDbObject* object) {
  const auto* const entity = odrxCast<OdDbEntity>(object);
  return entity && kind().capture && kind().capture(*this, *entity);
}

// --- an editor

OdVariant OdTcDatabasePropertyImpl::getValue() const {
  const GeneralPropertyKind& row = kind();
  const bool usesCurrent = m_offersCurrent && m_basicInfo && m_basicInfo->isUnspecified();
  if (row.makeCreateInfo && !row.record)
    return colorToVariant(usesCurrent ? useCurrentColor() : color());
  if (usesCurrent) return useCurrentText();
  const OdTcSymbolTableRecord* const snapshot = record();
  const OdString stored =
      snapshot && !snapshot->recordName().isEmpty() ? snapshot->recordName() : text();
  for (const QStringView word : row.words)
    if (stored == word || storedWord(stored) == word) return host::translate(word.toString());
  return stored;
}

void OdTcDatabasePropertyImpl::setValue(const OdVariant& value) {
  const GeneralPropertyKind& row = kind();
  if (row.makeCreateInfo && !row.record) {
    const std::optional<OdCmColor> color = colorFromVariant(value);
    if (!color) return;
    if (isUseCurrentColor(*color))
      getBasicInfo()->setUnspecified(true);
    else
      setColor(*color);
  } else if (const OdString text = value.toString(); text == useCurrentText()) {
    getBasicInfo()->setUnspecified(true);
  } else {
    OdString stored = text;
    for (const QStringView word : row.words)
      if (text == host::translate(word.toString())) stored = word.toString();
    if (row.record)
      setRecordName(stored);
    else
      setText(stored);
  }
  markOwnerItemModified(this);
}

// --- files

void OdTcDatabasePropertyImpl::writeFields(OdTcFiler* filer) {
  // A property that nobody touched does not get records for good just because it is written.
  filer->writeObject(m_basicInfo ? m_basicInfo
                                 : OdTcPropertyBasicInfoPtr(odrxMake<OdTcPropertyBasicInfoImpl>()));
  if (m_createInfo && !createInfo()->isEmpty()) filer->writeObject(m_createInfo);
}

bool OdTcDatabasePropertyImpl::readField(const OdString& name, const OdVariant& value) {
  const GeneralPropertyKind& row = kind();
  if (name == QLatin1String("BasicPropInfo")) {
    m_basicInfo = adoptPart(persistCast<OdTcPropertyBasicInfo>(value), this);
    return true;
  }
  if (!row.makeCreateInfo || !value.isObject()) return false;
  // The element has the name of its class in our files, and a common one in those of others.
  const QStringView own = row.record ? row.record->element : QStringView(u"ColorCreateInfo");
  if (name != own && name != QLatin1String("CreateInfo")) return false;
  auto* const info = dynamic_cast<OdTcPropertyCreateInfoBase*>(value.object());
  if (!info || info->elementName() != own)
    throw OdError_NotThatKindOfClass(info ? info->elementName() : name, own.toString());
  setCreateInfo(OdTcPropertyCreateInfoPtr(info));
  return true;
}

void OdTcDatabasePropertyImpl::copyTo(OdTcDatabasePropertyImpl& copy) const {
  copy.m_basicInfo = clonePart(m_basicInfo, &copy);
  copy.m_createInfo = clonePart(m_createInfo, &copy);
  copy.m_offersCurrent = m_offersCurrent;
  copy.m_frozen = m_frozen;
}

} // namespace tc
