#include "tools/raster_tool.h"

#include "frame/system_services.h"
#include "host/document.h"
#include "tools/command_conveyor.h"
#include "tools/deferred_command.h"
#include "tools/object_property_families.h"
#include "tools/tool_source.h"

namespace tc {
namespace {

using Raster = OdTcToolRasterCommandImpl;
using Fields = OdTcRasterFields;
using Field = StoredField<Fields>;

constexpr std::array kFields = {
    Field{u"RasterName", &Fields::rasterName},
    Field{u"SourceFile", &Fields::sourceFile, FieldForm::kPath},
    Field{u"Scale", &Fields::scale},
    Field{u"Rotation", &Fields::rotation},
};

constexpr std::array kProperties = {
    ObjectPropertyRow{
        u"Insert.Name",
        makeObjectProperty<OdTcTextObjectPropertyImplEx<Raster, Get<&Raster::getRasterName>,
                                                        Set<&Raster::setRasterName>,
                                                        Get<&Raster::fileNameEnabler>>>},
    ObjectPropertyRow{
        u"Insert.Source file",
        makeObjectProperty<OdTcFileNameObjectPropertyImplEx<Raster, Get<&Raster::getSourceFile>,
                                                            Set<&Raster::setSourceFile>,
                                                            Get<&Raster::getSourceFileFilter>>>},
    ObjectPropertyRow{
        u"Insert.Scale",
        makeObjectProperty<OdTcDoubleObjectPropertyImplEx<Raster, Get<&Raster::getScale>,
                                                          Set<&Raster::setScale>>>},
    ObjectPropertyRow{
        u"Insert.Rotation",
        makeObjectProperty<
            OdTcAnglePropertyImplEx<Raster, Get<&Raster::getRotation>, Set<&Raster::setRotation>>>},
};

} // namespace

OdString OdTcToolRasterCommandImpl::getSourceFileFilter() const {
  static constexpr std::array<QStringView, 7> kExtensions = {u"bmp",  u"jpg", u"jpeg", u"png",
                                                             u"tiff", u"tif", u"gif"};
  return fileDialogFilter(host::translate(QStringLiteral("Images")), kExtensions);
}

/// A relative file is the one beside the drawing. Only where there is none, the palette's folder is
/// looked into, so that a catalog can bring its pictures along.
OdString OdTcToolRasterCommandImpl::resolvedSource(const IHostDocument& document) const {
  const OdString& source = m_fields.sourceFile;
  if (!isRelativePath(source)) return source;
  const OdString beside = combinePath(source, document.path());
  if (odrxSystemServices()->fileExists(beside)) return beside;
  const OdString fromPalette = sourceFromPalette(*this, source);
  return fromPalette == source ? beside : fromPalette;
}

bool OdTcToolRasterCommandImpl::execute(IHostDocument* document) {
  OdTcCommandConveyor* const conveyor = OdTcCommandConveyor::instance();
  if (!document || !conveyor) return false;
  OdTcRasterRequest request;
  request.path = resolvedSource(*document);
  request.name = m_fields.rasterName;
  request.scale = m_fields.scale;
  request.rotation = m_fields.rotation;
  conveyor->setRasterRequest(request);
  sendDeferredCommand(DeferredKind::kRaster);
  return true;
}

void OdTcToolRasterCommandImpl::writeProperties(OdTcFiler* filer) {
  writeAgentFields<Fields>(filer, m_fields, kFields);
}

bool OdTcToolRasterCommandImpl::readProperty(const OdString& name, const OdVariant& value) {
  return readStoredField<Fields>(m_fields, kFields, name, value);
}

void OdTcToolRasterCommandImpl::createProperties() { fillProperties(kProperties); }

OdRxObjectPtr OdTcToolRasterCommandImpl::clone() const {
  auto copy = odrxMake<OdTcToolRasterCommandImpl>();
  copy->m_fields = m_fields;
  return finishClone(copy);
}

} // namespace tc
