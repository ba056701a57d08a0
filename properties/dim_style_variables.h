// The variables of a dimension style's snapshot: one table for files and drawings.
#pragma once

#include "properties/dim_style_values.h"
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

using Stored = OdTcDimStyleVariables;
using Drawn = OdDbDimVarValues;
using Field = StoredField<Stored>;

/// One variable: what it is called in a file, and its way from a drawing's style and into one.
struct Variable {
  Field field;
  void (*take)(Stored& to, const Drawn& from);
  /// False, and nothing is changed, if no drawing's style can have the value.
  bool (*give)(const Stored& from, Drawn& to, const Destination& destination);
  /// The flag of a drawing's style without which its value counts for nothing; null: it counts.
  bool Drawn::*onlyIf = nullptr;
};

template <auto StoredMember, auto DrawnMember>
constexpr Variable variable(QStringView name, FieldForm form = FieldForm::kPlain,
                            bool Drawn::*onlyIf = nullptr) {
  return {Field{name, StoredMember, form},
          [](Stored& to, const Drawn& from) { takeValue(to.*StoredMember, from.*DrawnMember); },
          [](const Stored& from, Drawn& to, const Destination& destination) {
            return giveValue(from.*StoredMember, to.*DrawnMember, destination);
          },
          onlyIf};
}

