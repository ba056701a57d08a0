// Words that the whole drawing database shares.
#pragma once

#include <cstdint>

namespace OdDb {

enum OpenMode : std::uint8_t { kForRead = 0, kForWrite = 1 };

/// Hundredths of a millimetre, or one of the three that are taken from elsewhere.
enum LineWeight : std::int16_t {
  kLnWtByLayer = -1,
  kLnWtByBlock = -2,
  kLnWtByLwDefault = -3,
  kLnWt000 = 0,
  kLnWt211 = 211,
};
/// True for the three special values and the 24 widths that drawings know.
bool isValidLineWeight(int value);

enum PlotStyleNameType : std::uint8_t {
  kPlotStyleNameByLayer = 0,
  kPlotStyleNameByBlock = 1,
  kPlotStyleNameIsDictDefault = 2,
  kPlotStyleNameById = 3,
};

/// File versions by the year of the format.
enum DwgVersion : std::uint8_t {
  kVersionUnknown = 0,
  kR12,
  kR2000,
  kR2004,
  kR2007,
  kR2010,
  kR2013,
  kR2018,
};
/// The text of $ACADVER ("AC1032"); null for kVersionUnknown.
const char* versionText(DwgVersion version);

enum TextHorzMode : std::int8_t {
  kTextLeft = 0,
  kTextCenter = 1,
  kTextRight = 2,
  kTextAlign = 3,
  kTextMid = 4,
  kTextFit = 5,
};
enum TextVertMode : std::int8_t { kTextBase = 0, kTextBottom = 1, kTextVertMid = 2, kTextTop = 3 };

} // namespace OdDb
