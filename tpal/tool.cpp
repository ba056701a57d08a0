#include "tpal/command.h"

#include <algorithm>
#include <optional>

namespace tpal {
namespace {

constexpr Command kCommands[] = {
    {"list", "list DIR... [--json]",
     "Shows the tree: catalogs, groups, palettes, and tools with their kind and command.", false,
     true, listCommand},
    {"check", "check DIR... [--json]",
     "Looks for files that cannot be read, palettes and pictures that are missing, dangling\n"
     "      references, ids that stand twice, tools that do nothing and paths that lead nowhere.",
     false, true, checkCommand},
    {"resave", "resave DIR [--to DIR] [--json]",
     "Reads a catalog with its palettes and writes them anew, in place or into another folder.",
     true, false, resaveCommand},
};

void printHelp(QTextStream& out) {
  out << "usage: tpal COMMAND ...\n\n"
         "Looks after tool catalogs without any window. DIR is a folder with a catalog file,\n"
         "DrfTcCatalog.dtc.\n\n";
  for (const Command& c : kCommands)
    out << "  tpal " << c.synopsis << "\n      " << c.description << "\n\n";
  out << "  --json       the result as JSON on standard output\n"
         "  --to DIR     where to write instead\n"
         "  --help       this text\n"
         "  --version    the version\n\n"
         "Exit codes: 0 all is well; 1 something was found or left out; 2 wrong usage;\n"
         "3 a catalog cannot be read or written.\n";
}

/// Says what is wrong with the command line, if anything is.
std::optional<OdString> parse(const Command& command, const QStringList& words,
                              Arguments& arguments) {
  for (qsizetype i = 0; i < words.size(); ++i) {
    const OdString& word = words[i];
    if (word == QLatin1String("--json")) {
      arguments.json = true;
    } else if (word == QLatin1String("--to") && command.takesTo) {
      if (++i == words.size()) return QStringLiteral("--to needs a folder");
      arguments.to = words[i];
    } else if (word.startsWith(u'-') && word.size() > 1) {
      return QStringLiteral("unknown option %1").arg(word);
    } else {
      arguments.folders << word;
    }
  }
  if (arguments.folders.isEmpty()) return QStringLiteral("a folder is missing");
  if (!command.severalFolders && arguments.folders.size() > 1)
    return QStringLiteral("one folder only, not %1").arg(arguments.folders.size());
  return std::nullopt;
}

} // namespace

ExitCode runTool(const QStringList& words, Console& console) {
  const OdString first = words.isEmpty() ? OdString() : words.first();
  if (words.contains(QLatin1String("--help")) || first == QLatin1String("-h")) {
    printHelp(console.out);
    return kOk;
  }
  if (first == QLatin1String("--version")) {
    console.out << "tpal " TPAL_VERSION "\n";
    return kOk;
  }
  const auto* command =
      std::find_if(std::begin(kCommands), std::end(kCommands),
                   [&](const Command& c) { return first == QLatin1String(c.name); });
  if (command == std::end(kCommands)) {
    console.err << (first.isEmpty() ? QStringLiteral("tpal: a command is missing")
                                    : QStringLiteral("tpal: unknown command %1").arg(first))
                << "; see tpal --help\n";
    return kUsage;
  }
  Arguments arguments;
  if (const auto wrong = parse(*command, words.mid(1), arguments)) {
    console.err << "tpal: " << *wrong << "; usage: tpal " << command->synopsis << "\n";
    return kUsage;
  }
  return command->run(arguments, console);
}

} // namespace tpal
