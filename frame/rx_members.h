// Macros that give a class its run-time class surface.
#pragma once

#include "frame/module_object.h"
#include "frame/smart_ptr.h"

/// Declares the run-time class surface of `Class`. API is an export attribute or empty: a module
/// that hides its symbols exports just this surface of the classes that it publishes.
///
/// - `rxInit` registers the description, the second form under the name of a module; a second call
///   raises OdError(eClassAlreadyRegistered);
/// - `rxUninit` deletes it and clears `g_pDesc`; raises OdError(eClassNotRegistered) if it is null;
/// - `createObject` makes an object through the factory and converts it with a check; a class
///   without a factory raises OdError(eNotApplicable);
/// - `cast` gives an object as this class with a new reference, or null;
/// - `s_factory` is set by the composition root before `rxInit`; null for abstract classes.
#define ODRX_DECLARE_MEMBERS_EX(Class, API)                                                        \
 public:                                                                                           \
  using OdRxDescribed = Class;                                                                     \
  API static OdRxClass* g_pDesc;                                                                   \
  static OdRxFactory s_factory;                                                                    \
  API static void rxInit();                                                                        \
  API static void rxInit(OdRxModule* application);                                                 \
  API static void rxUninit();                                                                      \
  API static OdRxClass* desc();                                                                    \
  API OdRxClass* isA() const override;                                                             \
  API OdRxObject* queryX(const OdRxClass* wanted) const override;                                  \
  API static OdSmartPtr<Class> cast(const OdRxObject* object);                                     \
  API static OdSmartPtr<Class> createObject();                                                     \
  API static OdRxObject* pseudoConstructor()

#define ODRX_DECLARE_MEMBERS(Class) ODRX_DECLARE_MEMBERS_EX(Class, )

/// Defines the surface; `NAME` is the registered class name.
#define ODRX_DEFINE_MEMBERS(Class, Parent, NAME)                                                   \
  OdRxClass* Class::g_pDesc = nullptr;                                                             \
  OdRxFactory Class::s_factory = nullptr;                                                          \
  void Class::rxInit() { rxInit(nullptr); }                                                        \
  void Class::rxInit(OdRxModule* application) {                                                    \
    g_pDesc =                                                                                      \
        od_detail::registerClass(g_pDesc, QStringLiteral(NAME), Parent::desc(),                    \
                                 s_factory ? &Class::pseudoConstructor : nullptr, application);    \
  }                                                                                                \
  void Class::rxUninit() { od_detail::unregisterClass(g_pDesc); }                                  \
  OdRxClass* Class::desc() { return g_pDesc; }                                                     \
  OdRxClass* Class::isA() const { return g_pDesc; }                                                \
  OdRxObject* Class::queryX(const OdRxClass* wanted) const { return Parent::queryX(wanted); }      \
  OdSmartPtr<Class> Class::cast(const OdRxObject* object) { return odrxCast<Class>(object); }      \
  OdSmartPtr<Class> Class::createObject() {                                                        \
    if (!s_factory) throw OdError(eNotApplicable, QStringLiteral(NAME " has no factory"));         \
    return OdRxObjectPtr(pseudoConstructor(), kOdRxObjAttach);                                     \
  }                                                                                                \
  OdRxObject* Class::pseudoConstructor() { return s_factory ? s_factory() : nullptr; }             \
  static_assert(true)

/// A factory for the concrete class Impl.
template <class Impl>
OdRxObject* odrxFactory() {
  return new Impl;
}

namespace od_detail {
/// Registers a class unless `current` says that it is; gives the new description.
OdRxClass* registerClass(OdRxClass* current, const OdString& name, OdRxClass* parent,
                         OdRxFactory factory, const OdRxModule* application);
/// Deletes the description and clears the pointer.
void unregisterClass(OdRxClass*& description);
} // namespace od_detail
