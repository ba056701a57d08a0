#include "frame/rx_class.h"

#include "frame/smart_ptr.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <vector>

/// All registered classes of the process, in order of registration. A process knows some tens of
/// classes and asks by name only now and then, so a vector serves better than a map.
class OdRxClassDictionary {
 public:
  static OdRxClassDictionary& instance() {
    static OdRxClassDictionary dictionary;
    return dictionary;
  }

  OdRxClass* add(const OdString& name, const OdString& appName, OdRxClass* parent,
                 OdRxFactory factory) {
    const std::lock_guard lock(m_mutex);
    if (findLocked(name))
      throw OdError(eClassAlreadyRegistered,
                    QStringLiteral("Class %1 is already registered").arg(name));
    auto* made = new OdRxClass(name, appName, parent, factory);
    m_classes.push_back(OdSmartPtr<OdRxClass>(made, kOdRxObjAttach));
    return made;
  }

  void remove(OdRxClass* description) {
    const std::lock_guard lock(m_mutex);
    const auto at = std::find_if(m_classes.begin(), m_classes.end(),
                                 [&](const auto& c) { return c.get() == description; });
    if (!description || at == m_classes.end()) throw OdError(eClassNotRegistered);
    for (const auto& c : m_classes)
      if (c->m_parent == description) c->m_parent = nullptr;
    m_classes.erase(at);
  }

  OdRxClass* find(const OdString& name) {
    const std::lock_guard lock(m_mutex);
    return findLocked(name);
  }

  QStringList names() {
    const std::lock_guard lock(m_mutex);
    QStringList result;
    for (const auto& c : m_classes) result << c->name();
    return result;
  }

 private:
  OdRxClass* findLocked(const OdString& name) const {
    for (const auto& c : m_classes)
      if (c->name() == name) return c.get();
    return nullptr;
  }

  std::mutex m_mutex;
  std::vector<OdSmartPtr<OdRxClass>> m_classes;
};

OdRxClass* newOdRxClass(const OdString& name, OdRxClass* parent, OdRxFactory factory,
                        const OdString& appName) {
  return OdRxClassDictionary::instance().add(name, appName, parent, factory);
}

void deleteOdRxClass(OdRxClass* description) {
  OdRxClassDictionary::instance().remove(description);
}

OdRxClass* odrxFindClass(const OdString& name) {
  return OdRxClassDictionary::instance().find(name);
}

QStringList odrxClassNames() { return OdRxClassDictionary::instance().names(); }

OdRxObjectPtr OdRxClass::create() const {
  return m_factory ? OdRxObjectPtr(m_factory(), kOdRxObjAttach) : OdRxObjectPtr();
}

OdRxClass* OdRxClass::isA() const { return desc(); }

OdRxClass* OdRxClass::desc() {
  static OdRxClass* const description =
      newOdRxClass(QStringLiteral("OdRxClass"), OdRxObject::desc());
  return description;
}
