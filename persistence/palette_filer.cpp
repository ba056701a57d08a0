#include "persistence/palette_filer.h"

#include "host/host_locator.h"
#include "host/show_message.h"

namespace tc {
namespace {

struct CreateInfoName {
  const char* parent;
  const char16_t* name;
};
constexpr CreateInfoName kCreateInfoNames[] = {
    {"Layer", u"LayerCreateInfo"},         {"Color", u"ColorCreateInfo"},
    {"Textstyle", u"TextStyleCreateInfo"}, {"Linetype", u"LineTypeCreateInfo"},
    {"Dimstyle", u"DimStyleCreateInfo"},
};

/// Begins what a palette that was exported elsewhere has beside its own element.
constexpr const char* kContentFromElsewhere = "PaletteContent";

void showUnreadable() {
  host::showMessage(host::translate(QStringLiteral("Error while reading tool palette file.")),
                    host::translate(QStringLiteral("Tool Palettes")), messagebox::kWarning);
}

} // namespace

void OdTcPalettePropertiesFilerImpl::requireDatabase(const OdTcPersist* root) {
  const OdString wanted = QStringLiteral("OdTcDatabase");
  if (root && root->isKindOf(odrxFindClass(wanted))) return;
  throw OdError_NotThatKindOfClass(root ? root->elementName() : QStringLiteral("(null)"), wanted);
}

bool OdTcPalettePropertiesFilerImpl::openPalette(OdStreamBuf* stream, OdTcPersist* root,
                                                 bool saving) {
  requireDatabase(root);
  if (saving) return writeRoot(stream, root);
  m_root = root;
  const bool found = parse(stream) && findPalette();
  if (found && m_foreign) {
    gatherForeignContent(*rootElement(), *m_parent, *m_foreign);
    m_losses.emplace(*m_parent, *m_foreign);
  }
  const bool done = found && read();
  report();
  if (!found) showUnreadable();
  if (m_foreign) m_foreign->isReported = !found;
  return done;
}

bool OdTcPalettePropertiesFilerImpl::findPalette() {
  m_parent = findElement("Palette");
  if (!m_parent) return failed(host::translate(QStringLiteral("it holds no palette")));
  m_current = m_parent->FirstChildElement();
  return m_current || failed(host::translate(QStringLiteral("its palette is empty")));
}

OdTcDeferral OdTcPalettePropertiesFilerImpl::deferral() const {
  // Palettes from elsewhere are looked at from end to end while they are read.
  if (m_foreign) return {};
  return {OdTcElementTable::instance().deferred(), kContentFromElsewhere};
}

void OdTcPalettePropertiesFilerImpl::readPiece(const QByteArray& markup, OdTcPersist* object) {
  if (!parseBytes("<Piece>" + markup + "</Piece>", {})) return;
  m_parent = rootElement();
  m_current = m_parent->FirstChildElement();
  readRoot(object);
}

bool OdTcPalettePropertiesFilerImpl::read() {
  m_skipNames << QStringLiteral("Palette");
  const bool done = readRoot(m_root) && readBesideContent();
  m_skipNames.clear();
  return done;
}

bool OdTcPalettePropertiesFilerImpl::readBesideContent() {
  const TiXmlElement* const content = findElement(kContentFromElsewhere);
  if (!content) return true;
  m_converted = true;
  m_parent = content->NextSiblingElement();
  m_current = m_parent ? m_parent->FirstChildElement() : nullptr;
  if (!m_current) return true;
  m_skipNames << QStringLiteral("Image") << QStringLiteral("Tool");
  return readRoot(m_root);
}

OdString OdTcPalettePropertiesFilerImpl::tableName(const TiXmlElement& element,
                                                   const OdString& name) const {
  if (name != QLatin1String("CreateInfo") || !element.Parent()) return name;
  for (const CreateInfoName& row : kCreateInfoNames)
    if (element.Parent()->ValueStr() == row.parent) return OdString::fromUtf16(row.name);
  return name;
}

OdTcNumberForm OdTcPalettePropertiesFilerImpl::numberForm(const OdString& name) const {
  return name == QLatin1String("mRGB") ? OdTcNumberForm::kSigned : OdTcNumberForm::kUnsigned;
}

void OdTcPalettePropertiesFilerImpl::writeAttributes(const OdTcFieldMap& map) {
  for (const auto& [name, value] : map) writeAttribute(name, value);
}

void readDeferred(const QByteArray& markup, OdTcPersist* object) {
  odrxMake<OdTcPalettePropertiesFilerImpl>()->readPiece(markup, object);
}

OdTcFilerPtr makePaletteFiler() { return odrxMake<OdTcPalettePropertiesFilerImpl>(); }

OdTcFilerPtr makeForeignPaletteFiler(OdTcForeignContent& content) {
  return odrxMake<OdTcPalettePropertiesFilerImpl>(&content);
}

} // namespace tc
