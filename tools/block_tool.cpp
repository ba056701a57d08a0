#include "tools/block_tool.h"

#include "drawing/database.h"
#include "host/document.h"
#include "host/variables.h"
#include "module/string_table.h"
#include "tools/deferred_command.h"
#include "tools/object_property_families.h"
#include "tools/plot_scale.h"
#include "tools/tool_source.h"

namespace tc {
namespace {

using Block = OdTcToolBlockCommandImpl;
using Fields = OdTcBlockFields;
using Field = StoredField<Fields>;

constexpr std::array kFields = {
    Field{u"BlockType", &Fields::blockType},
    Field{u"BlockTypeEx", &Fields::blockTypeEx},
    Field{u"BlockName", &Fields::name},
    Field{u"SourceFile", &Fields::sourceFile, FieldForm::kPath},
    Field{u"InsertAs", &Fields::insertAs},
    Field{u"XrefType", &Fields::xrefType},
    Field{u"Scale", &Fields::scale, FieldForm::kWholeNumber},
    Field{u"Rotation", &Fields::rotation},
    Field{u"PromptRotation", &Fields::isAskForRotation},
    Field{u"Explode", &Fields::isExplode},
    Field{u"PromptAttributes", &Fields::isQueryAttributes},
};

constexpr char16_t kAuxElement[] = u"AuxiliaryScale";
constexpr char16_t kAttributeVariable[] = u"ATTREQ";

using WholeFileOnly = Get<&Block::isWholeFile>;

constexpr std::array kProperties = {
    ObjectPropertyRow{
        u"Insert.Name",
        makeObjectProperty<
            OdTcTextObjectPropertyImplEx<Block, Get<&Block::getName>, Set<&Block::setName>>>},
    ObjectPropertyRow{
        u"Insert.Source file",
        makeObjectProperty<OdTcFileNameObjectPropertyImplEx<Block, Get<&Block::getSourceFile>,
                                                            Set<&Block::setSourceFile>,
                                                            Get<&Block::getSourceFileFilter>>>},
    ObjectPropertyRow{u"Insert.Insert as",
                      makeObjectProperty<OdTcMultiverseObjectPropertyImplEx<
                          Block, std::int32_t, Get<&Block::getInsertAs>, Set<&Block::setInsertAs>,
                          Get<&Block::getInsertAsAsEnum>, Always, WholeFileOnly>>},
    ObjectPropertyRow{
        u"Insert.Xref type",
        makeObjectProperty<OdTcMultiverseObjectPropertyImplEx<
            Block, std::int32_t, Get<&Block::getXrefType>, Set<&Block::setXrefType>,
            Get<&Block::getXrefTypeEnum>, Get<&Block::xrefTypeEnabler>, WholeFileOnly>>},
    ObjectPropertyRow{
        u"Insert.Scale",
        makeObjectProperty<
            OdTcDoubleObjectPropertyImplEx<Block, Get<&Block::getScale>, Set<&Block::setScale>>>},
    ObjectPropertyRow{
        u"Insert.Auxiliary scale",
        makeObjectProperty<
            OdTcMultiverseObjectPropertyImplEx<Block, OdString, Get<&Block::getAux>,
                                               Set<&Block::setAux>, Get<&Block::getAuxScaleEnum>>>},
    ObjectPropertyRow{
        u"Insert.Rotation",
        makeObjectProperty<
            OdTcAnglePropertyImplEx<Block, Get<&Block::getRotation>, Set<&Block::setRotation>>>},
    ObjectPropertyRow{
        u"Insert.Prompt rotation angle",
        makeObjectProperty<OdTcBoolObjectPropertyImplEx<Block, Get<&Block::getIsAskForRotation>,
                                                        Set<&Block::setIsAskForRotaion>>>},
    ObjectPropertyRow{
        u"Insert.Prompt attributes",
        makeObjectProperty<OdTcBoolObjectPropertyImplEx<Block, Get<&Block::getIsQueryAttributes>,
                                                        Set<&Block::setIsQueryAttributes>,
                                                        Get<&Block::isQueryAttributes>>>},
    ObjectPropertyRow{
        u"Insert.Explode",
        makeObjectProperty<
            OdTcBoolObjectPropertyImplEx<Block, Get<&Block::getIsExplode>,
                                         Set<&Block::setIsExplode>, Get<&Block::isExplodable>>>},
};

OdTcChoice choice(std::int32_t value, QStringView text) {
  return {value, text.isEmpty() ? OdString() : host::translate(text.toString())};
}

} // namespace

/// A scale by its key in files and its text, which is shown in the user's language.
struct OdTcToolBlockCommandImpl::AuxRow {
  AuxScale scale;
  QStringView key;
  QStringView text;
};

const OdTcToolBlockCommandImpl::AuxRow OdTcToolBlockCommandImpl::kAuxScales[] = {
    {AuxScale::kDimscale, u"DIMSCALE", u"Dimscale"},
    {AuxScale::kPlotScale, u"PLOTSCALE", u"Plot scale"},
    {AuxScale::kNone, u"NONE", u"None"},
};

void OdTcToolBlockCommandImpl::setBlockType(std::int32_t type) {
  m_fields.blockType = type;
  createProperties();
}

OdString OdTcToolBlockCommandImpl::getAux() const {
  for (const AuxRow& row : kAuxScales)
    if (row.scale == m_auxScale) return host::translate(row.text.toString());
  return {};
}

void OdTcToolBlockCommandImpl::setAux(const OdString& text) {
  m_auxScale = AuxScale::kUnset;
  for (const AuxRow& row : kAuxScales)
    if (host::translate(row.text.toString()) == text) m_auxScale = row.scale;
}

OdTcChoices OdTcToolBlockCommandImpl::getAuxScaleEnum() const {
  OdTcChoices choices;
  for (const AuxRow& row : kAuxScales) {
    const OdString text = host::translate(row.text.toString());
    choices.push_back({text, text});
  }
  return choices;
}

OdTcChoices OdTcToolBlockCommandImpl::getInsertAsAsEnum() const {
  return {choice(1, u"Block"), choice(2, u"External reference")};
}

OdTcChoices OdTcToolBlockCommandImpl::getXrefTypeEnum() const {
  return {choice(1, u"Attachment"), choice(2, u"Overlay"), choice(0, {})};
}

OdString OdTcToolBlockCommandImpl::getSourceFileFilter() const {
  static constexpr std::array<QStringView, 3> kExtensions = {u"dwg", u"dxf", u"dwf"};
  return fileDialogFilter(stringText(StringId::kDrawingFilter), kExtensions);
}

// --- a run

void OdTcToolBlockCommandImpl::beginExecution(IHostDocument* document) {
  IHostVariables* const variables = document ? document->variables() : nullptr;
  if (!variables) return;
  OdVariant current;
  const OdString name = OdString::fromUtf16(kAttributeVariable);
  m_savedAttReq.reset();
  if (variables->get(name, current)) m_savedAttReq = current.toInt32();
  variables->set(name, std::int32_t{m_fields.isQueryAttributes});
}

void OdTcToolBlockCommandImpl::endExecution(IHostDocument* document) {
  IHostVariables* const variables = document ? document->variables() : nullptr;
  // Without a value that was read there is nothing to put back: the run was not begun, or is ended.
  const std::optional<std::int32_t> saved = std::exchange(m_savedAttReq, std::nullopt);
  if (variables && saved) variables->set(OdString::fromUtf16(kAttributeVariable), *saved);
}

OdTcBlockRequest OdTcToolBlockCommandImpl::makeRequest(IHostDocument& document) const {
  OdTcBlockRequest request;
  request.name = m_fields.name;
  request.sourceFile = sourceFromPalette(*this, m_fields.sourceFile);
  request.scale = m_fields.scale;
  if (const OdDbDatabase* const database = document.database()) {
    if (m_auxScale == AuxScale::kDimscale) request.scale *= database->sysVarReal("DIMSCALE");
    if (m_auxScale == AuxScale::kPlotScale)
      request.scale *= activePlotScale(*database).value_or(1.0);
  }
  request.rotation = m_fields.rotation;
  request.askRotation = m_fields.isAskForRotation;
  request.explode = m_fields.isExplode;
  request.queryAttributes = m_fields.isQueryAttributes;
  if (isWholeFile()) {
    request.wholeDrawing = m_fields.insertAs == 1;
    request.isXref = !request.wholeDrawing;
    if (request.isXref) request.xrefType = m_fields.xrefType;
  }
  return request;
}

bool OdTcToolBlockCommandImpl::execute(IHostDocument* document) {
  OdTcCommandConveyor* const conveyor = OdTcCommandConveyor::instance();
  if (!document || !conveyor) return false;
  const OdTcBlockRequest request = makeRequest(*document);
  conveyor->setBlockRequest(request);
  sendDeferredCommand(request.isXref ? DeferredKind::kXref : DeferredKind::kBlock);
  return true;
}

// --- files

void OdTcToolBlockCommandImpl::writeProperties(OdTcFiler* filer) {
  writeAgentFields<Fields>(filer, m_fields, kFields);
  QStringView key = u"NONE";
  for (const AuxRow& row : kAuxScales)
    if (row.scale == m_auxScale) key = row.key;
  filer->writeElement(staticName(kAuxElement), staticName(key));
}

bool OdTcToolBlockCommandImpl::readProperty(const OdString& name, const OdVariant& value) {
  if (name == QStringView(kAuxElement)) {
    // The file's "NONE" reads as an empty text, not as the word that a new tool has.
    m_auxScale = AuxScale::kUnset;
    for (const AuxRow& row : kAuxScales)
      if (row.scale != AuxScale::kNone && row.key == value.toString()) m_auxScale = row.scale;
    return true;
  }
  if (!readStoredField<Fields>(m_fields, kFields, name, value)) return false;
  if (name == QLatin1String("BlockType")) createProperties();
  return true;
}

void OdTcToolBlockCommandImpl::createProperties() { fillProperties(kProperties); }

OdRxObjectPtr OdTcToolBlockCommandImpl::clone() const {
  auto copy = odrxMake<OdTcToolBlockCommandImpl>();
  copy->m_fields = m_fields;
  copy->m_auxScale = m_auxScale;
  return finishClone(copy);
}

} // namespace tc
