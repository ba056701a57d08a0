#include "frame/rx_members.h"

OdRxClass* od_detail::registerClass(OdRxClass* current, const OdString& name, OdRxClass* parent,
                                    OdRxFactory factory, const OdRxModule* application) {
  if (current)
    throw OdError(eClassAlreadyRegistered,
                  QStringLiteral("Class %1 is already registered").arg(name));
  return newOdRxClass(name, parent, factory, application ? application->moduleName() : OdString());
}

void od_detail::unregisterClass(OdRxClass*& description) {
  OdRxClass* const doomed = std::exchange(description, nullptr);
  deleteOdRxClass(doomed);
}
