#include "drafton/engine/commands/font_names.h"

#include "drafton/engine/translator.h"
#include "frame/file_path.h"

#include <algorithm>

namespace drafton {
namespace {

/// Shape fonts that are named without their extension. Any other name without one is a typeface.
constexpr const char* kShapeFonts[] = {
    "complex", "cyrillic", "cyriltlc", "gothice", "gothicg", "gothici", "greekc",  "greeks",
    "isocp",   "isocp2",   "isocp3",   "isoct",   "isoct2",  "isoct3",  "italic",  "italicc",
    "italict", "monotxt",  "romanc",   "romand",  "romans",  "romant",  "scriptc", "scripts",
    "simplex", "syastro",  "symap",    "symath",  "symeteo", "symusic", "txt",
};

bool isShapeFont(const OdString& name) {
  if (odpath::extensionOf(name) == QLatin1String("shx")) return true;
  return std::any_of(std::begin(kShapeFonts), std::end(kShapeFonts), [&](const char* font) {
    return name.compare(QLatin1String(font), Qt::CaseInsensitive) == 0;
  });
}

bool isFontFile(const OdString& name) {
  const OdString extension = odpath::extensionOf(name);
  return extension == QLatin1String("ttf") || extension == QLatin1String("ttc") ||
         extension == QLatin1String("otf");
}

/// Takes a word off the end of a name.
bool takeWord(OdString& name, QLatin1String word) {
  if (!name.endsWith(u' ' + word, Qt::CaseInsensitive)) return false;
  name.chop(word.size() + 1);
  name = name.trimmed();
  return true;
}

OdDbFontDescriptor typeFaceFrom(OdString name) {
  OdDbFontDescriptor font;
  for (bool more = true; more;) {
    const bool bold = takeWord(name, QLatin1String("Bold"));
    const bool italic = takeWord(name, QLatin1String("Italic"));
    font.bold = font.bold || bold;
    font.italic = font.italic || italic;
    more = bold || italic;
  }
  font.typeFace = name;
  return font;
}

} // namespace

OdString shownFont(const OdDbTextStyleTableRecord& style) {
  const OdDbFontDescriptor& font = style.font();
  if (!font.typeFace.isEmpty())
    return font.typeFace + (font.bold ? QStringLiteral(" Bold") : OdString()) +
           (font.italic ? QStringLiteral(" Italic") : OdString());
  if (style.bigFontFileName().isEmpty()) return style.fileName();
  return style.fileName() + u',' + style.bigFontFileName();
}

OdString setFont(OdDbTextStyleTableRecord& style, const OdString& name) {
  const OdString file = name.section(u',', 0, 0).trimmed();
  const OdString big = name.section(u',', 1).trimmed();
  if (file.isEmpty()) return translated(u"A font is needed.");
  const bool isShape = isShapeFont(file);
  if (!big.isEmpty() && (!isShape || big.contains(u',')))
    return translated(u"Only a shape font can have one big font.");
  if (!big.isEmpty() && !isShapeFont(big) && !odpath::extensionOf(big).isEmpty())
    return translated(u"\"%1\" is no big font.").arg(big.left(60));
  const bool isFile = isShape || isFontFile(file);
  style.setFont(isFile ? OdDbFontDescriptor() : typeFaceFrom(file));
  style.setFileName(isFile ? file : OdString());
  style.setBigFontFileName(big);
  return {};
}

bool hasShapeFont(const OdDbTextStyleTableRecord& style) {
  return style.font().typeFace.isEmpty() && !isFontFile(style.fileName());
}

} // namespace drafton