/// Two names have mixed case, and one flag alone is written as a native boolean value.
inline constexpr std::array kVariables = {
    variable<&Stored::dimadec, &Drawn::dimadec>(u"dimadec"),
    variable<&Stored::dimalt, &Drawn::dimalt>(u"dimalt"),
    variable<&Stored::dimaltd, &Drawn::dimaltd>(u"dimaltd"),
    variable<&Stored::dimaltf, &Drawn::dimaltf>(u"dimaltf"),
    variable<&Stored::dimaltrnd, &Drawn::dimaltrnd>(u"dimaltrnd"),
    variable<&Stored::dimalttd, &Drawn::dimalttd>(u"dimalttd"),
    variable<&Stored::dimalttz, &Drawn::dimalttz>(u"dimalttz"),
    variable<&Stored::dimasz, &Drawn::dimasz>(u"dimasz"),
    variable<&Stored::dimatfit, &Drawn::dimatfit>(u"dimatfit"),
    variable<&Stored::dimaunit, &Drawn::dimaunit>(u"dimaunit"),
    variable<&Stored::dimazin, &Drawn::dimazin>(u"dimazin"),
    variable<&Stored::dimcen, &Drawn::dimcen>(u"dimcen"),
    variable<&Stored::dimdec, &Drawn::dimdec>(u"dimdec"),
    variable<&Stored::dimdle, &Drawn::dimdle>(u"dimdle"),
    variable<&Stored::dimdli, &Drawn::dimdli>(u"dimdli"),
    variable<&Stored::dimdsep, &Drawn::dimdsep>(u"dimdsep"),
    variable<&Stored::dimexe, &Drawn::dimexe>(u"dimexe"),
    variable<&Stored::dimexo, &Drawn::dimexo>(u"dimexo"),
    variable<&Stored::dimfrac, &Drawn::dimfrac>(u"dimfrac"),
    variable<&Stored::dimgap, &Drawn::dimgap>(u"dimgap"),
    variable<&Stored::dimjust, &Drawn::dimjust>(u"dimjust"),
    variable<&Stored::dimlfac, &Drawn::dimlfac>(u"dimlfac"),
    variable<&Stored::dimlim, &Drawn::dimlim>(u"dimlim"),
    variable<&Stored::dimlunit, &Drawn::dimlunit>(u"dimlunit"),
    variable<&Stored::dimlwd, &Drawn::dimlwd>(u"dimlwd"),
    variable<&Stored::dimlwe, &Drawn::dimlwe>(u"dimlwe"),
    variable<&Stored::dimrnd, &Drawn::dimrnd>(u"dimrnd"),
    variable<&Stored::dimsah, &Drawn::dimsah>(u"dimsah"),
    variable<&Stored::dimscale, &Drawn::dimscale>(u"dimscale"),
    variable<&Stored::dimsd1, &Drawn::dimsd1>(u"dimsd1"),
    variable<&Stored::dimsd2, &Drawn::dimsd2>(u"dimsd2"),
    variable<&Stored::dimse1, &Drawn::dimse1>(u"dimse1"),
    variable<&Stored::dimse2, &Drawn::dimse2>(u"dimse2"),
    variable<&Stored::dimsoxd, &Drawn::dimsoxd>(u"dimsoxd"),
    variable<&Stored::dimtad, &Drawn::dimtad>(u"dimtad"),
    variable<&Stored::dimtdec, &Drawn::dimtdec>(u"dimtdec"),
    variable<&Stored::dimtfac, &Drawn::dimtfac>(u"dimtfac"),
    variable<&Stored::dimtih, &Drawn::dimtih>(u"dimtih"),
    variable<&Stored::dimtix, &Drawn::dimtix>(u"dimtix"),
    variable<&Stored::dimtm, &Drawn::dimtm>(u"dimtm"),
    variable<&Stored::dimtmove, &Drawn::dimtmove>(u"dimtmove"),
    variable<&Stored::dimtofl, &Drawn::dimtofl>(u"dimtofL"),
    variable<&Stored::dimtoh, &Drawn::dimtoh>(u"dimtoh"),
    variable<&Stored::dimtol, &Drawn::dimtol>(u"dimtoL"),
    variable<&Stored::dimtolj, &Drawn::dimtolj>(u"dimtolj"),
    variable<&Stored::dimtp, &Drawn::dimtp>(u"dimtp"),
    variable<&Stored::dimtsz, &Drawn::dimtsz>(u"dimtsz"),
    variable<&Stored::dimtvp, &Drawn::dimtvp>(u"dimtvp"),
    variable<&Stored::dimtxt, &Drawn::dimtxt>(u"dimtxt"),
    variable<&Stored::dimtzin, &Drawn::dimtzin>(u"dimtzin"),
    variable<&Stored::dimupt, &Drawn::dimupt>(u"dimupt"),
    variable<&Stored::dimzin, &Drawn::dimzin>(u"dimzin"),
    variable<&Stored::dimfxlon, &Drawn::dimfxlon>(u"dimfxlon", FieldForm::kNativeFlag),
    variable<&Stored::dimfxl, &Drawn::dimfxl>(u"dimfxl", FieldForm::kPlain, &Drawn::dimfxlon),
    variable<&Stored::dimfixedext, &Drawn::dimfixedext>(u"dimfixedext"),
    variable<&Stored::dimjogang, &Drawn::dimjogang>(u"dimjogang"),
    variable<&Stored::dimarcsym, &Drawn::dimarcsym>(u"dimarcsym"),
    variable<&Stored::dimtfill, &Drawn::dimtfill>(u"dimtfill"),
    variable<&Stored::dimtxtdirection, &Drawn::dimtxtdirection>(u"dimtxtdirection"),
    variable<&Stored::dimaltz, &Drawn::dimaltz>(u"dimaltz"),
    variable<&Stored::dimaltmzf, &Drawn::dimaltmzf>(u"dimaltmzf"),
    variable<&Stored::dimapost, &Drawn::dimapost>(u"dimapost"),
    variable<&Stored::dimpost, &Drawn::dimpost>(u"dimpost"),
    variable<&Stored::dimblk, &Drawn::dimblk>(u"dimblk"),
    variable<&Stored::dimblk1, &Drawn::dimblk1>(u"dimblk1", FieldForm::kPlain, &Drawn::dimsah),
    variable<&Stored::dimblk2, &Drawn::dimblk2>(u"dimblk2", FieldForm::kPlain, &Drawn::dimsah),
    variable<&Stored::dimldrblk, &Drawn::dimldrblk>(u"dimldrblk"),
};

/// The part of the table that files know.
inline constexpr auto kFields = [] {
  std::array<Field, kVariables.size()> fields{};
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = kVariables[i].field;
  return fields;
}();

} // namespace dim_style

} // namespace tc
