#include "persistence/exchange_filer.h"

#include <utility>

namespace tc {
namespace {

/// The elements around the palette, from the outside in, behind the name of the pictures' folder.
constexpr const char* kEnvelope[] = {"PaletteSets", "PaletteSetData", "PaletteSetContent",
                                     "Palettes",    "PaletteData",    "PaletteContent"};
constexpr std::size_t kPaletteData = 4;
constexpr std::size_t kPaletteSetData = 1;

constexpr QLatin1String kCreateInfo("CreateInfo");

} // namespace

bool OdTcExchangeFilerImpl::openPalette(OdStreamBuf* stream, OdTcPersist* root, bool saving) {
  if (!saving) return OdTcPalettePropertiesFilerImpl::openPalette(stream, root, saving);
  requireDatabase(root);
  beginDocument(stream);
  m_target = addElement("ToolPaletteExport");
  OdTcPalettePropertiesFilerImpl::writeElement(QStringLiteral("DependentFilesPath"), m_imageFolder,
                                               false);
  TiXmlElement* around[std::size(kEnvelope)];
  for (std::size_t i = 0; i < std::size(kEnvelope); ++i)
    m_target = around[i] = addElement(kEnvelope[i]);
  m_beside = around[kPaletteData];
  writeObject(root);
  m_target = around[kPaletteSetData];
  addElement("PaletteSetUI");
  return true;
}

void OdTcExchangeFilerImpl::writeObject(OdTcPersist* object) {
  if (!m_saving || !object) return;
  const OdString name = object->elementName();
  TiXmlElement* const outer = m_target;
  if (name == QLatin1String("PaletteUI")) m_target = m_beside;
  OdTcPalettePropertiesFilerImpl::writeObject(object);
  if (name.endsWith(kCreateInfo)) m_target->LastChild()->SetValue(kCreateInfo.data());
  m_target = outer;
}

void OdTcExchangeFilerImpl::writeAttribute(const OdString& name, const OdVariant& value) {
  const bool isPicture =
      m_target && m_target->ValueStr() == "Image" && name == QLatin1String("src");
  // Others would take a path that begins with "/" for one from the root.
  const OdString path = isPicture ? value.toString().replace(u'/', u'\\') : OdString();
  if (path.startsWith(QLatin1String("\\Images\\")))
    OdTcPalettePropertiesFilerImpl::writeAttribute(name, OdVariant(u'.' + path));
  else
    OdTcPalettePropertiesFilerImpl::writeAttribute(name, value);
}

void OdTcExchangeFilerImpl::writeElement(const OdString& element, const OdVariant& value,
                                         bool cdata) {
  if (m_target && m_target->ValueStr() == "ToolOrder" && element == QLatin1String("ID"))
    writeElementAttribute(QStringLiteral("Tool"), QStringLiteral("idValue"), value);
  else
    OdTcPalettePropertiesFilerImpl::writeElement(element, value, cdata);
}

OdTcFilerPtr makeExchangeFiler(const OdString& imageFolder) {
  return odrxMake<OdTcExchangeFilerImpl>(imageFolder);
}

} // namespace tc
