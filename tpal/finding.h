// What the check of a catalog finds.
#pragma once

#include "tpal/loaded_catalog.h"

#include <optional>
#include <vector>

namespace tpal {

/// The kinds of finding. Their codes are stable: scripts test them.
enum class FindingKind {
  kMissingCatalog,
  kUnreadableCatalog,
  kMissingPalette,
  kUnreadablePalette,
  kDanglingReference,
  kDuplicateId,
  kToolWithoutAgent,
  kUnresolvedPath,
  kMissingPicture,
  kSourceElsewhere,
  kUnknownPattern,
  kUnusedPicture,
  kUnlistedPalette,
};

/// The code of a kind, such as "C101".
OdString codeOf(FindingKind kind);
/// The kind of a code or of a word; nothing if it is neither.
std::optional<FindingKind> findKind(const OdString& codeOrWord);
/// The kind in a few words that do not change, such as "missing-palette".
OdString wordOf(FindingKind kind);

struct Finding {
  FindingKind kind;
  OdString file; ///< the catalog or palette file that it is about
  OdString text; ///< what is wrong, for people
};

/// Everything that is wrong with a catalog.
std::vector<Finding> examine(const LoadedCatalog& loaded);

} // namespace tpal
