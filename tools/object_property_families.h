// The families of agents' properties.
//
// A property is put together from policies that name members of its agent; the tables of the agents
// are the whole description of their properties.
#pragma once

#include "properties/color_value.h"
#include "properties/owner_item.h"
#include "tools/object_property.h"

namespace tc {

/// A member of the agent that gives a value.
template <auto Member>
struct Get {
  template <class Agent>
  static auto of(const Agent& agent) {
    return (agent.*Member)();
  }
};
/// A member of the agent that takes a value.
template <auto Member>
struct Set {
  template <class Agent, class Value>
  static void to(Agent& agent, const Value& value) {
    (agent.*Member)(value);
  }
};
/// A member of the agent that does something with the user and tells whether it was done.
template <auto Member>
struct Run {
  template <class Agent>
  static bool on(Agent& agent) {
    return (agent.*Member)();
  }
};
/// The default of IsEnabled and Visible.
struct Always {
  template <class Agent>
  static bool of(const Agent&) {
    return true;
  }
};

namespace object_property_detail {

inline OdVariant toVariant(const OdString& value) { return value; }
inline OdVariant toVariant(double value) { return value; }
inline OdVariant toVariant(bool value) { return value; }
inline OdVariant toVariant(std::int32_t value) { return value; }
inline OdVariant toVariant(const OdCmColor& value) { return colorToVariant(value); }

/// False if the value cannot be seen as the wanted kind.
inline bool fromVariant(const OdVariant& value, OdString& out) {
  if (value.isObject()) return false;
  out = value.toString();
  return true;
}
inline bool fromVariant(const OdVariant& value, double& out) {
  if (value.isObject()) return false;
  out = value.toDouble();
  return true;
}
inline bool fromVariant(const OdVariant& value, bool& out) {
  if (value.isObject()) return false;
  out = value.toBool();
  return true;
}
inline bool fromVariant(const OdVariant& value, std::int32_t& out) {
  if (value.isObject()) return false;
  out = value.toInt32();
  return true;
}
inline bool fromVariant(const OdVariant& value, OdCmColor& out) {
  const std::optional<OdCmColor> color = colorFromVariant(value);
  if (color) out = *color;
  return color.has_value();
}

} // namespace object_property_detail

/// The common part: reads and writes the agent through the policies.
template <class Agent, class Value, class Getter, class Setter, class IsEnabled, class Visible>
class OdTcObjectPropertyImplBaseEx : public OdTcObjectProperty {
 public:
  using OdTcObjectProperty::OdTcObjectProperty;

  OdVariant getValue() const override {
    const Agent* const a = agent();
    return a ? object_property_detail::toVariant(Value(Getter::of(*a))) : OdVariant();
  }
  void setValue(const OdVariant& value) override {
    Agent* const a = agent();
    Value taken{};
    if (!a || !object_property_detail::fromVariant(value, taken)) return;
    // A value that decides which properties there are makes the agent drop this one.
    const OdTcPropertyPtr self(this);
    Setter::to(*a, taken);
    markOwnerItemModified(this);
  }
  bool isEnabled() const override { return agent() && IsEnabled::of(*agent()); }
  bool isVisible() const override { return agent() && Visible::of(*agent()); }

