// The icons of Drafton's commands.
#pragma once

#include "frame/string.h"

#include <QImage>

namespace drafton {

/// What an icon is seen on. For any ground its tones are chosen so that they are seen on both.
enum class IconGround { kAny, kLight, kDark };

/// The icon of a command by its name, in any case and with or without the signs that may stand
/// before it when it is typed. `pixels` by `pixels` on a transparent ground, sharp at 16 and its
/// multiples. Null if there is none, or the size is no icon's. Each call draws it anew: keep it
/// where it is shown often.
QImage commandIcon(const OdString& command, int pixels, IconGround ground = IconGround::kAny);

} // namespace drafton
