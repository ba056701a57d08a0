// Lines without ends on a picture.
#pragma once

#include "drafton/render/view.h"

#include <optional>

namespace drafton {

/// The part of the line through `origin` along `direction`, to one side or both, that is seen in a
/// rectangle of the picture: the first and the last factor of `direction`. Nothing if it is not
/// seen, or looked at from its end.
std::optional<std::pair<double, double>> seenPart(const OdGePoint3d& origin,
                                                  const OdGeVector3d& direction, bool bothWays,
                                                  const Projection& projection, const QRectF& rect);

} // namespace drafton
