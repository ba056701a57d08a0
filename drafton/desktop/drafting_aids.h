// What guides the cursor: object snaps, ortho, polar tracking and the grid.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drafton/desktop/object_snap.h"

namespace drafton {

enum class Aid { kSnap, kGrid, kOrtho, kPolar };

/// One switch of the status bar.
struct AidRow {
  Aid aid;
  const char16_t* label;
  const char16_t* tip;
  int key; ///< Qt::Key_...
  /// Where it is kept: in `bit` of a variable, or all of it. `isOff`: the set bit switches it off.
  const char* variable;
  int bit;
  bool isOff;
};
std::span<const AidRow> draftingAids();

/// Where a click would go.
struct CursorPlace {
  OdGePoint3d point;
  std::optional<Snap> snap;
  /// Ortho or polar holds the point on a line from here.
  std::optional<OdGePoint3d> trackedFrom;
};

/// The aids of the active document, which live in its variables: OSMODE, ORTHOMODE, GRIDMODE,
/// AUTOSNAP (8: polar) with POLARANG.
class DraftingAids {
 public:
  explicit DraftingAids(Desktop& desktop)
    : m_desktop(desktop) {}

  bool isOn(Aid aid);
  void set(Aid aid, bool on);
  void toggle(Aid aid) { set(aid, !isOn(aid)); }
  /// The bits of OSMODE.
  int snapKinds();

  /// Leads a point as the prompt and the aids have it. `near` are the entities at the cursor,
  /// `reach` the drawing units from which a snap draws.
  CursorPlace lead(const OdGePoint3d& point, const InputRequest& request,
                   std::span<const OdDbEntityPtr> near, double reach);
  /// The same around a base point, for what is no prompt.
  CursorPlace lead(const OdGePoint3d& point, std::optional<OdGePoint3d> base,
                   std::span<const OdDbEntityPtr> near, double reach);

 private:
  CursorPlace lead(const SnapQuestion& question, std::span<const OdDbEntityPtr> near);
  std::optional<OdGePoint3d> tracked(const OdGePoint3d& point, const OdGePoint3d& base,
                                     double reach);

  Desktop& m_desktop;
};

} // namespace drafton
