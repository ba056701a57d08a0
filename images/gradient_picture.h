// A sample of a gradient.
#pragma once

#include "drawing/color.h"
#include "frame/string.h"

#include <QImage>

namespace tc {

/// A square of `pixels` by `pixels` filled with the gradient of that stored name, such as
/// "INVCYLINDER"; an unknown name gives LINEAR.
QImage gradientPicture(const OdString& name, const OdCmColor& first, const OdCmColor& second,
                       int pixels);

} // namespace tc
