// Class descriptions: run-time names, bases and factories.
#pragma once

#include "frame/rx_object.h"

/// Makes a new object with a reference count of 1, which the caller owns.
using OdRxFactory = OdRxObject* (*)();

/// The run-time description of one class.
class OdRxClass : public OdRxObject {
 public:
  const OdString& name() const { return m_name; }
  /// The name of the module that registered the class; may be empty.
  const OdString& appName() const { return m_appName; }
  OdRxClass* parent() const { return m_parent; }
  bool hasFactory() const { return m_factory != nullptr; }
  /// True if this is `other` or derives from it; `other` may be null (never matches).
  bool isDerivedFrom(const OdRxClass* other) const {
    for (const OdRxClass* c = this; c; c = c->m_parent)
      if (c == other) return true;
    return false;
  }
  /// A new object through the factory, or null if the class has none.
  OdRxObjectPtr create() const;

  OdRxClass* isA() const override;
  using OdRxDescribed = OdRxClass;
  static OdRxClass* desc();

 private:
  friend class OdRxClassDictionary;
  OdRxClass(OdString name, OdString appName, OdRxClass* parent, OdRxFactory factory)
    : m_name(std::move(name))
    , m_appName(std::move(appName))
    , m_parent(parent)
    , m_factory(factory) {}

  OdString m_name;
  OdString m_appName;
  OdRxClass* m_parent;
  OdRxFactory m_factory;
};

/// Registers a class under `name`. The process has one dictionary of classes, shared by the host
/// and every module. Raises OdError(eClassAlreadyRegistered) if the name is taken.
OdRxClass* newOdRxClass(const OdString& name, OdRxClass* parent, OdRxFactory factory = nullptr,
                        const OdString& appName = OdString());

/// Deletes a description. Descriptions that derive from it lose their parent; objects of the class
/// live on without a class. Raises OdError(eClassNotRegistered) for null.
void deleteOdRxClass(OdRxClass* description);

/// The class registered under `name`, or null.
OdRxClass* odrxFindClass(const OdString& name);

/// Registered class names, in order of registration.
QStringList odrxClassNames();
