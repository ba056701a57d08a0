// Access keys of menus.
#pragma once

#include "frame/string.h"

class QMenu;

namespace drafton {

/// The texts, each with an access key ("&") that no other of them has, as far as there are letters
/// and digits for all. A key that a text brings along stays its own; all others are found so that
/// beginnings of words come first.
QStringList withAccessKeys(const QStringList& texts);

/// Does so with the entries of a menu. Whatever keys the entries were given before are kept where
/// they differ.
void giveAccessKeys(QMenu& menu);

} // namespace drafton
