// The kinds of object snaps, and the words that ask for one of them.
#pragma once

#include "frame/string.h"

#include <optional>
#include <span>

namespace drafton {

/// The bits of the variable OSMODE.
enum class SnapKind : int {
  kEnd = 1,
  kMiddle = 2,
  kCenter = 4,
  kNode = 8,
  kQuadrant = 16,
  kIntersection = 32,
  kInsertion = 64,
  kPerpendicular = 128,
  kTangent = 256,
  kNearest = 512,
};

/// One kind with its name in English, for lists and tips.
struct SnapRow {
  SnapKind kind;
  const char16_t* name;
};
/// All kinds, in the order of their bits.
std::span<const SnapRow> snapKinds();
/// The name in the user's language.
OdString snapName(SnapKind kind);

/// With this bit in OSMODE no kind counts.
inline constexpr int kSnapsOff = 16384;

/// What a word such as "END" or "mid" asks for at one point, as bits of SnapKind; 0 for "NONe". As
/// keywords are, it is abbreviated and in the user's language or in English. None for other words.
std::optional<int> snapKindsOf(QStringView word);
/// The word that asks for a kind, in English and without its abbreviation marked.
OdString snapWord(SnapKind kind);

} // namespace drafton
