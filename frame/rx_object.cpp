#include "frame/rx_object.h"

#include "frame/smart_ptr.h"

OdRxObject::~OdRxObject() = default;

OdRxClass* OdRxObject::desc() {
  static OdRxClass* const description = newOdRxClass(QStringLiteral("OdRxObject"), nullptr);
  return description;
}

OdRxClass* OdRxObject::isA() const { return desc(); }

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const {
  const OdRxClass* own = isA();
  return own && own->isDerivedFrom(wanted) ? const_cast<OdRxObject*>(this) : nullptr;
}

OdRxObjectPtr OdRxObject::clone() const { throw OdError(eNotApplicable); }

void od_detail::raiseNotThatKind(const OdRxObject* found, const OdRxClass* wanted) {
  const OdRxClass* own = found->isA();
  throw OdError_NotThatKindOfClass(own ? own->name() : OdString(),
                                   wanted ? wanted->name() : OdString());
}
