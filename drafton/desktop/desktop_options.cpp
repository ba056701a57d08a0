#include "drafton/desktop/desktop_options.h"

namespace drafton {
namespace {

struct ValueOption {
  const char16_t* name;
  void (*store)(DesktopOptions& options, const OdString& value);
};

constexpr ValueOption kOptions[] = {
    {u"--catalogs", [](DesktopOptions& o, const OdString& value) { o.catalogs = value; }},
    {u"--profile", [](DesktopOptions& o, const OdString& value) { o.profile = value; }},
};

const ValueOption* findOption(QStringView name) {
  for (const ValueOption& option : kOptions)
    if (name == QStringView(option.name)) return &option;
  return nullptr;
}

} // namespace

DesktopOptions parseDesktopArguments(const QStringList& arguments) {
  DesktopOptions options;
  bool onlyNames = false;
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    const OdString& argument = arguments[i];
    if (onlyNames || !argument.startsWith(u'-')) {
      if (!argument.isEmpty()) options.drawings << argument;
      continue;
    }
    if (argument == QLatin1String("--")) {
      onlyNames = true;
      continue;
    }
    const qsizetype equals = argument.indexOf(u'=');
    const ValueOption* const option = findOption(equals < 0 ? argument : argument.left(equals));
    if (!option || (equals < 0 && i + 1 >= arguments.size()))
      options.unknown << argument;
    else
      option->store(options, equals < 0 ? arguments[++i] : argument.mid(equals + 1));
  }
  return options;
}

} // namespace drafton
