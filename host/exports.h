// The functions that a host exports by name. All are optional: a missing one turns the step that
// needs it into a no-op.
#pragma once

#include "frame/module_object.h"
#include "frame/string.h"

class ICmdFactory;
class IHostApplication;
class IHostDocument;
class IMemParam;
class IKVUnknown;

namespace hostexport {

/// Exported by the main executable: the handle of the host's main module.
inline constexpr const char* kGetMainDllInstance = "GetMainDllInstance";
using GetMainDllInstance = OdModuleHandle (*)();
/// Exported by the main executable: the name of the host's main module; null if that is the
/// executable itself.
inline constexpr const char* kGetMainDllName = "GetMainDllNameW";
using GetMainDllName = const char16_t* (*)();
/// Exported by KvAcApp.dll: the handle of the host's main module.
inline constexpr const char* kGetMainDllInstanceEx = "GetMainDllInstanceEx";
using GetMainDllInstanceEx = OdModuleHandle (*)();

/// Exported by the main module: leads from a small index to a function that gives a host object.
/// Index 2 gives the IHostServices.
inline constexpr const char* kGetHostFuncPtr = "get_host_funcptr";
using HostObjectGetter = void* (*)();
using GetHostFuncPtr = HostObjectGetter (*)(int index);
inline constexpr int kServicesIndex = 2;

/// Exported by the main module: fills the pointer with a new factory, referenced for the caller.
inline constexpr const char* kNewCmdFactory = "new_ICmdFactory";
using NewCmdFactory = void (*)(ICmdFactory** factory);
/// Exported by the main module: fills the pointer with a new parameter set, referenced for the
/// caller.
inline constexpr const char* kNewMemParam = "new_MemParam";
using NewMemParam = void (*)(IMemParam** parameters);

/// Exported by KvAcApp.dll or by the main module: the application object.
inline constexpr const char* kGetApp = "GetApp";
using GetApp = IHostApplication* (*)();
/// Exported by KViCore.dll: the object of an identifier; "CLSID_APP" gives the application object.
inline constexpr const char* kCreateObject = "CreateObjectC";
using CreateObjectC = void* (*)(const char* classId);

/// Exported by the main module: the translation of a text into the user's language, in `out`; false
/// if there is none.
inline constexpr const char* kTranslate = "Supp_Translate";
using Translate = bool (*)(const OdString& text, OdString& out);
/// Exported by the main module: the stored path of the command route map, an XML file.
inline constexpr const char* kGetCmdRouteMap = "hostGetCmdRouteMap";
using GetCmdRouteMap = bool (*)(OdString& out);
/// Exported by draftoncmd1.dll or by the main module: the stored path of the user's own file that a
/// hatch pattern stands in; false for predefined and unknown patterns.
inline constexpr const char* kGetCustomPatternFileName = "hostGetCustomPatternFileName";
using GetCustomPatternFileName = bool (*)(const OdString& pattern, OdString& out);
/// Exported by DwgExplorer.dll or by the main module: true if all that a document shows stands in
/// its file.
inline constexpr const char* kIsObjectSaved = "isObjectSaved";
using IsObjectSaved = bool (*)(IHostDocument* document);

} // namespace hostexport
