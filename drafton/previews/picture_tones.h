// What makes small pictures legible.
#pragma once

#include "drafton/render/style.h"

#include <QImage>

namespace drafton {

/// True if nothing is on a transparent picture.
bool isBlank(const QImage& picture);

/// Makes faint pixels stronger, the more the smaller the picture: a line of a pixel's width that
/// lies askew over the pixels is seen as a line. For premultiplied pictures.
void strengthen(QImage& picture);

/// The same for a picture on a plain ground that was made `reduction` times smaller, which leaves
/// thin lines pale. Pictures without such a ground stay as they are.
QImage strengthenedOnGround(const QImage& picture, double reduction);

/// A picture in the middle of a transparent square, as large as fits in its proportions.
QImage insideSquare(const QImage& picture, int pixels);

} // namespace drafton
