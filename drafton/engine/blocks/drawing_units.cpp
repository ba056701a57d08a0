#include "drafton/engine/blocks/drawing_units.h"

#include "drafton/engine/translator.h"

#include <array>

namespace drafton {
namespace {

struct Unit {
  const char16_t* name;
  double meters;
};

constexpr double kInch = 0.0254, kMile = 1609.344, kLightYear = 9.4607304725808e15;

/// By the value of $INSUNITS, as DXF numbers them.
constexpr std::array kUnits = {
    Unit{u"Unitless", 0},
    Unit{u"Inches", kInch},
    Unit{u"Feet", 12 * kInch},
    Unit{u"Miles", kMile},
    Unit{u"Millimeters", 1e-3},
    Unit{u"Centimeters", 1e-2},
    Unit{u"Meters", 1},
    Unit{u"Kilometers", 1e3},
    Unit{u"Microinches", kInch * 1e-6},
    Unit{u"Mils", kInch * 1e-3},
    Unit{u"Yards", 36 * kInch},
    Unit{u"Angstroms", 1e-10},
    Unit{u"Nanometers", 1e-9},
    Unit{u"Microns", 1e-6},
    Unit{u"Decimeters", 0.1},
    Unit{u"Dekameters", 10},
    Unit{u"Hectometers", 100},
    Unit{u"Gigameters", 1e9},
    Unit{u"Astronomical units", 149597870700.0},
    Unit{u"Light years", kLightYear},
    Unit{u"Parsecs", 3.0856775814913673e16},
    Unit{u"US survey feet", 1200.0 / 3937.0},
    Unit{u"US survey inches", 100.0 / 3937.0},
    Unit{u"US survey yards", 3600.0 / 3937.0},
    Unit{u"US survey miles", 5280.0 * 1200.0 / 3937.0},
};

const Unit& unitOf(int units) {
  const bool isKnown = units > 0 && static_cast<std::size_t>(units) < kUnits.size();
  return kUnits[isKnown ? static_cast<std::size_t>(units) : 0];
}

} // namespace

OdString unitName(int units) { return translated(unitOf(units).name); }

double unitFactor(int from, int to) {
  const double a = unitOf(from).meters, b = unitOf(to).meters;
  return a > 0 && b > 0 ? a / b : 1;
}

} // namespace drafton
