// Paths beside paths.
#include "drawing/geometry/flat_path.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>

namespace {

using Piece = OdGeFlatPiece;
using Path = OdGeFlatPath;

/// A point moved to the right of a direction.
OdGePoint2d aside(const OdGePoint2d& p, const OdGePoint2d& direction, double distance) {
  return {p.x + direction.y * distance, p.y - direction.x * distance};
}

double cross(const OdGePoint2d& a, const OdGePoint2d& b) { return a.x * b.y - a.y * b.x; }

/// Pieces that lead somewhere.
std::vector<Piece> usefulPieces(const Path& path, double slack) {
  std::vector<Piece> pieces = odge::piecesOf(path);
  std::erase_if(pieces, [&](const Piece& p) { return p.length() <= slack; });
  return pieces;
}

/// The piece beside another one. An arc on whose inner side there is no room turns inside out; it
/// is cut away later.
Piece beside(const Piece& p, double distance) {
  const OdGePoint2d a = aside(p.start, p.directionAt(0), distance);
  const OdGePoint2d b = aside(p.end, p.directionAt(1), distance);
  if (p.isLine()) return {a, b, 0};
  const double grown = p.sweep > 0 ? p.radius + distance : p.radius - distance;
  return {a, b, grown > 0 ? p.bulge : (grown < 0 ? -p.bulge : 0)};
}

class Offsetter {
 public:
  Offsetter(const Path& path, double distance)
    : m_closed(path.closed)
    , m_distance(distance) {
    double reach = std::abs(distance);
    for (const OdGeFlatCorner& c : path.corners)
      reach = std::max({reach, std::abs(c.point.x), std::abs(c.point.y)});
    m_slack = 1e-9 * std::max(reach, 1.0);
    m_path = usefulPieces(path, m_slack);
  }

  std::vector<Path> paths() {
    if (m_path.empty()) return {};
    m_raw = rawBeside(m_distance);
    cut();
    dropTwins();
    return stitch();
  }

 private:
  /// The places where an outer corner goes on straight beyond this many distances are cut off by an
  /// arc, as needles help nobody.
  static constexpr double kLongestPoint = 50;

  /// The pieces at a distance as they come, with what joins them.
  std::vector<Piece> rawBeside(double distance) const {
    std::vector<Piece> moved;
    for (const Piece& p : m_path) moved.push_back(beside(p, distance));
    const std::size_t count = moved.size();
    // Corners first move the ends of straight pieces that have to meet.
    std::vector<std::vector<Piece>> bridges(count);
    for (std::size_t i = 0; i < count; ++i) {
      if (i + 1 == count && !m_closed) break;
      join(moved[i], moved[(i + 1) % count], m_path[i], m_path[(i + 1) % count], distance,
           bridges[i]);
    }
    std::vector<Piece> raw;
    for (std::size_t i = 0; i < count; ++i) {
      if (moved[i].length() > m_slack) raw.push_back(moved[i]);
      raw.insert(raw.end(), bridges[i].begin(), bridges[i].end());
    }
    return raw;
  }

  void join(Piece& a, Piece& b, const Piece& oldA, const Piece& oldB, double distance,
            std::vector<Piece>& bridge) const {
    if (a.end.distanceTo(b.start) <= m_slack) return;
    const OdGePoint2d u = oldA.directionAt(1);
    const OdGePoint2d v = oldB.directionAt(0);
    // On the outer side of the corner there is a gap; on the inner side the pieces cross, and what
    // is too near is cut away.
    const bool isOuter = cross(u, v) * distance > 0 || (u.x * v.x + u.y * v.y) < -1 + 1e-12;
    if (isOuter && a.isLine() && b.isLine()) {
      const auto meeting = odge::meetings(a, b, true);
      if (!meeting.empty()) {
        const OdGePoint2d tip = a.pointAt(meeting[0].first);
        if (tip.distanceTo(oldA.end) <= kLongestPoint * std::abs(distance) &&
            meeting[0].first >= 1) {
          a = {a.start, tip, 0};
          b = {tip, b.end, 0};
          return;
        }
      }
    }
    if (isOuter) {
      double sweep = std::atan2(cross(u, v), u.x * v.x + u.y * v.y);
      if (sweep * distance < 0) sweep = -sweep;
      bridge.push_back({a.end, b.start, std::tan(sweep / 4)});
      return;
    }
    // What goes on behind the crossing of neighbours is too near for sure.
    const auto crossings = odge::meetings(a, b);
    if (!crossings.empty()) {
      const auto m = *std::max_element(crossings.begin(), crossings.end(),
                                       [](const auto& one, const auto& other) {
                                         return one.first - one.second < other.first - other.second;
                                       });
      const Piece first = a.between(0, m.first);
      b = b.between(m.second, 1);
      a = first;
      b.start = a.end;
      return;
    }
    // By way of the corner itself, so that every other crossing is found: this is cut away.
    bridge.push_back({a.end, oldA.end, 0});
    bridge.push_back({oldA.end, b.start, 0});
  }

