// SETVAR.

#include "drafton/engine/command_context.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/commands/wildcard.h"
#include "drafton/engine/document.h"
#include "drafton/engine/translator.h"
#include "drafton/engine/value_parser.h"
#include "drafton/engine/variable_table.h"
#include "drawing/header_vars.h"

namespace drafton {
namespace {

/// What a variable accepts, whichever table it stands in.
struct Accepted {
  enum class Kind { kInteger, kReal, kText, kPoint, kColor, kCharacter };
  Kind kind = Kind::kText;
  double min = 0, max = 0;
};

struct RowKind {
  VariableRow::Type type;
  Accepted::Kind kind;
};

constexpr RowKind kRowKinds[] = {
    {VariableRow::Type::kInteger, Accepted::Kind::kInteger},
    {VariableRow::Type::kReal, Accepted::Kind::kReal},
    {VariableRow::Type::kText, Accepted::Kind::kText},
    {VariableRow::Type::kColor, Accepted::Kind::kColor},
    {VariableRow::Type::kPoint, Accepted::Kind::kPoint},
};

struct HeaderKind {
  OdDbHeaderVarInfo::Type type;
  Accepted::Kind kind;
};

constexpr HeaderKind kHeaderKinds[] = {
    {OdDbHeaderVarInfo::kInt, Accepted::Kind::kInteger},
    {OdDbHeaderVarInfo::kReal, Accepted::Kind::kReal},
    {OdDbHeaderVarInfo::kPoint3d, Accepted::Kind::kPoint},
    {OdDbHeaderVarInfo::kPoint2d, Accepted::Kind::kPoint},
    {OdDbHeaderVarInfo::kColor, Accepted::Kind::kColor},
};

Accepted acceptedBy(const OdString& name) {
  if (const VariableRow* const row = findVariable(name)) {
    for (const RowKind& entry : kRowKinds)
      if (entry.type == row->type) return {entry.kind, row->min, row->max};
  } else if (isCharacterVariable(name)) {
    return {Accepted::Kind::kCharacter, 0, 0};
  } else if (const OdDbHeaderVarInfo* const info = oddbFindHeaderVar(name)) {
    for (const HeaderKind& entry : kHeaderKinds)
      if (entry.type == info->type) return {entry.kind, info->min, info->max};
  }
  return {};
}

/// Why a value was refused.
OdString refusalFor(const Accepted& accepted) {
  switch (accepted.kind) {
  case Accepted::Kind::kInteger:
  case Accepted::Kind::kReal: {
    const OdString needed = accepted.kind == Accepted::Kind::kInteger
                                ? translated(u"Requires a whole number")
                                : translated(u"Requires a number");
    // The smallest number above 0 stands for that limit.
    const bool abovezero = accepted.min == std::numeric_limits<double>::min();
    const bool hasMin = std::isfinite(accepted.min);
    const bool hasMax = std::isfinite(accepted.max);
    if (abovezero) return translated(u"%1 greater than zero.").arg(needed);
    if (hasMin && hasMax)
      return translated(u"%1 between %2 and %3.")
          .arg(needed, shownReal(accepted.min), shownReal(accepted.max));
    if (hasMin) return translated(u"%1 of at least %2.").arg(needed, shownReal(accepted.min));
    if (hasMax) return translated(u"%1 of at most %2.").arg(needed, shownReal(accepted.max));
    return needed + u'.';
  }
  case Accepted::Kind::kPoint:
    return translated(u"Requires a point: x,y or x,y,z.");
  case Accepted::Kind::kColor:
    return translated(u"Requires a color: a name, a number from 0 to 256, or r,g,b.");
  case Accepted::Kind::kCharacter:
    return translated(u"Requires a single character.");
  case Accepted::Kind::kText:
    break;
  }
  return translated(
      u"The value cannot be set: there is nothing of that name, or it cannot be used.");
}

OdString shownValue(CommandContext& context, const OdString& name) {
  OdVariant value;
  context.variables().get(name, value);
  switch (acceptedBy(name).kind) {
  case Accepted::Kind::kColor: {
    OdCmColor color;
    color.setColor(value.toUInt32());
    if (color.isByLayer()) return QStringLiteral("BYLAYER");
    if (color.isByBlock()) return QStringLiteral("BYBLOCK");
    if (color.isByACI()) return OdString::number(color.colorIndex());
    return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
  }
  case Accepted::Kind::kReal:
    return shownReal(value.toDouble(), 8);
  case Accepted::Kind::kCharacter:
    return QChar(static_cast<char16_t>(value.toInt32()));
  case Accepted::Kind::kInteger:
  case Accepted::Kind::kPoint:
  case Accepted::Kind::kText:
    break;
  }
  return value.toString();
}

/// The variables of a document are always of this kind, which knows more than modules are told.
HostVariables& variablesOf(CommandContext& context) {
  return static_cast<HostVariables&>(context.variables());
}

void printVariables(CommandContext& context, const OdString& pattern) {
  int shown = 0;
  for (const OdString& name : variablesOf(context).names()) {
    if (!matchesWildcard(name, pattern)) continue;
    ++shown;
    const OdString note =
        variablesOf(context).isWritable(name) ? OdString() : translated(u"  (read only)");
    context.print(name.leftJustified(20) + u' ' + shownValue(context, name) + note);
  }
  if (shown == 0) context.print(translated(u"No variable fits \"%1\".").arg(pattern));
}

/// The name of a variable that is there; empty when only a list was wanted.
Task<OdString> askName(CommandContext& context) {
  CommandInput& input = context.input();
  for (;;) {
    const Answer<OdString> name =
        co_await input.string({.text = u"Enter variable name or ?", .allowEmpty = true});
    if (name.isEmpty()) co_return OdString();
    if (name.value == QLatin1String("?")) {
      const Answer<OdString> pattern =
          co_await input.string({.text = u"Enter variable(s) to list", .defaultValue = u"*"});
      printVariables(context, pattern.value);
      co_return OdString();
    }
    OdVariant value;
    if (context.variables().get(name.value, value)) co_return name.value;
    context.print(
        translated(u"Unknown variable name \"%1\". Type SETVAR ? for a list of variables.")
            .arg(name.value.left(60)));
  }
}

OdString givenName(CommandContext& context) {
  OdVariant name;
  if (!context.parameters() || !context.parameters()->value(QStringLiteral("name"), name))
    return {};
  OdVariant value;
  if (!context.variables().get(name.toString(), value))
    throw CommandFailure(
        translated(u"Unknown variable name \"%1\".").arg(name.toString().left(60)));
  return name.toString();
}

} // namespace

Task<void> setVariable(CommandContext& context) {
  OdString name = givenName(context);
  if (name.isEmpty()) name = co_await askName(context);
  if (name.isEmpty()) co_return;
  name = name.toUpper();
  if (!variablesOf(context).isWritable(name)) {
    context.print(translated(u"%1 = %2 (read only)").arg(name, shownValue(context, name)));
    co_return;
  }
  const OdString question = translated(u"Enter new value for %1").arg(name);
  for (;;) {
    const OdString now = shownValue(context, name);
    const OdString shownNow = now.isEmpty() ? QStringLiteral("\"\"") : now;
    const Answer<OdString> value = co_await context.input().string(
        {.text = QStringView(question), .defaultValue = QStringView(shownNow)});
    if (value.value == shownNow) co_return;
    // A point stands for no text, which could not be told from Enter.
    const bool isText = acceptedBy(name).kind == Accepted::Kind::kText;
    const OdString typed = isText && value.value == QLatin1String(".") ? OdString() : value.value;
    if (context.variables().set(name, OdVariant(typed))) co_return;
    context.print(refusalFor(acceptedBy(name)));
  }
}

} // namespace drafton
