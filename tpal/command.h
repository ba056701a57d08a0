// What a command of the catalog tool is.
#pragma once

#include "catalog/folder_map.h"

#include <QTextStream>

namespace tpal {

/// Stable exit codes, for scripts.
enum ExitCode {
  kOk = 0,
  kFindings = 1, ///< the check found something, or something was left out
  kUsage = 2,    ///< the command line is wrong
  kFailed = 3,   ///< a catalog cannot be read or written
};

/// A parsed command line.
struct Arguments {
  QStringList words;   ///< what is no option: folders and files
  OdString to;         ///< --to
  OdString into;       ///< --into
  OdString group;      ///< --group
  QStringList only;    ///< --only, codes or words of findings
  QStringList ignored; ///< --ignore, the same
  /// --map, in the order of the command line
  tc::OdTcFolderMap map;
  bool json = false;            ///< --json
  bool csv = false;             ///< --csv
  bool dryRun = false;          ///< --dry-run
  bool convertCommands = false; ///< --convert-commands
  bool missing = false;         ///< --missing
  bool rebuild = false;         ///< --rebuild
  bool blocks = false;          ///< --blocks
  bool dropMissing = false;     ///< --drop-missing
  int wait = 10;                ///< --wait, seconds
};

/// Where a command writes.
struct Console {
  QTextStream& out;
  QTextStream& err;
  bool showsProgress = false; ///< err is a terminal, where a line can be written over
};

/// One command of the tool.
struct Command {
  const char* name;
  const char*
      synopsis; ///< with the options that it does not work without or that exclude each other
  const char* description;
  /// The options that it takes, each followed by a blank.
  const char* options;
  int leastWords;
  int mostWords;
  bool makesPictures; ///< draws, if only to see what can be drawn: needs fonts
  ExitCode (*run)(const Arguments& arguments, Console& console);
};

ExitCode listCommand(const Arguments& arguments, Console& console);
ExitCode checkCommand(const Arguments& arguments, Console& console);
ExitCode diffCommand(const Arguments& arguments, Console& console);
ExitCode resaveCommand(const Arguments& arguments, Console& console);
ExitCode relocateCommand(const Arguments& arguments, Console& console);
ExitCode importCommand(const Arguments& arguments, Console& console);
ExitCode imagesCommand(const Arguments& arguments, Console& console);
ExitCode exportCommand(const Arguments& arguments, Console& console);
ExitCode makeCommand(const Arguments& arguments, Console& console);

/// True if the tool makes pictures with these arguments. Most runs need no fonts and start without.
bool makesPictures(const QStringList& arguments);
/// Runs the tool with its arguments (without the program's name).
ExitCode runTool(const QStringList& arguments, Console& console);

} // namespace tpal