  double distanceToPath(const OdGePoint2d& point) const {
    double best = std::numeric_limits<double>::infinity();
    for (const Piece& p : m_path) best = std::min(best, p.distanceTo(point));
    return best;
  }

  struct Box {
    double left, right;
    std::size_t index;
    bool own; ///< of the pieces that are cut
  };
  void addBoxes(const std::vector<Piece>& pieces, bool own, std::vector<Box>& boxes) const {
    for (std::size_t i = 0; i < pieces.size(); ++i) {
      const Piece& p = pieces[i];
      double left = std::min(p.start.x, p.end.x);
      double right = std::max(p.start.x, p.end.x);
      if (!p.isLine()) {
        left = p.center.x - p.radius;
        right = p.center.x + p.radius;
      }
      boxes.push_back({left - m_slack, right + m_slack, i, own});
    }
  }

  /// Cuts the raw pieces where they meet, and keeps those that are far enough from the path. Where
  /// the path crosses itself, they come too near between their own side and the other one.
  void cut() {
    const std::vector<Piece> others = rawBeside(-m_distance);
    std::vector<std::vector<double>> cuts(m_raw.size(), {0.0, 1.0});
    std::vector<Box> boxes;
    addBoxes(m_raw, true, boxes);
    addBoxes(others, false, boxes);
    std::sort(boxes.begin(), boxes.end(),
              [](const Box& a, const Box& b) { return a.left < b.left; });
    for (std::size_t i = 0; i < boxes.size(); ++i)
      for (std::size_t k = i + 1; k < boxes.size() && boxes[k].left <= boxes[i].right; ++k) {
        const Box& a = boxes[i];
        const Box& b = boxes[k];
        if (!a.own && !b.own) continue;
        for (const auto& m :
             odge::meetings((a.own ? m_raw : others)[a.index], (b.own ? m_raw : others)[b.index])) {
          if (a.own) cuts[a.index].push_back(m.first);
          if (b.own) cuts[b.index].push_back(m.second);
        }
      }
    if (!m_closed) cutAroundEnds(cuts);
    for (std::size_t i = 0; i < m_raw.size(); ++i) {
      auto& parts = cuts[i];
      std::sort(parts.begin(), parts.end());
      for (std::size_t k = 0; k + 1 < parts.size(); ++k) {
        const Piece piece = m_raw[i].between(parts[k], parts[k + 1]);
        if (piece.length() <= 10 * m_slack) continue;
        if (isFarEnough(piece)) m_kept.push_back(piece);
      }
    }
  }

