// The picture of a drawing that is panned and zoomed.
#pragma once

#include "drafton/render/piece_painter.h"
#include "drafton/render/renderer.h"

namespace drafton {

/// Keeps the picture that was shown last. What a pan leaves in view is moved, and only what comes
/// into view is drawn; everything else is drawn anew. What is shown is the same either way.
class LivePicture {
 public:
  /// The scene has to live as long.
  explicit LivePicture(Scene& scene);

  /// The picture of view.settled(), whose origin has to be 0. `options.part` does not count. The
  /// result is valid until the next call.
  const QImage& show(OdDbObjectId block, const View& view, const RenderOptions& options,
                     TransientEntities transient = {});
  /// Has the next picture drawn as a whole.
  void forget() { m_base = {}; }
  /// How many pixels show() drew the last time, those of transient entities excepted.
  qint64 drawnPixels() const { return m_drawnPixels; }

 private:
  using Marked = std::unordered_set<OdDbObjectId>;
  /// All that a picture depends on, but for where one looks.
  struct Circumstances {
    OdDbObjectId block;
    std::uint64_t revision = 0;
    OdGePoint3d target;
    OdGeVector3d direction;
    double twist = 0, scale = 0;
    QSizeF size;
    DrawingScales scales;
    Ground ground{0};
    bool isPlotting = false, showsLineWeights = false, simplifies = false;
    double pixelsPerMillimetre = 0;
    QRgb highlightColor = 0;

    bool operator==(const Circumstances&) const = default;
  };
  Circumstances circumstancesOf(OdDbObjectId block, const View& view,
                                const RenderOptions& options) const;
  /// Takes over which entities stand out and which are hidden; true if that is new.
  bool takeMarked(const RenderOptions& options);
  /// How far the kept picture has to be moved; nothing if it is of no use.
  std::optional<QPoint> wayFrom(const Circumstances& now, const QPointF& corner) const;
  void move(const QPoint& way);

  Scene& m_scene;
  QImage m_base;      ///< without transient entities
  QImage m_decorated; ///< with them
  std::optional<Circumstances> m_before;
  Marked m_highlighted, m_hidden;
  QPointF m_corner; ///< the drawing's zero in the kept picture
  qint64 m_drawnPixels = 0;
};

} // namespace drafton
