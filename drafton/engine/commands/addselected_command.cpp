// ADDSELECTED.

#include "drafton/engine/command_routes.h"
#include "drafton/engine/commands/command_bodies.h"
#include "drafton/engine/engine.h"
#include "drafton/engine/selection.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/dimension.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/text.h"

namespace drafton {
namespace {

/// The values that new entities get.
class CurrentValues {
 public:
  explicit CurrentValues(const OdDbDatabase& database)
    : m_layer(database.currentLayer())
    , m_linetype(database.currentLinetype())
    , m_textStyle(database.currentTextStyle())
    , m_dimStyle(database.currentDimStyle())
    , m_plotStyle(database.currentPlotStyleId())
    , m_plotStyleType(database.currentPlotStyleType())
    , m_color(database.currentColor())
    , m_linetypeScale(database.currentLinetypeScale())
    , m_lineWeight(database.currentLineWeight())
    , m_transparency(database.currentTransparency()) {}

  /// Takes over what an entity has.
  void take(const OdDbEntity& entity) {
    m_layer = entity.layerId();
    m_linetype = entity.linetypeId();
    m_plotStyleType = entity.plotStyleNameType();
    m_plotStyle = entity.plotStyleNameId();
    m_color = entity.color();
    m_linetypeScale = entity.linetypeScale();
    m_lineWeight = entity.lineWeight();
    m_transparency = entity.transparency();
    if (const auto* const text = odrxCast<OdDbText>(&entity)) m_textStyle = text->textStyle();
    if (const auto* const text = odrxCast<OdDbMText>(&entity)) m_textStyle = text->textStyle();
    if (const auto* const dimension = odrxCast<OdDbDimension>(&entity))
      m_dimStyle = dimension->dimensionStyle();
  }

  void makeCurrent(OdDbDatabase& database) const {
    database.setCurrentLayer(m_layer);
    if (!m_linetype.isNull()) database.setCurrentLinetype(m_linetype);
    if (!m_textStyle.isNull()) database.setCurrentTextStyle(m_textStyle);
    if (!m_dimStyle.isNull()) database.setCurrentDimStyle(m_dimStyle);
    database.setCurrentPlotStyle(m_plotStyleType, m_plotStyle);
    database.setCurrentColor(m_color);
    database.setCurrentLinetypeScale(m_linetypeScale);
    database.setCurrentLineWeight(m_lineWeight);
    database.setCurrentTransparency(m_transparency);
  }

 private:
  OdDbObjectId m_layer, m_linetype, m_textStyle, m_dimStyle, m_plotStyle;
  OdDb::PlotStyleNameType m_plotStyleType;
  OdCmColor m_color;
  double m_linetypeScale;
  OdDb::LineWeight m_lineWeight;
  OdCmTransparency m_transparency;
};

} // namespace

Task<void> addSelected(CommandContext& context) {
  OdDbDatabase& database = context.database();
  OdString command;
  CurrentValues values(database);
  for (;;) {
    const PickedEntity picked = co_await selectEntity(context, u"Select object");
    if (picked.id.isNull()) co_return;
    const auto entity = picked.id.openAs<OdDbEntity>();
    command = startCommand(context.engine().commandRouteMap(), entity->isA()->name(),
                           QStringLiteral("ADDSELECTED"));
    values.take(*entity);
    if (!command.isEmpty()) break;
    context.print(translated(u"There is no command that draws objects of this kind."));
  }
  const CurrentValues former(database);
  values.makeCurrent(database);
  const bool isDrawn = context.run(command);
  former.makeCurrent(database);
  if (!isDrawn) throw CommandFailure(translated(u"%1 did not end.").arg(command));
}

} // namespace drafton
