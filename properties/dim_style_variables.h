// The variables of a dimension style's snapshot.
#pragma once

#include "properties/stored_field.h"

#include <array>
#include <cstdint>

namespace tc {

/// One member for each variable, under the variable's name. New ones have the values of a plain
/// style in inches. Angles are radians, line weights hundredths of a millimetre in 32 bits.
struct OdTcDimStyleVariables {
  static constexpr std::uint32_t kByBlockWeight = 0xFFFFFFFE;

  OdString dimapost;
  OdString dimpost;
  OdString dimblk;
  OdString dimblk1;
  OdString dimblk2;
  OdString dimldrblk;
  double dimaltf = 25.4;
  double dimaltrnd = 0.0;
  double dimasz = 0.18;
  double dimcen = 0.09;
  double dimdle = 0.0;
  double dimdli = 0.38;
  double dimexe = 0.18;
  double dimexo = 0.0625;
  double dimgap = 0.09;
  double dimlfac = 1.0;
  double dimrnd = 0.0;
  double dimscale = 1.0;
  double dimtfac = 1.0;
  double dimtm = 0.0;
  double dimtp = 0.0;
  double dimtsz = 0.0;
  double dimtvp = 0.0;
  double dimtxt = 0.18;
  double dimfxl = 1.0;
  double dimjogang = 0.785398163397448;
  double dimaltmzf = 100.0;
  std::uint32_t dimlwd = kByBlockWeight;
  std::uint32_t dimlwe = kByBlockWeight;
  std::uint16_t dimadec = 0;
  std::uint16_t dimaltd = 2;
  std::uint16_t dimalttd = 2;
  std::uint16_t dimatfit = 3;
  std::uint16_t dimaunit = 0;
  std::uint16_t dimazin = 0;
  std::uint16_t dimdec = 4;
  std::uint16_t dimdsep = 46;
  std::uint16_t dimfrac = 0;
  std::uint16_t dimjust = 0;
  std::uint16_t dimlunit = 2;
  std::uint16_t dimtad = 0;
  std::uint16_t dimtdec = 4;
  std::uint16_t dimtmove = 0;
  std::uint16_t dimfixedext = 0;
  std::uint16_t dimarcsym = 0;
  std::uint16_t dimtfill = 0;
  std::uint8_t dimalttz = 0;
  std::uint8_t dimtolj = 1;
  std::uint8_t dimtzin = 0;
  std::uint8_t dimzin = 0;
  std::uint8_t dimaltz = 0;
  bool dimalt = false;
  bool dimlim = false;
  bool dimsah = false;
  bool dimsd1 = false;
  bool dimsd2 = false;
  bool dimse1 = false;
  bool dimse2 = false;
  bool dimsoxd = false;
  bool dimtih = true;
  bool dimtix = false;
  bool dimtofl = false;
  bool dimtoh = true;
  bool dimtol = false;
  bool dimupt = false;
  bool dimfxlon = false;
  bool dimtxtdirection = false;

  bool operator==(const OdTcDimStyleVariables&) const = default;
};

namespace dim_style {

using Variables = OdTcDimStyleVariables;
using Field = StoredField<Variables>;

/// Two names have mixed case, and one flag alone is written as a native boolean value.
inline constexpr std::array kVariables = {
    Field{u"dimadec", &Variables::dimadec},
    Field{u"dimalt", &Variables::dimalt},
    Field{u"dimaltd", &Variables::dimaltd},
    Field{u"dimaltf", &Variables::dimaltf},
    Field{u"dimaltrnd", &Variables::dimaltrnd},
    Field{u"dimalttd", &Variables::dimalttd},
    Field{u"dimalttz", &Variables::dimalttz},
    Field{u"dimasz", &Variables::dimasz},
    Field{u"dimatfit", &Variables::dimatfit},
    Field{u"dimaunit", &Variables::dimaunit},
    Field{u"dimazin", &Variables::dimazin},
    Field{u"dimcen", &Variables::dimcen},
    Field{u"dimdec", &Variables::dimdec},
    Field{u"dimdle", &Variables::dimdle},
    Field{u"dimdli", &Variables::dimdli},
    Field{u"dimdsep", &Variables::dimdsep},
    Field{u"dimexe", &Variables::dimexe},
    Field{u"dimexo", &Variables::dimexo},
    Field{u"dimfrac", &Variables::dimfrac},
    Field{u"dimgap", &Variables::dimgap},
    Field{u"dimjust", &Variables::dimjust},
    Field{u"dimlfac", &Variables::dimlfac},
    Field{u"dimlim", &Variables::dimlim},
    Field{u"dimlunit", &Variables::dimlunit},
    Field{u"dimlwd", &Variables::dimlwd},
    Field{u"dimlwe", &Variables::dimlwe},
    Field{u"dimrnd", &Variables::dimrnd},
    Field{u"dimsah", &Variables::dimsah},
    Field{u"dimscale", &Variables::dimscale},
    Field{u"dimsd1", &Variables::dimsd1},
    Field{u"dimsd2", &Variables::dimsd2},
    Field{u"dimse1", &Variables::dimse1},
    Field{u"dimse2", &Variables::dimse2},
    Field{u"dimsoxd", &Variables::dimsoxd},
    Field{u"dimtad", &Variables::dimtad},
    Field{u"dimtdec", &Variables::dimtdec},
    Field{u"dimtfac", &Variables::dimtfac},
    Field{u"dimtih", &Variables::dimtih},
    Field{u"dimtix", &Variables::dimtix},
    Field{u"dimtm", &Variables::dimtm},
    Field{u"dimtmove", &Variables::dimtmove},
    Field{u"dimtofL", &Variables::dimtofl},
    Field{u"dimtoh", &Variables::dimtoh},
    Field{u"dimtoL", &Variables::dimtol},
    Field{u"dimtolj", &Variables::dimtolj},
    Field{u"dimtp", &Variables::dimtp},
    Field{u"dimtsz", &Variables::dimtsz},
    Field{u"dimtvp", &Variables::dimtvp},
    Field{u"dimtxt", &Variables::dimtxt},
    Field{u"dimtzin", &Variables::dimtzin},
    Field{u"dimupt", &Variables::dimupt},
    Field{u"dimzin", &Variables::dimzin},
    Field{u"dimfxlon", &Variables::dimfxlon, FieldForm::kNativeFlag},
    Field{u"dimfxl", &Variables::dimfxl},
    Field{u"dimfixedext", &Variables::dimfixedext},
    Field{u"dimjogang", &Variables::dimjogang},
    Field{u"dimarcsym", &Variables::dimarcsym},
    Field{u"dimtfill", &Variables::dimtfill},
    Field{u"dimtxtdirection", &Variables::dimtxtdirection},
    Field{u"dimaltz", &Variables::dimaltz},
    Field{u"dimaltmzf", &Variables::dimaltmzf},
    Field{u"dimapost", &Variables::dimapost},
    Field{u"dimpost", &Variables::dimpost},
    Field{u"dimblk", &Variables::dimblk},
    Field{u"dimblk1", &Variables::dimblk1},
    Field{u"dimblk2", &Variables::dimblk2},
    Field{u"dimldrblk", &Variables::dimldrblk},
};

} // namespace dim_style

} // namespace tc
