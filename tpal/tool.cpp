#include "frame/file_path.h"
#include "tpal/command.h"
#include "tpal/finding.h"

#include <QFileInfo>

#include <algorithm>
#include <optional>

namespace tpal {
namespace {

constexpr int kAnyNumber = 1 << 20;

constexpr Command kCommands[] = {
    {"list", "list DIR... [--csv | --json]",
     "Shows the tree: catalogs, groups, palettes, and tools with their kind and command.",
     "--csv --json ", 1, kAnyNumber, false, listCommand},
    {"check", "check DIR... [--csv | --json]",
     "Looks for files that cannot be read, palettes and pictures that are missing, dangling\n"
     "references, ids that stand twice, tools that do nothing, paths that lead nowhere, unknown\n"
     "patterns, and files of palettes and pictures that belong to nothing.",
     "--only --ignore --csv --json ", 1, kAnyNumber, true, checkCommand},
    {"diff", "diff DIR DIR",
     "Says what the second catalog has that the first has not, what it lacks, and what differs,\n"
     "value by value. Palettes and tools are told by their ids.",
     "--json ", 2, 2, false, diffCommand},
    {"resave", "resave DIR",
     "Reads a catalog with its palettes and writes them anew, in place or into another folder.",
     "--to --drop-missing --wait --json ", 1, 1, false, resaveCommand},
    {"relocate", "relocate DIR --map OLD=NEW...",
     "Lets the tools of a catalog find their source files in folders that have moved. Says of "
     "each\n"
     "tool where it looks from now on, and whether the file is there.",
     "--map --dry-run --wait --json ", 1, 1, false, relocateCommand},
    {"import", "import FILE... --into DIR",
     "Takes palettes of AutoCAD into a catalog: exported ones (.xtp), palettes and catalogs of "
     "its\n"
     "stores (.atc), and all of these in a folder. Says of each tool what became of it.",
     "--into --group --dry-run --map --convert-commands --wait --json ", 1, kAnyNumber, true,
     importCommand},
    {"export", "export DIR PALETTE FILE.xtp",
     "Writes a palette, given by its name or id, for other programs, with its pictures beside it.",
     "--json ", 3, 3, false, exportCommand},
    {"make", "make DIR PALETTE FILE...",
     "Makes tools with pictures: of drawings, or of each block in them; of pictures; of all of\n"
     "these in a folder; of commands, by their names. The catalog and the palette are made if "
     "they\n"
     "are not there.",
     "--blocks --group --dry-run --wait --json ", 3, kAnyNumber, true, makeCommand},
    {"images", "images DIR [--missing | --rebuild]",
     "Says which tools lack a picture at which size; makes those that are missing, or all anew.",
     "--missing --rebuild --wait --json ", 1, 1, true, imagesCommand},
};

/// Takes an option's value into the arguments; says what is wrong with it, if anything is.
using TakeValue = OdString (*)(Arguments& arguments, const OdString& value);

struct Option {
  const char* name;
  const char* value; ///< what stands behind it; null for a switch
  const char* need;  ///< what that is, in words
  const char* help;
  TakeValue take;
  bool isRepeated = false;
  bool isNamed = false; ///< an empty value is none
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

/// A folder of the user's shell, where it is: what it goes into lies elsewhere.
OdString placeOf(const OdString& folder) {
  if (!odpath::isRelative(folder) || folder.startsWith(u'%')) return folder;
  return odpath::fromPlatform(QFileInfo(odpath::toPlatform(folder)).absoluteFilePath());
}

OdString takeMap(Arguments& arguments, const OdString& value) {
  const qsizetype at = value.indexOf(u'=');
  // Nothing behind it is a variable that the shell does not know: all sources would lie at the
  // root.
  if (at <= 0 || at + 1 == value.size())
    return QStringLiteral("--map needs OLD=NEW, not \"%1\"").arg(value);
  arguments.map.emplace_back(value.left(at), placeOf(value.mid(at + 1)));
  return {};
}

OdString takeSeconds(Arguments& arguments, const OdString& value) {
  constexpr int kMostSeconds = 24 * 60 * 60;
  bool isNumber = false;
  arguments.wait = value.toInt(&isNumber);
  if (isNumber && arguments.wait >= 0 && arguments.wait <= kMostSeconds) return {};
  return QStringLiteral("--wait needs seconds, 0 to %1, not \"%2\"").arg(kMostSeconds).arg(value);
}

/// Codes and words of findings, separated by commas.
template <QStringList Arguments::*Member>
OdString takeKinds(Arguments& arguments, const OdString& value) {
  for (const OdString& word : value.split(u',', Qt::SkipEmptyParts)) {
    if (!findKind(word)) return QStringLiteral("there is no finding \"%1\"").arg(word);
    arguments.*Member << word;
  }
  return {};
}

constexpr Option kOptions[] = {
    {"--to", "DIR", "a folder", "where to write instead", takeText<&Arguments::to>, false, true},
    {"--into", "DIR", "a folder",
     "the folder of the catalog that takes the palettes; a new one is made if there is none",
     takeText<&Arguments::into>, false, true},
    {"--group", "NAME", "a name", "the group that is to hold them; made if it is not there",
     takeText<&Arguments::group>},
    {"--dry-run", nullptr, nullptr, "only looks and reports", takeSwitch<&Arguments::dryRun>},
    {"--map", "OLD=NEW", "OLD=NEW",
     "source files below the folder OLD are looked for below NEW from now on", takeMap, true},
    {"--convert-commands", nullptr, nullptr,
     "makes command tools of other products' tools that are but a macro",
     takeSwitch<&Arguments::convertCommands>},
    {"--blocks", nullptr, nullptr, "a tool for each block of a drawing, not one for all of it",
     takeSwitch<&Arguments::blocks>},
    {"--missing", nullptr, nullptr, "makes the pictures that are missing",
     takeSwitch<&Arguments::missing>},
    {"--rebuild", nullptr, nullptr, "makes all pictures anew", takeSwitch<&Arguments::rebuild>},
    {"--drop-missing", nullptr, nullptr,
     "takes palettes whose files are not there out of the catalog and its groups",
     takeSwitch<&Arguments::dropMissing>},
    {"--wait", "SECONDS", "seconds",
     "how long to wait for another tpal that writes the catalog; 10 without it", takeSeconds},
    {"--only", "CODE,...", "codes of findings", "looks for these alone, such as C101,C102",
     takeKinds<&Arguments::only>},
    {"--ignore", "CODE,...", "codes of findings", "says nothing of these",
     takeKinds<&Arguments::ignored>},
    {"--csv", nullptr, nullptr, "the result as a table for spreadsheets",
     takeSwitch<&Arguments::csv>},
    {"--json", nullptr, nullptr, "the result as JSON on standard output",
     takeSwitch<&Arguments::json>},
};

bool isOffered(const Command& command, const Option& option) {
  return QLatin1String(command.options).contains(QLatin1String(option.name) + QLatin1Char(' '));
}

const Option* findOption(const Command& command, const OdString& word) {
  for (const Option& option : kOptions)
    if (word == QLatin1String(option.name) && isOffered(command, option)) return &option;
  return nullptr;
}

OdString withValue(const Option& option) {
  const OdString name = QLatin1String(option.name);
  return option.value ? name + u' ' + QLatin1String(option.value) : name;
}

/// What is to be typed, in lines that fit a terminal.
OdString usageOf(const Command& command) {
  constexpr qsizetype kWidth = 96;
  const OdString indent = QStringLiteral("\n           ");
  OdString usage = QStringLiteral("tpal ") + QLatin1String(command.synopsis);
  qsizetype length = usage.size();
  for (const Option& option : kOptions) {
    const bool isSaidAlready = QLatin1String(command.synopsis).contains(QLatin1String(option.name));
    if (!isOffered(command, option) || isSaidAlready) continue;
    OdString word = u'[' + withValue(option) + u']';
    if (option.isRepeated) word += QLatin1String("...");
    if (length + 1 + word.size() > kWidth) {
      usage += indent;
      length = indent.size();
    }
    usage += u' ' + word;
    length += 1 + word.size();
  }
  return usage;
}

void printOption(QTextStream& out, const OdString& name, const char* help) {
  out << "  " << name.leftJustified(20) << "  " << help << "\n";
}

void printExitCodes(QTextStream& out) {
  out << "\nExit codes: 0 all is well; 1 something was found or left out; 2 wrong usage;\n"
         "3 a catalog or an exchange file cannot be read or written.\n";
}

void printHelp(const Command& command, QTextStream& out) {
  out << "usage: " << usageOf(command) << "\n\n" << command.description << "\n\n";
  for (const Option& option : kOptions)
    if (isOffered(command, option)) printOption(out, withValue(option), option.help);
  printExitCodes(out);
}

void printHelp(QTextStream& out) {
  out << "usage: tpal COMMAND ...\n\n"
         "Looks after tool catalogs without any window. DIR is a folder with a catalog file,\n"
         "DrfTcCatalog.dtc.\n\n";
  for (const Command& c : kCommands) {
    OdString description = QLatin1String(c.description);
    description.replace(u'\n', QLatin1String("\n      "));
    out << "  " << usageOf(c) << "\n      " << description << "\n\n";
  }
  for (const Option& option : kOptions) printOption(out, withValue(option), option.help);
  printOption(out, QStringLiteral("--help"), "this text; behind a command, what is told of that");
  printOption(out, QStringLiteral("--version"), "the version");
  printExitCodes(out);
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
    if (option->value && (++i == words.size() || (option->isNamed && words[i].isEmpty())))
      return QStringLiteral("%1 needs %2").arg(word, QLatin1String(option->need));
    const OdString wrong = option->take(arguments, option->value ? words[i] : OdString());
    if (!wrong.isEmpty()) return wrong;
  }
  const qsizetype count = arguments.words.size();
  if (count == 0) return QStringLiteral("a folder is missing");
  // A variable that the shell does not know must not stand for the root of all files.
  if (arguments.words.first().isEmpty() || arguments.words.last().isEmpty())
    return QStringLiteral("an empty word stands for no file or folder");
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

bool asksForHelp(const QStringList& words) {
  return words.contains(QLatin1String("--help")) || words.contains(QLatin1String("-h")) ||
         words.value(0) == QLatin1String("help");
}

} // namespace

bool makesPictures(const QStringList& arguments) {
  const Command* const command = findCommand(arguments.value(0));
  return command && command->makesPictures;
}

ExitCode runTool(const QStringList& words, Console& console) {
  const OdString first = words.isEmpty() ? OdString() : words.first();
  const bool isHelp = asksForHelp(words);
  const Command* const command =
      findCommand(first == QLatin1String("help") ? words.value(1) : first);
  if (isHelp) {
    if (command)
      printHelp(*command, console.out);
    else
      printHelp(console.out);
    return kOk;
  }
  if (first == QLatin1String("--version")) {
    console.out << "tpal " TPAL_VERSION "\n";
    return kOk;
  }
  if (!command) {
    console.err << (first.isEmpty() ? QStringLiteral("tpal: a command is missing")
                                    : QStringLiteral("tpal: unknown command %1").arg(first))
                << "; see tpal --help\n";
    return kUsage;
  }
  Arguments arguments;
  auto wrong = parse(*command, words.mid(1), arguments);
  if (!wrong && arguments.csv && arguments.json)
    wrong = QStringLiteral("--csv and --json exclude each other");
  if (wrong) {
    console.err << "tpal: " << *wrong << "; usage: " << usageOf(*command) << "\n";
    return kUsage;
  }
  return command->run(arguments, console);
}

} // namespace tpal
