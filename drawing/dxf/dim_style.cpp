// How dimension styles stand in files.
#include "drawing/dxf/in.h"
#include "drawing/dxf/out.h"

namespace {

// Variables without a code of their own: name and value behind each other.
constexpr std::string_view kApplication = "DRAFTON_DIMSTYLE";
// In files of R12 arrow blocks are told by name.
constexpr int kOldCodes[] = {5, 6, 7};
constexpr int kNewCodes[] = {342, 343, 344};

using Values = OdDbDimVarValues;

template <class T>
T valueOf(const OdDbDxfTag& tag, const T& now, OdDbDxfIn& in) {
  if constexpr (std::is_same_v<T, double>)
    return in.real(tag, now);
  else if constexpr (std::is_same_v<T, OdString>)
    return in.text(tag.text);
  else if constexpr (std::is_same_v<T, OdDbObjectId>)
    return in.reference(tag);
  else if constexpr (std::is_same_v<T, OdCmColor>) {
    const int index = std::abs(in.integer(tag, now.colorIndex()));
    return index <= OdCmColor::kACInone ? OdCmColor::fromColorIndex(index) : now;
  } else {
    return static_cast<T>(in.integer(tag, static_cast<int>(now)));
  }
}

template <class T>
void put(int code, const T& value, OdDbDxfOut& out) {
  if constexpr (std::is_same_v<T, double>)
    out.real(code, value);
  else if constexpr (std::is_same_v<T, OdString>)
    out.text(code, value);
  else if constexpr (std::is_same_v<T, OdDbObjectId>)
    out.reference(code, value);
  else if constexpr (std::is_same_v<T, OdCmColor>)
    out.integer(code, value.colorIndex());
  else
    out.integer(code, static_cast<int>(value));
}

/// The first version whose styles have a variable.
OdDb::DwgVersion since(int code) {
  static constexpr int kR2007Codes[] = {49, 50, 69, 70, 90, 290, 345, 346, 347};
  if (std::find(std::begin(kR2007Codes), std::end(kR2007Codes), code) != std::end(kR2007Codes))
    return OdDb::kR2007;
  return code == 295 ? OdDb::kR2010 : OdDb::kR2000;
}

} // namespace

bool OdDbDimStyleTableRecord::dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) {
  if (tag.code >= 1000) {
    if (tag.code == 1001) m_ownData = tag.text == kApplication;
    if (!m_ownData) return false;
    const QString text = tag.code == 1000 ? in.text(tag.text) : QString();
    const qsizetype at = text.indexOf(u'=');
    if (at <= 0) return true;
    bool isWhole = false;
    const std::int64_t whole = text.mid(at + 1).toLongLong(&isWhole);
    setVariable(text.left(at),
                isWhole ? OdDbVarValue(whole) : OdDbVarValue(text.mid(at + 1).toDouble()));
    return true;
  }
  // A later code 70 is not the flags but a variable.
  if (tag.code == 70 && in.in(dxfSubclass()) && std::exchange(m_flagsRead, true)) {
    m_values.dimtfillclr = valueOf(tag, m_values.dimtfillclr, in);
    m_inFile.set(static_cast<std::size_t>(oddbFindDimVar(70) - oddbDimVars().data()));
    return true;
  }
  if (OdDbSymbolTableRecord::dxfInTag(tag, in)) return true;
  if (!in.in(dxfSubclass())) return false;
  const auto* const old = std::find(std::begin(kOldCodes), std::end(kOldCodes), tag.code);
  if (in.isPlain() && old != std::end(kOldCodes)) {
    const int code = kNewCodes[old - std::begin(kOldCodes)];
    if (tag.text.empty()) return true;
    m_values.*std::get<OdDbObjectId Values::*>(oddbFindDimVar(code)->member) = in.block(tag.text);
    return true;
  }
  const OdDbDimVarInfo* const row = oddbFindDimVar(tag.code);
  if (!row) return false;
  m_inFile.set(static_cast<std::size_t>(row - oddbDimVars().data()));
  std::visit([&](auto member) { m_values.*member = valueOf(tag, m_values.*member, in); },
             row->member);
  return true;
}

void OdDbDimStyleTableRecord::dxfInEnd(OdDbDxfIn&) { m_flagsRead = m_ownData = false; }

void OdDbDimStyleTableRecord::dxfOutFields(OdDbDxfOut& out) const {
  OdDbSymbolTableRecord::dxfOutFields(out);
  static const Values kPreset;
  for (const OdDbDimVarInfo& row : oddbDimVars()) {
    const bool inFile = m_inFile.test(static_cast<std::size_t>(&row - oddbDimVars().data()));
    // What an old file has although it should not is kept, but nothing new is told to old programs.
    const bool isOwn = inFile && out.version() >= out.database().originalFileVersion();
    if (row.code == 0 || (since(row.code) > out.version() && !isOwn)) continue;
    std::visit(
        [&](auto member) {
          if (inFile || m_values.*member != kPreset.*member) put(row.code, m_values.*member, out);
        },
        row.member);
  }
}

void OdDbDimStyleTableRecord::dxfOutXData(OdDbDxfOut& out) const {
  static const Values kPreset;
  bool isNamed = false;
  for (const OdDbDimVarInfo& row : oddbDimVars()) {
    if (row.code != 0) continue;
    const auto text = std::visit(
        [&](auto member) -> OdString {
          using T = std::remove_cvref_t<decltype(m_values.*member)>;
          if (m_values.*member == kPreset.*member) return {};
          if constexpr (std::is_arithmetic_v<T>)
            return QLatin1String(row.name) + u'=' + OdString::number(m_values.*member, 'g', 17);
          return {};
        },
        row.member);
    if (text.isEmpty()) continue;
    if (!std::exchange(isNamed, true)) out.raw(1001, kApplication);
    out.text(1000, text);
  }
}
