#include "module/entry/singletons.h"

#include "catalog/palette_manager.h"
#include "host/integration/editor_reactor.h"
#include "persistence/value_storage.h"
#include "tools/command_conveyor.h"
#include "tools/conveyor_impl.h"
#include "tools/tool_buffer.h"
#include "ui/state_saver.h"

namespace tc {
namespace {

struct Row {
  void (*create)();
  void (*release)();
};

template <class T>
constexpr Row plain() {
  return {[] { T::setInstance(odrxMake<T>()); }, [] { T::setInstance(nullptr); }};
}

/// Made through the class's factory.
template <class T>
constexpr Row registered() {
  return {[] { T::setInstance(T::createObject()); }, [] { T::setInstance(nullptr); }};
}

constexpr Row kSingletons[] = {
    plain<OdTcValueStorageImpl>(),
    registered<OdTcPaletteManager>(),
    {[] { TcEditorReactor::setInstance(TcEditorReactor::desc()->create()); },
     [] { TcEditorReactor::setInstance(nullptr); }},
    plain<OdTcConveyorImpl>(),
    plain<OdTcStateSaverImpl>(),
    plain<OdTcToolBuffer>(),
    registered<OdTcCommandConveyor>(),
};

} // namespace

void createSingletons() {
  for (const Row& row : kSingletons) row.create();
}

void releaseSingletons() {
  for (const Row& row : kSingletons) row.release();
}

} // namespace tc
