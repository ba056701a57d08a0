// Draws drawings, for the canvas, for previews and for files.
#pragma once

#include "drafton/render/render_options.h"
#include "drafton/render/scene.h"
#include "drafton/render/view.h"

#include <QImage>

#include <span>

class QPainter;

namespace drafton {

/// Entities to draw over all else which are in no drawing, or not at this place.
using TransientEntities = std::span<const OdDbEntityPtr>;

/// Draws a block of the scene's drawing into a picture. The view's size and origin are pixels of
/// the picture; what lies outside of them stays as it is, the ground is not painted. `picture` has
/// the format RGB32 or ARGB32_Premultiplied; others are slower.
void render(QImage& picture, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient = {});
/// The same on any device. The painter's transformation has to be that of the device.
void render(QPainter& painter, Scene& scene, OdDbObjectId block, const View& view,
            const RenderOptions& options, TransientEntities transient = {});

/// Draws just entities that are in no drawing, or not at this place, over a picture.
void renderTransient(QImage& picture, Scene& scene, const View& view, const RenderOptions& options,
                     TransientEntities transient);

} // namespace drafton
