#include "drafton/batch/batch_options.h"

#include "drafton/engine/dxf_versions.h"

namespace drafton {
namespace {

/// The options as far as they were read.
struct Reading {
  BatchOptions options;
  PictureOptions picture;
};

void storePicture(Reading& reading, const char16_t* option, const OdString& file) {
  reading.picture.option = OdString::fromUtf16(option);
  reading.picture.file = file;
}

/// An option that takes a value.
struct ValueOption {
  const char16_t* name;
  void (*store)(Reading& reading, const OdString& value);
  bool isFile = false; ///< an empty value is none
};

constexpr ValueOption kOptions[] = {
    {u"--catalogs", [](Reading& r, const OdString& value) { r.options.catalogs = value; }},
    {u"--profile", [](Reading& r, const OdString& value) { r.options.profile = value; }, true},
    {u"--script", [](Reading& r, const OdString& value) { r.options.script = value; }, true},
    {u"--out", [](Reading& r, const OdString& value) { r.options.out = value; }, true},
    {u"--dxf-version", [](Reading& r, const OdString& value) { r.options.dxfVersion = value; }},
    {u"--png", [](Reading& r, const OdString& value) { storePicture(r, u"--png", value); }},
    {u"--pdf", [](Reading& r, const OdString& value) { storePicture(r, u"--pdf", value); }},
    {u"--svg", [](Reading& r, const OdString& value) { storePicture(r, u"--svg", value); }},
    {u"--size", [](Reading& r, const OdString& value) { r.picture.size = value; }},
    {u"--background", [](Reading& r, const OdString& value) { r.picture.background = value; }},
    {u"--window", [](Reading& r, const OdString& value) { r.picture.window = value; }},
    {u"--layout", [](Reading& r, const OdString& value) { r.picture.layout = value; }},
};

const OdString kExtents = QStringLiteral("--extents");
const OdString kKeepGoing = QStringLiteral("--keep-going");

BatchArguments wrong(const OdString& error) {
  return {.wish = BatchArguments::Wish::kWrong, .options = {}, .error = error};
}

const ValueOption* findOption(QStringView name) {
  for (const ValueOption& option : kOptions)
    if (name == QStringView(option.name)) return &option;
  return nullptr;
}

/// Reads the option at `i`, and its value if that stands behind it. Gives what is wrong with it.
OdString readOption(const QStringList& arguments, qsizetype& i, Reading& result) {
  const OdString& argument = arguments[i];
  if (argument == kExtents) {
    result.picture.extents = true;
    return {};
  }
  if (argument == kKeepGoing) {
    result.options.keepsGoing = true;
    return {};
  }
  const qsizetype equals = argument.indexOf(u'=');
  const OdString name = equals < 0 ? argument : argument.left(equals);
  const ValueOption* const option = findOption(name);
  if (!option) return QStringLiteral("unknown option %1").arg(name);
  if (equals < 0 && i + 1 >= arguments.size()) return QStringLiteral("%1 needs a value").arg(name);
  const OdString value = equals < 0 ? arguments[++i] : argument.mid(equals + 1);
  // A variable that the shell does not know must not do without the file.
  if (option->isFile && value.isEmpty())
    return QStringLiteral("%1 needs the name of a file").arg(name);
  option->store(result, value);
  return {};
}

/// Takes what is no option: the one drawing.
OdString readName(const OdString& argument, Reading& result) {
  if (!result.options.drawing.isEmpty())
    return QStringLiteral("more than one drawing: %1 and %2").arg(result.options.drawing, argument);
  if (argument.isEmpty()) return QStringLiteral("the name of the drawing is empty");
  result.options.drawing = argument;
  return {};
}

/// Reads all behind the first word. Gives what is wrong; empty if nothing is.
OdString read(const QStringList& arguments, Reading& result) {
  bool onlyNames = false;
  for (qsizetype i = 1; i < arguments.size(); ++i) {
    const OdString& argument = arguments[i];
    OdString error;
    if (!onlyNames && argument == QLatin1String("--"))
      onlyNames = true;
    else if (!onlyNames && argument.startsWith(QLatin1String("--")))
      error = readOption(arguments, i, result);
    else if (!onlyNames && argument.size() > 1 && argument.startsWith(u'-'))
      error = QStringLiteral("unknown option %1").arg(argument);
    else
      error = readName(argument, result);
    if (!error.isEmpty()) return error;
  }
  return {};
}

} // namespace

BatchArguments parseArguments(const QStringList& arguments) {
  for (const OdString& argument : arguments) {
    if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
      return {.wish = BatchArguments::Wish::kHelp, .options = {}, .error = {}};
    if (argument == QLatin1String("--version"))
      return {.wish = BatchArguments::Wish::kVersion, .options = {}, .error = {}};
  }
  if (arguments.isEmpty()) return {.wish = BatchArguments::Wish::kHelp, .options = {}, .error = {}};
  if (arguments.first() != QLatin1String("batch"))
    return wrong(QStringLiteral("'%1' is not known; use 'drafton batch'").arg(arguments.first()));
  Reading result;
  if (const OdString error = read(arguments, result); !error.isEmpty()) return wrong(error);
  if (const OdString& version = result.options.dxfVersion; !version.isEmpty()) {
    if (!dxfVersionNamed(version))
      return wrong(QStringLiteral("--dxf-version needs one of: %1").arg(dxfVersionNames()));
    if (result.options.out.isEmpty())
      return wrong(QStringLiteral("--dxf-version needs --out FILE"));
  }
  OdString error;
  const std::optional<PictureRequest> picture = pictureRequest(result.picture, error);
  if (!picture) return wrong(error);
  if (result.picture.isWanted()) result.options.picture = picture;
  return {.wish = BatchArguments::Wish::kRun, .options = result.options, .error = {}};
}

OdString helpText() {
  return QStringLiteral(
      "Usage: drafton [--catalogs DIR[;DIR...]] [--profile FILE] [DRAWING...]\n"
      "       drafton batch [--catalogs DIR[;DIR...]] [--profile FILE] [--script FILE]\n"
      "                     [--keep-going] [--out FILE.dxf [--dxf-version V]]\n"
      "                     [--png FILE [--size WxH] [--background COLOR]\n"
      "                     [--extents | --window X1,Y1,X2,Y2] [--layout NAME]] [DRAWING.dxf]\n"
      "\n"
      "The first opens Drafton's window, with the drawings in tabs; without one, with a new\n"
      "drawing.\n"
      "\n"
      "The second runs Drafton without a window. The lines of the script, or of standard\n"
      "input, are typed into the command line; each is followed by Enter. What the command\n"
      "line shows goes to standard output, errors go to standard error.\n"
      "\n"
      "  DRAWING.dxf      the drawing to open; without it a new one\n"
      "  --catalogs DIRS  the folders of tool palette catalogs for this run, separated by ;\n"
      "  --profile FILE   the settings file; without it the user's own\n"
      "  --script FILE    the script; without it, or with -, standard input\n"
      "  --keep-going     goes on behind lines that fail, each of which is named; the drawing is\n"
      "                   saved and drawn all the same, and the exit code is 1\n"
      "  --out FILE.dxf   saves the active drawing there at the end, unless the script failed\n"
      "  --dxf-version V  in that version: R2000, R2004, R2007, R2010, R2013 or R2018; without\n"
      "                   it in that of the drawing\n"
      "  --png FILE       draws the active drawing into a picture at the end, unless the script\n"
      "                   failed; the name's end says which kind: .png, .pdf or .svg. --pdf FILE\n"
      "                   and --svg FILE do the same\n"
      "  --size WxH       the picture's width and height in pixels; for pages 96 make an inch\n"
      "  --background C   its colour: a name, #RRGGBB, or transparent; without it white\n"
      "  --extents        shows all that the space has; without it a layout shows its sheet\n"
      "  --window CORNERS shows what is between two corners, as X1,Y1,X2,Y2\n"
      "  --layout NAME    shows a layout in the place of the model\n"
      "  --help           shows this text\n"
      "  --version        shows the version\n"
      "\n"
      "In a script a blank ends a word, an empty line is Enter, ^C cancels, and a text with\n"
      "blanks can stand in double quotes. The line TOOL:<name> runs the tool of that name,\n"
      "DOCUMENT:<name> goes on in another open drawing. A line that begins with # while no\n"
      "command waits is a comment. The script ends at the first command that is unknown or\n"
      "fails, or that still waits at its end.\n"
      "\n"
      "Exit codes: 0 all was done, 1 the script failed, 2 wrong arguments, 3 a drawing\n"
      "or its picture cannot be opened or saved.\n");
}

} // namespace drafton
