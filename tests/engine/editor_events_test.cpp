#include "drafton/engine/editor_events.h"

#include "frame/smart_ptr.h"

#include <gtest/gtest.h>

#include <functional>

using namespace drafton;

namespace {

/// Calls a function at each ended command.
class Caller : public HostEditorReactor {
 public:
  explicit Caller(std::function<void()> function)
    : m_function(std::move(function)) {}
  void commandEnded(const OdString&) override { m_function(); }

 private:
  std::function<void()> m_function;
};
using CallerPtr = OdSmartPtr<Caller>;

void fire(EditorEvents& events) {
  events.fire([](HostEditorReactor& r) { r.commandEnded(QStringLiteral("X")); });
}

} // namespace

TEST(EditorEvents, CallsReactorsInTheirOrder) {
  OwnerScope owners;
  EditorEvents events(owners);
  OdString order;
  const CallerPtr a = odrxMake<Caller>([&] { order += u'a'; });
  const CallerPtr b = odrxMake<Caller>([&] { order += u'b'; });
  events.addReactor(b);
  events.addReactor(a);
  events.addReactor(nullptr);
  fire(events);
  EXPECT_EQ(order, QStringLiteral("ba"));
}

TEST(EditorEvents, AReactorMayRemoveItselfAndTheNext) {
  OwnerScope owners;
  EditorEvents events(owners);
  OdString order;
  const CallerPtr last = odrxMake<Caller>([&] { order += u'c'; });
  const CallerPtr second = odrxMake<Caller>([&] { order += u'b'; });
  CallerPtr first;
  first = odrxMake<Caller>([&] {
    order += u'a';
    events.removeReactor(first);
    events.removeReactor(second);
  });
  events.addReactor(first);
  events.addReactor(second);
  events.addReactor(last);
  fire(events);
  EXPECT_EQ(order, QStringLiteral("ac"));
  fire(events);
  EXPECT_EQ(order, QStringLiteral("acc"));
}

TEST(EditorEvents, AReactorThatIsAddedHearsTheNextEvent) {
  OwnerScope owners;
  EditorEvents events(owners);
  int heard = 0;
  const CallerPtr late = odrxMake<Caller>([&] { ++heard; });
  bool isAdded = false;
  const CallerPtr adder = odrxMake<Caller>([&] {
    if (!std::exchange(isAdded, true)) events.addReactor(late);
  });
  events.addReactor(adder);
  fire(events);
  EXPECT_EQ(heard, 0);
  fire(events);
  EXPECT_EQ(heard, 1);
}

TEST(EditorEvents, ANestedEventSeesRemovedReactorsAsGone) {
  OwnerScope owners;
  EditorEvents events(owners);
  int heard = 0, depth = 0;
  const CallerPtr victim = odrxMake<Caller>([&] { ++heard; });
  const CallerPtr outer = odrxMake<Caller>([&] {
    if (depth++ > 0) return;
    events.removeReactor(victim);
    fire(events);
  });
  events.addReactor(outer);
  events.addReactor(victim);
  fire(events);
  EXPECT_EQ(heard, 0);
}

TEST(EditorEvents, RemovesOnlyOneOfTwoEqualReactors) {
  OwnerScope owners;
  EditorEvents events(owners);
  int heard = 0;
  const CallerPtr twice = odrxMake<Caller>([&] { ++heard; });
  events.addReactor(twice);
  events.addReactor(twice);
  events.removeReactor(twice);
  fire(events);
  EXPECT_EQ(heard, 1);
}

TEST(EditorEvents, DropsWhatAnOwnerAdded) {
  OwnerScope owners;
  EditorEvents events(owners);
  int heard = 0;
  const CallerPtr own = odrxMake<Caller>([&] { heard += 1; });
  const CallerPtr foreign = odrxMake<Caller>([&] { heard += 10; });
  events.addReactor(own);
  {
    const OwnerScope::Entered scope(owners, 7);
    events.addReactor(foreign);
  }
  events.drop(7);
  fire(events);
  EXPECT_EQ(heard, 1);
}
