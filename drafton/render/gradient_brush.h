// The nine ways of going from one colour to another.
#pragma once

#include "drafton/render/style.h"
#include "drawing/graphics/world_draw.h"

#include <QBrush>
#include <QPolygonF>

namespace drafton {

/// The filling of an area on a picture. `outline` are the area's corners in pixels, `right` and
/// `up` the directions on the picture that the gradient's angle leads to and that stand across. An
/// unknown name gives a linear gradient.
QBrush gradientBrush(const OdGiGradient& gradient, const QPolygonF& outline, const QPointF& right,
                     const QPointF& up, const Ground& ground, std::uint8_t alpha);

} // namespace drafton
