// The variables of dimension styles.
#pragma once

#include "drawing/header_vars.h"

#include <span>

/// One line for each variable: V(accessor, The same in a setter, NAME IN THE HEADER, code in a
/// style, type, what holds if the style does not have it). A code of 0: files keep it in extended
/// data of our own.
#define ODDB_DIM_VARS(V)                                                                           \
  V(dimpost, Dimpost, DIMPOST, 3, OdString, {})                                                    \
  V(dimapost, Dimapost, DIMAPOST, 4, OdString, {})                                                 \
  V(dimscale, Dimscale, DIMSCALE, 40, double, 1)                                                   \
  V(dimasz, Dimasz, DIMASZ, 41, double, 0.18)                                                      \
  V(dimexo, Dimexo, DIMEXO, 42, double, 0.0625)                                                    \
  V(dimdli, Dimdli, DIMDLI, 43, double, 0.38)                                                      \
  V(dimexe, Dimexe, DIMEXE, 44, double, 0.18)                                                      \
  V(dimrnd, Dimrnd, DIMRND, 45, double, 0)                                                         \
  V(dimdle, Dimdle, DIMDLE, 46, double, 0)                                                         \
  V(dimtp, Dimtp, DIMTP, 47, double, 0)                                                            \
  V(dimtm, Dimtm, DIMTM, 48, double, 0)                                                            \
  V(dimfxl, Dimfxl, DIMFXL, 49, double, 1)                                                         \
  V(dimjogang, Dimjogang, DIMJOGANG, 50, double, 0.7853981633974483)                               \
  V(dimtfill, Dimtfill, DIMTFILL, 69, int, 0)                                                      \
  V(dimtfillclr, Dimtfillclr, DIMTFILLCLR, 70, OdCmColor, OdCmColor(OdCmColor::kByBlock))          \
  V(dimtol, Dimtol, DIMTOL, 71, bool, false)                                                       \
  V(dimlim, Dimlim, DIMLIM, 72, bool, false)                                                       \
  V(dimtih, Dimtih, DIMTIH, 73, bool, true)                                                        \
  V(dimtoh, Dimtoh, DIMTOH, 74, bool, true)                                                        \
  V(dimse1, Dimse1, DIMSE1, 75, bool, false)                                                       \
  V(dimse2, Dimse2, DIMSE2, 76, bool, false)                                                       \
  V(dimtad, Dimtad, DIMTAD, 77, int, 0)                                                            \
  V(dimzin, Dimzin, DIMZIN, 78, int, 0)                                                            \
  V(dimazin, Dimazin, DIMAZIN, 79, int, 0)                                                         \
  V(dimarcsym, Dimarcsym, DIMARCSYM, 90, int, 0)                                                   \
  V(dimtxt, Dimtxt, DIMTXT, 140, double, 0.18)                                                     \
  V(dimcen, Dimcen, DIMCEN, 141, double, 0.09)                                                     \
  V(dimtsz, Dimtsz, DIMTSZ, 142, double, 0)                                                        \
  V(dimaltf, Dimaltf, DIMALTF, 143, double, 25.4)                                                  \
  V(dimlfac, Dimlfac, DIMLFAC, 144, double, 1)                                                     \
  V(dimtvp, Dimtvp, DIMTVP, 145, double, 0)                                                        \
  V(dimtfac, Dimtfac, DIMTFAC, 146, double, 1)                                                     \
  V(dimgap, Dimgap, DIMGAP, 147, double, 0.09)                                                     \
  V(dimaltrnd, Dimaltrnd, DIMALTRND, 148, double, 0)                                               \
  V(dimalt, Dimalt, DIMALT, 170, bool, false)                                                      \
  V(dimaltd, Dimaltd, DIMALTD, 171, int, 2)                                                        \
  V(dimtofl, Dimtofl, DIMTOFL, 172, bool, false)                                                   \
  V(dimsah, Dimsah, DIMSAH, 173, bool, false)                                                      \
  V(dimtix, Dimtix, DIMTIX, 174, bool, false)                                                      \
  V(dimsoxd, Dimsoxd, DIMSOXD, 175, bool, false)                                                   \
  V(dimclrd, Dimclrd, DIMCLRD, 176, OdCmColor, OdCmColor(OdCmColor::kByBlock))                     \
  V(dimclre, Dimclre, DIMCLRE, 177, OdCmColor, OdCmColor(OdCmColor::kByBlock))                     \
  V(dimclrt, Dimclrt, DIMCLRT, 178, OdCmColor, OdCmColor(OdCmColor::kByBlock))                     \
  V(dimadec, Dimadec, DIMADEC, 179, int, 0)                                                        \
  V(dimdec, Dimdec, DIMDEC, 271, int, 4)                                                           \
  V(dimtdec, Dimtdec, DIMTDEC, 272, int, 4)                                                        \
  V(dimaltu, Dimaltu, DIMALTU, 273, int, 2)                                                        \
  V(dimalttd, Dimalttd, DIMALTTD, 274, int, 2)                                                     \
  V(dimaunit, Dimaunit, DIMAUNIT, 275, int, 0)                                                     \
  V(dimfrac, Dimfrac, DIMFRAC, 276, int, 0)                                                        \
  V(dimlunit, Dimlunit, DIMLUNIT, 277, int, 2)                                                     \
  V(dimdsep, Dimdsep, DIMDSEP, 278, int, 46)                                                       \
  V(dimtmove, Dimtmove, DIMTMOVE, 279, int, 0)                                                     \
  V(dimjust, Dimjust, DIMJUST, 280, int, 0)                                                        \
  V(dimsd1, Dimsd1, DIMSD1, 281, bool, false)                                                      \
  V(dimsd2, Dimsd2, DIMSD2, 282, bool, false)                                                      \
  V(dimtolj, Dimtolj, DIMTOLJ, 283, int, 1)                                                        \
  V(dimtzin, Dimtzin, DIMTZIN, 284, int, 0)                                                        \
  V(dimaltz, Dimaltz, DIMALTZ, 285, int, 0)                                                        \
  V(dimalttz, Dimalttz, DIMALTTZ, 286, int, 0)                                                     \
  V(dimupt, Dimupt, DIMUPT, 288, bool, false)                                                      \
  V(dimatfit, Dimatfit, DIMATFIT, 289, int, 3)                                                     \
  V(dimfxlon, Dimfxlon, DIMFXLON, 290, bool, false)                                                \
  V(dimtxtdirection, Dimtxtdirection, DIMTXTDIRECTION, 295, bool, false)                           \
  V(dimtxsty, Dimtxsty, DIMTXSTY, 340, OdDbObjectId, {})                                           \
  V(dimldrblk, Dimldrblk, DIMLDRBLK, 341, OdDbObjectId, {})                                        \
  V(dimblk, Dimblk, DIMBLK, 342, OdDbObjectId, {})                                                 \
  V(dimblk1, Dimblk1, DIMBLK1, 343, OdDbObjectId, {})                                              \
  V(dimblk2, Dimblk2, DIMBLK2, 344, OdDbObjectId, {})                                              \
  V(dimltype, Dimltype, DIMLTYPE, 345, OdDbObjectId, {})                                           \
  V(dimltex1, Dimltex1, DIMLTEX1, 346, OdDbObjectId, {})                                           \
  V(dimltex2, Dimltex2, DIMLTEX2, 347, OdDbObjectId, {})                                           \
  V(dimlwd, Dimlwd, DIMLWD, 371, OdDb::LineWeight, OdDb::kLnWtByBlock)                             \
  V(dimlwe, Dimlwe, DIMLWE, 372, OdDb::LineWeight, OdDb::kLnWtByBlock)                             \
  V(dimaltmzf, Dimaltmzf, DIMALTMZF, 0, double, 100)                                               \
  V(dimfixedext, Dimfixedext, DIMFIXEDEXT, 0, int, 0)

/// All variables with their values.
struct OdDbDimVarValues {
#define ODDB_DIM_MEMBER(accessor, Accessor, NAME, code, Type, preset) Type accessor = preset;
  ODDB_DIM_VARS(ODDB_DIM_MEMBER)
#undef ODDB_DIM_MEMBER
  bool operator==(const OdDbDimVarValues&) const = default;
};

/// One row of the table of these variables.
struct OdDbDimVarInfo {
  const char* name;  ///< in the header, without the $
  std::int16_t code; ///< in a style; 0 for those in extended data
  std::variant<double OdDbDimVarValues::*, int OdDbDimVarValues::*, bool OdDbDimVarValues::*,
               OdString OdDbDimVarValues::*, OdCmColor OdDbDimVarValues::*,
               OdDbObjectId OdDbDimVarValues::*, OdDb::LineWeight OdDbDimVarValues::*>
      member;
};

/// All rows, in the order in which files have them.
std::span<const OdDbDimVarInfo> oddbDimVars();
/// The row of a variable by its name in any case, or by its code in a style; null if there is none.
const OdDbDimVarInfo* oddbFindDimVar(QStringView name);
const OdDbDimVarInfo* oddbFindDimVar(int code);