 protected:
  /// The owner; null while the property is not in an agent.
  Agent* agent() const { return dynamic_cast<Agent*>(owner()); }
};

/// A family that adds nothing but its kind.
template <ObjectPropertyFamily Family, class Agent, class Value, class Getter, class Setter,
          class IsEnabled, class Visible>
class OdTcPlainObjectPropertyImpl final
  : public OdTcObjectPropertyImplBaseEx<Agent, Value, Getter, Setter, IsEnabled, Visible> {
 public:
  using OdTcObjectPropertyImplBaseEx<Agent, Value, Getter, Setter, IsEnabled,
                                     Visible>::OdTcObjectPropertyImplBaseEx;
  ObjectPropertyFamily family() const override { return Family; }
  OdRxObjectPtr clone() const override {
    return odrxMake<OdTcPlainObjectPropertyImpl>(this->caption());
  }
};

template <class Agent, class Getter, class Setter, class IsEnabled = Always, class Visible = Always>
using OdTcTextObjectPropertyImplEx =
    OdTcPlainObjectPropertyImpl<ObjectPropertyFamily::kText, Agent, OdString, Getter, Setter,
                                IsEnabled, Visible>;
template <class Agent, class Getter, class Setter, class IsEnabled = Always, class Visible = Always>
using OdTcDoubleObjectPropertyImplEx =
    OdTcPlainObjectPropertyImpl<ObjectPropertyFamily::kDouble, Agent, double, Getter, Setter,
                                IsEnabled, Visible>;
template <class Agent, class Getter, class Setter, class IsEnabled = Always, class Visible = Always>
using OdTcAnglePropertyImplEx =
    OdTcPlainObjectPropertyImpl<ObjectPropertyFamily::kAngle, Agent, double, Getter, Setter,
                                IsEnabled, Visible>;
template <class Agent, class Getter, class Setter, class IsEnabled = Always, class Visible = Always>
using OdTcBoolObjectPropertyImplEx =
    OdTcPlainObjectPropertyImpl<ObjectPropertyFamily::kBool, Agent, bool, Getter, Setter, IsEnabled,
                                Visible>;
template <class Agent, class Getter, class Setter, class IsEnabled = Always, class Visible = Always>
using OdTcColorObjectPropertyImplEx =
    OdTcPlainObjectPropertyImpl<ObjectPropertyFamily::kColor, Agent, OdCmColor, Getter, Setter,
                                IsEnabled, Visible>;

/// A path; `Filter` names the member that gives the filter of the file dialog.
template <class Agent, class Getter, class Setter, class Filter, class IsEnabled = Always,
          class Visible = Always>
class OdTcFileNameObjectPropertyImplEx final
  : public OdTcObjectPropertyImplBaseEx<Agent, OdString, Getter, Setter, IsEnabled, Visible> {
 public:
  using OdTcObjectPropertyImplBaseEx<Agent, OdString, Getter, Setter, IsEnabled,
                                     Visible>::OdTcObjectPropertyImplBaseEx;
  ObjectPropertyFamily family() const override { return ObjectPropertyFamily::kFileName; }
  OdString fileFilter() const override {
    return this->agent() ? Filter::of(*this->agent()) : OdString();
  }
  OdRxObjectPtr clone() const override {
    return odrxMake<OdTcFileNameObjectPropertyImplEx>(this->caption());
  }
};

/// One of a list; `List` names the member that gives the entries.
template <class Agent, class Value, class Getter, class Setter, class List,
          class IsEnabled = Always, class Visible = Always>
class OdTcMultiverseObjectPropertyImplEx final
  : public OdTcObjectPropertyImplBaseEx<Agent, Value, Getter, Setter, IsEnabled, Visible> {
 public:
  using OdTcObjectPropertyImplBaseEx<Agent, Value, Getter, Setter, IsEnabled,
                                     Visible>::OdTcObjectPropertyImplBaseEx;
  ObjectPropertyFamily family() const override { return ObjectPropertyFamily::kMultiverse; }
  OdTcChoices choices() const override {
    return this->agent() ? List::of(*this->agent()) : OdTcChoices();
  }
  OdRxObjectPtr clone() const override {
    return odrxMake<OdTcMultiverseObjectPropertyImplEx>(this->caption());
  }
};

/// A text that a dialog can give; `Dialog` names the member that opens it.
template <class Agent, class Getter, class Setter, class Dialog, class IsEnabled = Always,
          class Visible = Always>
class OdTcCallbackObjectPropertyImpl final
  : public OdTcObjectPropertyImplBaseEx<Agent, OdString, Getter, Setter, IsEnabled, Visible> {
 public:
  using OdTcObjectPropertyImplBaseEx<Agent, OdString, Getter, Setter, IsEnabled,
                                     Visible>::OdTcObjectPropertyImplBaseEx;
  ObjectPropertyFamily family() const override { return ObjectPropertyFamily::kCallback; }
  bool runDialog() override {
    const OdTcPropertyPtr self(this);
    if (!this->agent() || !Dialog::on(*this->agent())) return false;
    markOwnerItemModified(this);
    return true;
  }
  OdRxObjectPtr clone() const override {
    return odrxMake<OdTcCallbackObjectPropertyImpl>(this->caption());
  }
};

} // namespace tc
