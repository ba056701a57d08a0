#include "tpal/command.h"

#include <algorithm>
#include <optional>

namespace tpal {
namespace {

constexpr int kAnyNumber = 1 << 20;

constexpr Command kCommands[] = {
    {"list", "list DIR... [--json]",
     "Shows the tree: catalogs, groups, palettes, and tools with their kind and command.", "", 1,
     kAnyNumber, false, listCommand},
    {"check", "check DIR... [--json]",
     "Looks for files that cannot be read, palettes and pictures that are missing, dangling\n"
     "      references, ids that stand twice, tools that do nothing, paths that lead nowhere, "
     "unknown\n"
     "      patterns and pictures that no tool shows.",
     "", 1, kAnyNumber, true, checkCommand},
    {"resave", "resave DIR [--to DIR] [--json]",
     "Reads a catalog with its palettes and writes them anew, in place or into another folder.",
     "--to ", 1, 1, false, resaveCommand},
    {"import",
     "import FILE... --into DIR [--group NAME] [--dry-run] [--map OLD=NEW]...\n"
     "       [--convert-commands] [--json]",
     "Takes palettes of AutoCAD into a catalog: exported ones (.xtp), palettes and catalogs of "
     "its\n"
     "      stores (.atc), and all of these in a folder. Says of each tool what became of it.",
     "--into --group --dry-run --map --convert-commands ", 1, kAnyNumber, true, importCommand},
    {"export", "export DIR PALETTE FILE.xtp [--json]",
     "Writes a palette, given by its name or id, for other programs, with its pictures beside it.",
     "", 3, 3, false, exportCommand},
    {"make", "make DIR PALETTE FILE... [--blocks] [--group NAME] [--dry-run] [--json]",
     "Makes tools with pictures: of drawings, or of each block in them; of pictures; of all of "
     "these\n      in a folder; of commands, by their names. The catalog and the palette are made "
     "if they\n      are not there.",
     "--blocks --group --dry-run ", 3, kAnyNumber, true, makeCommand},
    {"images", "images DIR [--missing | --rebuild] [--json]",
     "Says which tools lack a picture at which size; makes those that are missing, or all anew.",
     "--missing --rebuild ", 1, 1, true, imagesCommand},
};

void printHelp(QTextStream& out) {
  out << "usage: tpal COMMAND ...\n\n"
         "Looks after tool catalogs without any window. DIR is a folder with a catalog file,\n"
         "DrfTcCatalog.dtc.\n\n";
  for (const Command& c : kCommands)
    out << "  tpal " << c.synopsis << "\n      " << c.description << "\n\n";
  out << "  --json       the result as JSON on standard output\n"
         "  --to DIR     where to write instead\n"
         "  --into DIR   the folder of the catalog that takes the palettes; a new one is made if\n"
         "               there is none\n"
         "  --group NAME the group that is to hold them; made if it is not there\n"
         "  --dry-run    only looks and reports\n"
         "  --map OLD=NEW  drawings below the folder OLD are looked for below NEW from now on\n"
         "  --convert-commands  makes command tools of other products' tools that are but a macro\n"
         "  --blocks     a tool for each block of a drawing, not one for all of it\n"
         "  --missing    makes the pictures that are missing\n"
         "  --rebuild    makes all pictures anew\n"
         "  --help       this text\n"
         "  --version    the version\n\n"
         "Exit codes: 0 all is well; 1 something was found or left out; 2 wrong usage;\n"
         "3 a catalog cannot be read or written.\n";
}

/// Takes an option's value into the arguments; says what is wrong with it, if anything is.
using TakeValue = OdString (*)(Arguments& arguments, const OdString& value);

struct Option {
  const char* name;
  const char* value; ///< what it needs behind it, in words; null for a switch
  TakeValue take;
};

template <OdString Arguments::*Member>
OdString takeText(Arguments& arguments, const OdString& value) {
  arguments.*Member = value;
  return {};
}

template <bool Arguments::*Member>
OdString takeSwitch(Arguments& arguments, const OdString&) {
  arguments.*Member = true;
  return {};
}

OdString takeMap(Arguments& arguments, const OdString& value) {
  const qsizetype at = value.indexOf(u'=');
  if (at <= 0) return QStringLiteral("--map needs OLD=NEW, not \"%1\"").arg(value);
  arguments.map.emplace_back(value.left(at), value.mid(at + 1));
  return {};
}

constexpr Option kOptions[] = {
    {"--json", nullptr, takeSwitch<&Arguments::json>},
    {"--to", "a folder", takeText<&Arguments::to>},
    {"--into", "a folder", takeText<&Arguments::into>},
    {"--group", "a name", takeText<&Arguments::group>},
    {"--dry-run", nullptr, takeSwitch<&Arguments::dryRun>},
    {"--map", "OLD=NEW", takeMap},
    {"--convert-commands", nullptr, takeSwitch<&Arguments::convertCommands>},
    {"--missing", nullptr, takeSwitch<&Arguments::missing>},
    {"--rebuild", nullptr, takeSwitch<&Arguments::rebuild>},
    {"--blocks", nullptr, takeSwitch<&Arguments::blocks>},
};

const Option* findOption(const Command& command, const OdString& word) {
  for (const Option& option : kOptions) {
    const QLatin1String name(option.name);
    const bool isOffered = name == QLatin1String("--json") ||
                           QLatin1String(command.options).contains(name + QLatin1Char(' '));
    if (word == name && isOffered) return &option;
  }
  return nullptr;
}

/// Says what is wrong with the command line, if anything is.
std::optional<OdString> parse(const Command& command, const QStringList& words,
                              Arguments& arguments) {
  for (qsizetype i = 0; i < words.size(); ++i) {
    const OdString& word = words[i];
    if (!word.startsWith(u'-') || word.size() == 1) {
      arguments.words << word;
      continue;
    }
    const Option* const option = findOption(command, word);
    if (!option) return QStringLiteral("unknown option %1").arg(word);
    if (option->value && ++i == words.size())
      return QStringLiteral("%1 needs %2").arg(word, QLatin1String(option->value));
    const OdString wrong = option->take(arguments, option->value ? words[i] : OdString());
    if (!wrong.isEmpty()) return wrong;
  }
  const qsizetype count = arguments.words.size();
  if (count == 0) return QStringLiteral("a folder is missing");
  if (count < command.leastWords) return QStringLiteral("something is missing");
  if (count > command.mostWords && command.mostWords == 1)
    return QStringLiteral("one folder only, not %1").arg(count);
  if (count > command.mostWords) return QStringLiteral("there is something too much");
  return std::nullopt;
}

const Command* findCommand(const OdString& name) {
  const auto* const found =
      std::find_if(std::begin(kCommands), std::end(kCommands),
                   [&](const Command& c) { return name == QLatin1String(c.name); });
  return found == std::end(kCommands) ? nullptr : found;
}

} // namespace

bool makesPictures(const QStringList& arguments) {
  const Command* const command = findCommand(arguments.value(0));
  return command && command->makesPictures;
}

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
  const Command* const command = findCommand(first);
  if (!command) {
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
