// Values of dimension variables on their way between a snapshot and a drawing.
#pragma once

#include "drawing/tables/dim_vars.h"

#include <cstdint>
#include <type_traits>

class OdDbDatabase;

namespace tc::dim_style {

/// Where a value goes to: the drawing, and the row of the header variable that tells its range.
struct Destination {
  OdDbDatabase& database;
  const OdDbHeaderVarInfo* range; ///< null if the header has no such variable
};

// Blocks go by their name.
void takeValue(OdString& to, OdDbObjectId block);
/// A block that the drawing lacks leaves the usual arrow.
bool giveValue(const OdString& name, OdDbObjectId& to, const Destination& destination);

inline void takeValue(std::uint32_t& to, OdDb::LineWeight from) {
  to = static_cast<std::uint32_t>(std::int32_t{from});
}
/// False for a weight that drawings do not know.
bool giveValue(std::uint32_t from, OdDb::LineWeight& to, const Destination& destination);

inline void takeValue(OdString& to, const OdString& from) { to = from; }
inline bool giveValue(const OdString& from, OdString& to, const Destination&) {
  to = from;
  return true;
}

inline void takeValue(bool& to, bool from) { to = from; }
inline bool giveValue(bool from, bool& to, const Destination&) {
  to = from;
  return true;
}

inline void takeValue(double& to, double from) { to = from; }
/// False for a number outside of the variable's range.
bool giveValue(double from, double& to, const Destination& destination);

// A number below zero stands in a snapshot with the bits that it has there.
template <class Stored>
requires std::is_unsigned_v<Stored>
void takeValue(Stored& to, int from) { to = static_cast<Stored>(from); }
bool giveWhole(int from, int& to, const Destination& destination);
template <class Stored>
requires std::is_unsigned_v<Stored>
bool giveValue(Stored from, int& to, const Destination& destination) {
  return giveWhole(from, to, destination) ||
         giveWhole(static_cast<std::make_signed_t<Stored>>(from), to, destination);
}

} // namespace tc::dim_style
