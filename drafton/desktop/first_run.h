// What a drafter finds at the very first start.
#pragma once

#include "drafton/desktop/desktop.h"

namespace drafton {

/// Copies the samples beside the program (the folder `samples` in `programFolder`, a path as the
/// platform names it) to the folder `Samples` among the user's data, where they may be changed, has
/// the palettes show their catalog and open by themselves. Gives the drawing to begin with.
///
/// Happens once for each settings file, and not where the settings name catalogs already: then, and
/// if there are no samples or they cannot be copied, the answer is empty. What cannot be copied is
/// told.
OdString bringSamples(Desktop& desktop, const OdString& programFolder);

} // namespace drafton