  /// Pieces that lie on each other count once; those that run against each other have nothing
  /// between them, and go.
  void dropTwins() {
    const double near = 100 * m_slack;
    std::vector<char> gone(m_kept.size());
    std::vector<std::size_t> order(m_kept.size());
    std::vector<OdGePoint2d> middles;
    for (std::size_t i = 0; i < m_kept.size(); ++i) {
      order[i] = i;
      middles.push_back(m_kept[i].pointAt(0.5));
    }
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return middles[a].x < middles[b].x; });
    for (std::size_t i = 0; i < order.size(); ++i)
      for (std::size_t k = i + 1;
           k < order.size() && middles[order[k]].x - middles[order[i]].x <= near; ++k) {
        const std::size_t a = order[i];
        const std::size_t b = order[k];
        if (gone[a] || gone[b] || middles[a].distanceTo(middles[b]) > near) continue;
        const Piece& p = m_kept[a];
        const Piece& q = m_kept[b];
        if (p.start.distanceTo(q.start) <= near && p.end.distanceTo(q.end) <= near) gone[b] = 1;
        if (p.start.distanceTo(q.end) <= near && p.end.distanceTo(q.start) <= near)
          gone[a] = gone[b] = 1;
      }
    std::vector<Piece> left;
    for (std::size_t i = 0; i < m_kept.size(); ++i)
      if (!gone[i]) left.push_back(m_kept[i]);
    m_kept = std::move(left);
  }

  /// What passes the end of an open path may come too near to it without crossing anything.
  void cutAroundEnds(std::vector<std::vector<double>>& cuts) const {
    const double r = std::abs(m_distance);
    for (const OdGePoint2d& end : {m_path.front().start, m_path.back().end}) {
      const Piece halves[] = {{{end.x - r, end.y}, {end.x + r, end.y}, 1},
                              {{end.x + r, end.y}, {end.x - r, end.y}, 1}};
      for (std::size_t i = 0; i < m_raw.size(); ++i)
        for (const Piece& half : halves)
          for (const auto& m : odge::meetings(m_raw[i], half)) cuts[i].push_back(m.first);
    }
  }

  bool isFarEnough(const Piece& piece) const {
    const double least = std::abs(m_distance) * (1 - 1e-6) - 10 * m_slack;
    return std::all_of(std::begin(kTried), std::end(kTried),
                       [&](double part) { return distanceToPath(piece.pointAt(part)) >= least; });
  }
  static constexpr double kTried[] = {0.5, 0.1, 0.9};

  /// Puts the pieces that are left one behind the other.
  std::vector<Path> stitch() {
    std::vector<Path> paths;
    std::vector<char> used(m_kept.size());
    for (const std::size_t first : beginnings()) {
      if (used[first]) continue;
      Path path = pathFrom(first, used);
      if (path.closed) mergeOverStart(path);
      paths.push_back(std::move(path));
    }
    return paths;
  }

  /// Ends no further apart than this belong together.
  double nearness() const { return 1000 * m_slack; }

  /// All pieces; a piece that nothing leads to begins an open path and stands before the others.
  std::vector<std::size_t> beginnings() const {
    std::vector<std::size_t> order(m_kept.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_partition(order.begin(), order.end(), [&](std::size_t i) {
      return std::none_of(m_kept.begin(), m_kept.end(), [&](const Piece& p) {
        return p.end.distanceTo(m_kept[i].start) <= nearness();
      });
    });
    return order;
  }

  /// The unused piece that begins nearest to an end; one behind the last if none is near.
  std::size_t follower(const OdGePoint2d& end, const std::vector<char>& used) const {
    std::size_t best = m_kept.size();
    double bestGap = nearness();
    for (std::size_t i = 0; i < m_kept.size(); ++i) {
      if (used[i]) continue;
      if (const double gap = m_kept[i].start.distanceTo(end); gap <= bestGap) {
        best = i;
        bestGap = gap;
      }
    }
    return best;
  }

  Path pathFrom(std::size_t first, std::vector<char>& used) const {
    Path path;
    const OdGePoint2d start = m_kept[first].start;
    for (std::size_t at = first;;) {
      used[at] = 1;
      append(path, m_kept[at]);
      const OdGePoint2d end = m_kept[at].end;
      if (end.distanceTo(start) <= nearness() && path.corners.size() > 1) {
        path.closed = true;
        return path;
      }
      at = follower(end, used);
      if (at == m_kept.size()) {
        path.corners.push_back({end, 0});
        return path;
      }
    }
  }

  /// Adds a piece; one that only goes on with the piece before is joined with it.
  void append(Path& path, const Piece& piece) const {
    if (!path.corners.empty()) {
      OdGeFlatCorner& before = path.corners.back();
      const Piece last(before.point, piece.start, before.bulge);
      if (const auto joined = joinedBulge(last, piece)) {
        before.bulge = *joined;
        return;
      }
    }
    path.corners.push_back({piece.start, piece.bulge});
  }

  void mergeOverStart(Path& path) const {
    if (path.corners.size() < 3) return;
    const Piece last(path.corners.back().point, path.corners[0].point, path.corners.back().bulge);
    const Piece first(path.corners[0].point, path.corners[1].point, path.corners[0].bulge);
    if (const auto joined = joinedBulge(last, first)) {
      path.corners.back().bulge = *joined;
      path.corners.erase(path.corners.begin());
    }
  }

  /// The bulge of two pieces as one, if they go on alike.
  std::optional<double> joinedBulge(const Piece& a, const Piece& b) const {
    if (a.isLine() != b.isLine() || a.length() <= m_slack) return std::nullopt;
    if (a.isLine())
      return std::abs(cross(a.directionAt(0), b.directionAt(0))) < 1e-9 &&
                     a.directionAt(0).x * b.directionAt(0).x +
                             a.directionAt(0).y * b.directionAt(0).y >
                         0
                 ? std::optional(0.0)
                 : std::nullopt;
    const bool same = a.center.distanceTo(b.center) <= 1000 * m_slack && a.sweep * b.sweep > 0;
    const double sweep = a.sweep + b.sweep;
    // An arc of nearly a full turn has no chord to speak of.
    if (!same || std::abs(sweep) > 1.5 * kOdaPi) return std::nullopt;
    return std::tan(sweep / 4);
  }

  bool m_closed;
  double m_distance, m_slack = 0;
  std::vector<Piece> m_path, m_raw, m_kept;
};

} // namespace

std::vector<OdGeFlatPath> odge::offset(const OdGeFlatPath& path, double distance) {
  if (distance == 0) return {path};
  return Offsetter(path, distance).paths();
}
