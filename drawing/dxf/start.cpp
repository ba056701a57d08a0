#include "drawing/dxf/start.h"

#include "drawing/errors.h"
#include "drawing/handle.h"

#include <algorithm>

namespace {

/// True if the rest of the header tells nothing more: newer files have one encoding.
bool isComplete(const oddxf::Start& start) {
  return start.version >= OdDb::kR2007 && start.handseed != 0 &&
         start.handseed <= oddxf::kHighestHandle;
}

OdDb::DwgVersion versionOf(std::string_view text) {
  for (int v = OdDb::kR12; v <= OdDb::kR2018; ++v)
    if (const auto version = static_cast<OdDb::DwgVersion>(v); text == OdDb::versionText(version))
      return version;
  // Older than R12 is much like it, and so are R13 and R14 like R2000; what is newer may be like
  // nothing.
  constexpr std::string_view kFirstText = "AC1.";
  if (text.starts_with(kFirstText) || text.starts_with("MC") || text.starts_with("AC2."))
    return OdDb::kR12;
  if (text > std::string_view(OdDb::versionText(OdDb::kR2018))) return OdDb::kVersionUnknown;
  return text <= std::string_view("AC1010") ? OdDb::kR12 : OdDb::kR2000;
}

QString shown(std::string_view text) {
  return QString::fromLatin1(text.data(),
                             static_cast<qsizetype>(std::min<std::size_t>(text.size(), 40)));
}

} // namespace

oddxf::Start oddxf::lookAhead(OdDbDxfSource& source, const OdString& name) {
  OdDbDxfTag tag;
  const auto result = source.next(tag);
  if (result != OdDbDxfSource::kTag || !tag.is(0, "SECTION")) {
    OdString reason = QStringLiteral("this is not a DXF drawing");
    if (!source.problem().isEmpty()) reason += QStringLiteral(": ") + source.problem();
    throw OdDbFileError(name, source.line(), reason);
  }
  Start start;
  start.handseed = 0;
  std::string variable;
  while (!isComplete(start) && source.next(tag) == OdDbDxfSource::kTag && !tag.is(0, "ENDSEC")) {
    if (tag.code == 9) variable = tag.text;
    if (variable == "$HANDSEED" && tag.code == 5)
      start.handseed = OdDbHandle::fromText(tag.text).value_or(0);
    if (variable == "$DWGCODEPAGE" && tag.code == 3) start.codePage = tag.text;
    if (variable == "$HANDLING" && tag.code == 70)
      start.hasHandles = tag.text.find('1') != std::string_view::npos;
    if (variable != "$ACADVER" || tag.code != 1) continue;
    start.version = versionOf(tag.text);
    if (start.version == OdDb::kVersionUnknown)
      throw OdDbFileError(name, source.line(),
                          QStringLiteral("the version %1 is not known").arg(shown(tag.text)));
  }
  if (!start.isPlain()) start.hasHandles = true;
  // Old files may tell a number that is lower than those of their objects.
  if (start.hasHandles &&
      (start.isPlain() || start.handseed == 0 || start.handseed > kHighestHandle)) {
    start.handseed = 1;
    while (source.next(tag) == OdDbDxfSource::kTag)
      if (tag.code == 5 || tag.code == 105)
        if (const auto handle = OdDbHandle::fromText(tag.text); handle && *handle < kHighestHandle)
          start.handseed = std::max<std::uint64_t>(start.handseed, *handle + 1);
  }
  start.handseed = std::max<std::uint64_t>(start.handseed, 1);
  return start;
}
