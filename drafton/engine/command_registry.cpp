#include "drafton/engine/command_registry.h"

#include "drafton/engine/engine.h"

namespace drafton {
namespace {

struct Alias {
  const char16_t* alias;
  const char16_t* command;
};

constexpr Alias kAliases[] = {
    {u"A", u"ARC"},           {u"ADDSEL", u"ADDSELECTED"},
    {u"AA", u"AREA"},         {u"AR", u"ARRAY"},
    {u"ATT", u"ATTDEF"},      {u"BH", u"BHATCH"},
    {u"BO", u"BOUNDARY"},     {u"BR", u"BREAK"},
    {u"C", u"CIRCLE"},        {u"CH", u"CHPROP"},
    {u"CHA", u"CHAMFER"},     {u"CLOSE", u"CloseDocument"},
    {u"CO", u"COPY"},         {u"COL", u"COLOR"},
    {u"CP", u"COPY"},         {u"D", u"DIMSTYLE"},
    {u"DAL", u"DIMALIGNED"},  {u"DAN", u"DIMANGULAR"},
    {u"DBA", u"DIMBASELINE"}, {u"DCO", u"DIMCONTINUE"},
    {u"DDEDIT", u"TEXTEDIT"}, {u"DDI", u"DIMDIAMETER"},
    {u"DI", u"DIST"},         {u"DLI", u"DIMLINEAR"},
    {u"DO", u"DONUT"},        {u"DRA", u"DIMRADIUS"},
    {u"DT", u"TEXT"},         {u"E", u"ERASE"},
    {u"ED", u"TEXTEDIT"},     {u"EL", u"ELLIPSE"},
    {u"EX", u"EXTEND"},       {u"F", u"FILLET"},
    {u"H", u"BHATCH"},        {u"J", u"JOIN"},
    {u"L", u"LINE"},          {u"LA", u"LAYER"},
    {u"LEAD", u"LEADER"},     {u"LT", u"LINETYPE"},
    {u"LW", u"LWEIGHT"},      {u"M", u"MOVE"},
    {u"MA", u"MATCHPROP"},    {u"MI", u"MIRROR"},
    {u"MT", u"MTEXT"},        {u"NEW", u"NewDocument"},
    {u"O", u"OFFSET"},        {u"OPEN", u"OpenDocument"},
    {u"PL", u"PLINE"},        {u"PO", u"POINT"},
    {u"POL", u"POLYGON"},     {u"QUIT", u"Exit"},
    {u"REC", u"RECTANG"},     {u"RO", u"ROTATE"},
    {u"S", u"STRETCH"},       {u"SC", u"SCALE"},
    {u"SPL", u"SPLINE"},      {u"ST", u"STYLE"},
    {u"T", u"TEXT"},          {u"TR", u"TRIM"},
    {u"U", u"UNDO"},          {u"X", u"EXPLODE"},
    {u"Z", u"ZOOM"},
};

} // namespace

void CommandRegistry::add(RegisteredCommand command) {
  command.owner = m_owners.current();
  const auto added = std::make_shared<const RegisteredCommand>(std::move(command));
  m_commands.push_back(added);
  m_byName.insert(added->name.toUpper(), added);
}

void CommandRegistry::add(std::span<const NativeCommand> table) {
  for (const NativeCommand& row : table)
    add({.name = OdString::fromUtf16(row.name),
         .group = QStringLiteral("DRAFTON"),
         .flags = row.flags,
         .body = row.body});
}

RegisteredCommandPtr CommandRegistry::find(const OdString& name) const {
  return m_byName.value(name.toUpper());
}

RegisteredCommandPtr CommandRegistry::findTyped(const OdString& word) const {
  OdString name = word;
  for (;;) {
    if (RegisteredCommandPtr found = find(name)) return found;
    if (name.isEmpty() || !QStringLiteral("_.'").contains(name[0])) break;
    name = name.mid(1);
  }
  for (const Alias& row : kAliases)
    if (name.compare(QStringView(row.alias), Qt::CaseInsensitive) == 0)
      return find(OdString::fromUtf16(row.command));
  return nullptr;
}

QStringList CommandRegistry::names() const {
  QStringList names;
  for (const RegisteredCommandPtr& command : m_byName)
    if (!command->name.startsWith(QLatin1String("__"))) names << command->name;
  names.sort(Qt::CaseInsensitive);
  return names;
}

QStringList CommandRegistry::namesIn(const OdString& group) const {
  QStringList names;
  for (const RegisteredCommandPtr& command : m_commands)
    if (command->group == group) names << command->name;
  return names;
}

void CommandRegistry::drop(int owner) {
  std::erase_if(m_commands, [owner](const auto& command) { return command->owner == owner; });
  m_byName.clear();
  for (const RegisteredCommandPtr& command : m_commands)
    m_byName.insert(command->name.toUpper(), command);
}

void CommandFactory::registerCommand(const OdString& name, CmdCreator creator,
                                     const OdString& group, unsigned flags) {
  if (Engine* const engine = Engine::current(); engine && creator)
    engine->commands().add({.name = name, .group = group, .flags = flags, .creator = creator});
}

void CommandFactory::registerFunction(const OdString& group, const OdString& name, unsigned flags,
                                      CmdFunction function) {
  if (Engine* const engine = Engine::current(); engine && function)
    engine->commands().add({.name = name, .group = group, .flags = flags, .function = function});
}

} // namespace drafton
