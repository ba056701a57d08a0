#include "drawing/objects/moved_tags.h"

#include "drawing/dxf/text.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kSlack = 1e-9;

QByteArray textOf(double value) {
  char digits[oddxf::kRealDigits];
  const std::string_view text = oddxf::realText(digits, value);
  return {text.data(), static_cast<qsizetype>(text.size())};
}

/// A coordinate behind the first one of a point; null if the file leaves it out.
OdDbKeptTags::Tag* coordinate(OdDbKeptTags& tags, std::size_t index, std::size_t which) {
  const std::size_t at = index + which;
  const int code = tags.tags[index].code + 10 * static_cast<int>(which);
  return at < tags.tags.size() && tags.tags[at].code == code ? &tags.tags[at] : nullptr;
}

} // namespace

const oddb::TagMotion* oddb::motionOf(std::span<const TagMotion> motions, int code) {
  const auto found = std::ranges::find(motions, code, &TagMotion::code);
  return found == motions.end() ? nullptr : &*found;
}

oddb::TagMover::TagMover(const OdGeMatrix3d& transform)
  : m_transform(transform) {
  const OdGeVector3d x = transform * OdGeVector3d::xAxis();
  const OdGeVector3d y = transform * OdGeVector3d::yAxis();
  const OdGeVector3d z = transform * OdGeVector3d::zAxis();
  m_scale = x.length();
  const double slack = kSlack * m_scale;
  m_isUniform =
      m_scale > 0 && std::abs(y.length() - m_scale) < slack &&
      std::abs(z.length() - m_scale) < slack && std::abs(x.dotProduct(y)) < slack * m_scale &&
      std::abs(y.dotProduct(z)) < slack * m_scale && std::abs(z.dotProduct(x)) < slack * m_scale;
  m_mirrors = x.crossProduct(y).dotProduct(z) < 0;
  m_staysInPlane = std::abs(z.x) < slack && std::abs(z.y) < slack && z.z > 0;
}

bool oddb::TagMover::move(OdDbKeptTags& tags, std::size_t index, TagMotion::Kind kind) const {
  bool areNumbers = true;
  const auto number = [&](const OdDbKeptTags::Tag* tag) {
    if (tag == nullptr) return 0.0;
    bool ok = false;
    const double value = tag->value.trimmed().toDouble(&ok);
    areNumbers = areNumbers && ok && std::isfinite(value);
    return value;
  };
  OdDbKeptTags::Tag& first = tags.tags[index];
  const double value = number(&first);
  if (kind == TagMotion::kLength) {
    const double moved = value * m_scale;
    if (!areNumbers || !std::isfinite(moved)) return false;
    if (moved != value) first.value = textOf(moved);
    return true;
  }
  OdDbKeptTags::Tag* const second = coordinate(tags, index, 1);
  OdDbKeptTags::Tag* const third = second != nullptr ? coordinate(tags, index, 2) : nullptr;
  OdGeVector3d v{value, number(second), number(third)};
  if (!areNumbers || second == nullptr) return false;
  const OdGeVector3d before = v;
  if (kind == TagMotion::kPoint) {
    v = (m_transform * OdGePoint3d{v.x, v.y, v.z}).asVector();
  } else {
    const double length = v.length();
    v = m_transform * v;
    if (kind != TagMotion::kVector && v.length() > 0) v = v * (length / v.length());
    if (kind == TagMotion::kNormal && m_mirrors) v = OdGeVector3d() - v;
  }
  if (!std::isfinite(v.x) || !std::isfinite(v.y) || !std::isfinite(v.z)) return false;
  if (v.x != before.x) first.value = textOf(v.x);
  if (v.y != before.y) second->value = textOf(v.y);
  if (third != nullptr && v.z != before.z) third->value = textOf(v.z);
  return true;
}
