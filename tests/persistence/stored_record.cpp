#include "persistence/stored_record.h"

#include "support/test_host.h"

namespace tc::test {

ODRX_DEFINE_MEMBERS(RootRecord, OdTcPersist, "OdTcDatabase");

namespace {

template <const char16_t* Element>
OdTcPersist* makeRecord() {
  return new Record(OdString::fromUtf16(Element));
}

#define RECORD_ELEMENT(name) constexpr char16_t k##name[] = u## #name
RECORD_ELEMENT(Box);
RECORD_ELEMENT(Node);
RECORD_ELEMENT(Image);
RECORD_ELEMENT(Tool);
RECORD_ELEMENT(Palette);
RECORD_ELEMENT(Color);
RECORD_ELEMENT(Layer);
RECORD_ELEMENT(Textstyle);
RECORD_ELEMENT(Linetype);
RECORD_ELEMENT(Dimstyle);
RECORD_ELEMENT(ColorCreateInfo);
RECORD_ELEMENT(LayerCreateInfo);
RECORD_ELEMENT(TextStyleCreateInfo);
RECORD_ELEMENT(LineTypeCreateInfo);
RECORD_ELEMENT(DimStyleCreateInfo);
#undef RECORD_ELEMENT

OdTcPersist* makeLate() { return new LateRecord(QStringLiteral("Late")); }

template <const char16_t*... Elements>
void buildTable(OdTcElementTable& table) {
  static constexpr std::string_view kAttributes[] = {"a", "b", "c"};
  table.add(QStringLiteral("Late"), &makeLate);
  table.defer({"Late", "Node", kAttributes});
  (table.add(OdString::fromUtf16(Elements), &makeRecord<Elements>), ...);
}

Reading readWith(const OdTcFilerPtr& filer, const QByteArray& bytes,
                 bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool)) {
  useRecords();
  Reading reading;
  reading.root = odrxMake<RootRecord>();
  const auto stream = odrxMake<OdMemoryStream>(bytes, QStringLiteral("C:\\here\\file.dtc"));
  reading.isRead = (*filer.*open)(stream, reading.root, false);
  reading.problem = filer->problem();
  reading.isConverted = filer->isConverted();
  return reading;
}

QByteArray writeWith(const OdTcFilerPtr& filer, const OdString& element,
                     const Record::Writer& writer,
                     bool (OdTcFiler::*open)(OdStreamBuf*, OdTcPersist*, bool)) {
  useRecords();
  const auto root = odrxMake<RootRecord>(element, writer);
  const auto stream = odrxMake<OdMemoryStream>();
  if (!(*filer.*open)(stream, root, true)) return "not written";
  filer->flush();
  return stream->bytes();
}

} // namespace

OdString Record::log() const {
  QStringList parts;
  for (const auto& [name, value] : fields) {
    if (const auto* record = dynamic_cast<const Record*>(value.object()))
      parts << QStringLiteral("%1{%2}").arg(name, record->log());
    else
      parts << QStringLiteral("%1=%2").arg(name, value.toString());
  }
  return parts.join(u' ');
}

OdString Record::text(const OdString& name) const {
  OdString found;
  for (const auto& [field, value] : fields)
    if (field == name) found = value.toString();
  return found;
}

Record* Record::child(const OdString& name) const {
  for (const auto& [field, value] : fields)
    if (field == name && value.isObject()) return dynamic_cast<Record*>(value.object());
  return nullptr;
}

Reading readCatalog(const QByteArray& bytes) {
  return readWith(makeCatalogFiler(), bytes, &OdTcFiler::openCatalog);
}
Reading readPalette(const QByteArray& bytes) {
  return readWith(makePaletteFiler(), bytes, &OdTcFiler::openPalette);
}
QByteArray writeCatalog(const Record::Writer& writer) {
  return writeWith(makeCatalogFiler(), QStringLiteral("Catalog"), writer, &OdTcFiler::openCatalog);
}
QByteArray writePalette(const Record::Writer& writer) {
  return writeWith(makePaletteFiler(), QStringLiteral("Palette"), writer, &OdTcFiler::openPalette);
}

void useRecords() {
  if (!RootRecord::desc()) {
    OdTcPersist::rxInit();
    RootRecord::rxInit();
  }
  OdTcElementTable::setBuilder(
      &buildTable<kBox, kNode, kImage, kTool, kPalette, kColor, kLayer, kTextstyle, kLinetype,
                  kDimstyle, kColorCreateInfo, kLayerCreateInfo, kTextStyleCreateInfo,
                  kLineTypeCreateInfo, kDimStyleCreateInfo>);
}

} // namespace tc::test
