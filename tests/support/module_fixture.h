// A module that is up, for tests that need its classes and singletons together.
#pragma once

#include "host/host_locator.h"
#include "host/integration/editor_reactor.h"
#include "host/integration/editor_reactor_ex.h"
#include "module/entry/class_table.h"
#include "module/entry/singletons.h"
#include "support/test_host.h"
#include "ui/palette_set.h"

#include <gtest/gtest.h>

namespace testhost {

/// Everything of the module except its start: a fresh test host, the classes and the element table,
/// the seven singletons, and the editor reactor among the host's. No catalog is loaded.
class ModuleFixture : public testing::Test {
 protected:
  ModuleFixture() {
    host().reset();
    ::host::setModuleDirectory(nullptr);
    tc::registerModuleClasses();
    tc::TcEditorReactor::rxInit(nullptr);
    tc::TcEditorReactorEx::rxInit(nullptr);
    tc::createSingletons();
    tc::clearPaletteSetShown();
    host().events.addReactor(tc::TcEditorReactor::instance());
    host().log.clear();
  }
  ~ModuleFixture() override {
    tc::ITcUiPaletteSet::setInstance(nullptr);
    host().events.reactors.clear();
    tc::releaseSingletons();
    tc::TcEditorReactor::rxUninit();
    tc::TcEditorReactorEx::rxUninit();
    tc::unregisterModuleClasses();
    host().reset();
  }
};

} // namespace testhost
