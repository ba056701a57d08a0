// The gradients that hatch tools know.
#pragma once

#include "frame/string.h"

#include <QStringView>

#include <array>

namespace tc {

struct GradientRow {
  QStringView key;     ///< as stored, in capitals
  QStringView display; ///< English; shown in the user's language
};

/// In the order of the host's numbers, from 1.
inline constexpr std::array<GradientRow, 9> kGradients = {{
    {u"LINEAR", u"Linear"},
    {u"CYLINDER", u"Cylinder"},
    {u"INVCYLINDER", u"Inversed-cylinder"},
    {u"SPHERICAL", u"Spherical"},
    {u"INVSPHERICAL", u"Inversed-spherical"},
    {u"HEMISPHERICAL", u"Hemispherical"},
    {u"INVHEMISPHERICAL", u"Inversed-hemispherical"},
    {u"CURVED", u"Curved"},
    {u"INVCURVED", u"Inversed-curved"},
}};

/// The pattern name of a hatch that is filled with one colour.
inline constexpr QStringView kSolidPattern = u"SOLID";

/// The name of a stored key in the user's language; that of LINEAR for a key that is not known.
OdString gradientDisplayName(const OdString& key);
/// The stored key of a name in the user's language; LINEAR for a name that is not known.
OdString gradientKey(const OdString& displayName);
/// The host's number of a stored key, from 1; that of LINEAR for a key that is not known.
int gradientNumber(const OdString& key);

} // namespace tc
