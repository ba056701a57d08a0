#include "drawing/dxf/entities/old_view.h"

#include "drawing/dxf/text.h"
#include "drawing/xdata.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr const char* kApplication = "ACAD";
constexpr int kText = 1000, kBrace = 1002, kLayer = 1003, kPoint = 1010, kReal = 1040,
              kShort = 1070;

using View = OdDbViewport::Data;
using Tags = std::vector<OdDbKeptTags::Tag>;

/// Goes through the tags, whose order is fixed. One that does not fit makes all that follow fail.
class Walk {
 public:
  Walk(const Tags& tags, std::size_t begin)
    : m_tags(tags)
    , m_at(begin) {}

  bool isGood() const { return m_isGood; }
  std::size_t place() const { return m_at; }

  double real(int code) {
    const auto value = oddxf::realOf(next(code));
    if (value && std::isfinite(*value)) return *value;
    m_isGood = false;
    return 0;
  }
  int flag() { return real(kShort) != 0 ? 1 : 0; }
  int integer() { return static_cast<int>(std::clamp(real(kShort), -32768.0, 32767.0)); }
  double angle() { return real(kReal) * (kOdaPi / 180); }
  OdGePoint3d point() {
    const double x = real(kPoint), y = real(kPoint + 10);
    return {x, y, real(kPoint + 20)};
  }
  OdGePoint2d pair() {
    const double x = real(kReal);
    return {x, real(kReal)};
  }
  void brace(std::string_view which) {
    if (oddxf::trimmed(next(kBrace)) != which) m_isGood = false;
  }
  bool isAt(int code) const { return m_at < m_tags.size() && m_tags[m_at].code == code; }
  std::string_view next(int code) {
    if (!isAt(code)) {
      m_isGood = false;
      return {};
    }
    const QByteArray& value = m_tags[m_at++].value;
    return {value.constData(), static_cast<std::size_t>(value.size())};
  }

 private:
  const Tags& m_tags;
  std::size_t m_at;
  bool m_isGood = true;
};

// Flags of a view that newer files keep in one number.
constexpr int kViewMode = 0x1F, kIcon = 0x20, kIconAtOrigin = 0x40, kFastZoom = 0x80, kSnap = 0x100,
              kGrid = 0x200, kIsometric = 0x400, kHidden = 0x800, kIsometricTop = 0x1000,
              kIsometricRight = 0x2000, kAlwaysOn = 0x8000;

int iconFlags(int icon) { return (icon & 1 ? kIcon : 0) | (icon & 2 ? kIconAtOrigin : 0); }
int isometricFlags(int plane) {
  return plane == 1 ? kIsometricTop : plane == 2 ? kIsometricRight : 0;
}

void read(Walk& walk, View& view, std::vector<std::string_view>& layers) {
  walk.next(kText);
  walk.brace("{");
  walk.integer(); // the version of this data
  view.target = walk.point();
  const OdGePoint3d direction = walk.point();
  view.direction = {direction.x, direction.y, direction.z};
  view.twist = walk.angle();
  view.viewHeight = walk.real(kReal);
  view.viewCenter = walk.pair();
  view.lens = walk.real(kReal);
  view.frontClip = walk.real(kReal);
  view.backClip = walk.real(kReal);
  view.status = kAlwaysOn | (walk.integer() & kViewMode);
  view.circleZoom = walk.integer();
  view.status |= walk.flag() * kFastZoom;
  view.status |= iconFlags(walk.integer());
  view.status |= walk.flag() * kSnap;
  view.status |= walk.flag() * kGrid;
  view.status |= walk.flag() * kIsometric;
  view.status |= isometricFlags(walk.integer());
  view.snapAngle = walk.angle();
  view.snapBase = walk.pair();
  view.snapSpacing = walk.pair();
  view.gridSpacing = walk.pair();
  view.status |= walk.flag() * kHidden;
  walk.brace("{");
  while (walk.isAt(kLayer)) layers.push_back(walk.next(kLayer));
  walk.brace("}");
  walk.brace("}");
}

/// True if the file has told nothing of the view in the places of newer files.
bool isUntold(const View& view) {
  const View untold;
  return view.viewHeight == untold.viewHeight && view.viewCenter == untold.viewCenter &&
         view.target == untold.target && view.direction == untold.direction &&
         view.twist == untold.twist;
}

} // namespace

void oddxf::takeOldView(OdDbViewport& viewport, OdDbViewport::Data& view, OdDbDxfIn& in) {
  if (!isUntold(view)) return;
  Tags tags = oddb::xdataOf(viewport, kApplication);
  const auto begin = std::find_if(tags.begin(), tags.end(), [](const auto& tag) {
    return tag.code == kText && tag.value.trimmed() == "MVIEW";
  });
  if (begin == tags.end()) return;
  View taken = view;
  std::vector<std::string_view> layers;
  Walk walk(tags, static_cast<std::size_t>(begin - tags.begin()));
  read(walk, taken, layers);
  if (!walk.isGood() || !(taken.viewHeight > 0)) {
    in.note(QStringLiteral("the view of a window on a sheet is damaged"));
    return;
  }
  taken.frozenLayers.clear();
  for (const std::string_view name : layers)
    if (const OdDbObjectId layer = in.layer(name); !layer.isNull())
      taken.frozenLayers.push_back(layer);
  view = taken;
  tags.erase(begin, tags.begin() + static_cast<std::ptrdiff_t>(walk.place()));
  oddb::setXData(viewport, kApplication, tags);
}
