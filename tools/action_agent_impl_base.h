// What all kinds of agent share.
#pragma once

#include "host/host_locator.h"
#include "module/persist_impl.h"
#include "properties/property_bag.h"
#include "properties/property_filter.h"
#include "properties/stored_field.h"
#include "tools/action_agent.h"
#include "tools/object_property.h"

namespace tc {

/// Implements the agent's interface T. The bag and the filter are made at the first look: a catalog
/// has thousands of agents, of which the inspector shows one.
template <class T>
class OdTcToolActionAgentImplBase : public OdTcPersistImpl<T> {
 public:
  void setCommandString(const OdString& text) override { m_commandString = text; }
  OdString commandString() const override { return m_commandString; }
  OdTcPropertyBag* properties() const override {
    if (!m_properties) {
      auto* const me = const_cast<OdTcToolActionAgentImplBase*>(this);
      m_properties = OdTcPropertyBag::createObject();
      m_properties->setOwner(me);
      me->createProperties();
    }
    return m_properties;
  }
  OdTcPropertyFilter* propertyFilter() const override {
    if (!m_filter) {
      m_filter = OdTcPropertyFilter::createObject();
      m_filter->setOwner(const_cast<OdTcToolActionAgentImplBase*>(this));
      for (const QStringView name : hiddenProperties())
        m_filter->add(host::translate(name.toString()));
    }
    return m_filter;
  }
  void beginExecution(IHostDocument*) override {}
  void endExecution(IHostDocument*) override {}
  bool isSupported() const override { return true; }
  bool isSpecial() const override { return false; }
  void afterClone() override {}
  bool refreshImages(IHostDocument*) override { return false; }
  void updateFromHost() override {}
  bool onPropertyChanged(OdTcProperty*) override { return false; }

  /// Hands the kind's values to the writer.
  virtual void writeProperties(OdTcFiler*) {}
  /// Takes a value of a file; true if the name is the kind's own.
  virtual bool readProperty(const OdString&, const OdVariant&) { return false; }
  /// Makes the property list anew, in the order of the kind's table.
  virtual void createProperties() {}

  void writeFields(OdTcFiler* filer) override { writeProperties(filer); }
  bool readField(const OdString& name, const OdVariant& value) override {
    return OdTcPersistImpl<T>::readField(name, value) || readProperty(name, value);
  }

 protected:
  /// General properties that this kind hides and does not apply.
  virtual std::span<const QStringView> hiddenProperties() const { return {}; }

  /// What createProperties does for a table of properties. Nothing as long as nobody has looked.
  void fillProperties(std::span<const ObjectPropertyRow> rows) {
    if (!m_properties) return;
    m_properties->clear();
    for (const ObjectPropertyRow& row : rows) {
      const OdTcPropertyPtr property = row.make(row.caption);
      property->setOwner(this);
      m_properties->add(property);
    }
  }

  /// Ends a clone: what all kinds share goes to the copy.
  template <class Impl>
  OdRxObjectPtr finishClone(const OdSmartPtr<Impl>& copy) const {
    copy->setOwner(this->owner());
    copy->m_commandString = m_commandString;
    copy->afterClone();
    return copy;
  }

 private:
  OdString m_commandString;
  mutable OdTcPropertyBagPtr m_properties;
  mutable OdTcPropertyFilterPtr m_filter;
};

/// The general properties that block, hatch and raster tools hide.
inline constexpr std::array<QStringView, 3> kHiddenByInsertion = {
    u"General.Dimstyle", u"General.Text style", u"General.Linetype scale"};

/// Writes each value as a child with a text, in the table's order. An element without a text would
/// end the reading of the agent; so an empty text is left out, or stands as an attribute where a
/// new agent has another text.
template <class Fields>
void writeAgentFields(OdTcFiler* filer, const Fields& fields,
                      std::span<const StoredField<Fields>> table) {
  static const Fields kFresh;
  for (const StoredField<Fields>& field : table) {
    const OdVariant value = storedValue(fields, field);
    if (!value.isText() || !value.toString().isEmpty())
      filer->writeElement(staticName(field.name), value);
    else if (!storedValue(kFresh, field).toString().isEmpty())
      filer->writeAttribute(staticName(field.name), value);
  }
}

} // namespace tc
