#include "tools/command_tool.h"

#include "host/document.h"
#include "persistence/filer.h"
#include "tools/object_property_families.h"

namespace tc {
namespace {

using Command = OdTcToolCommandImpl;

constexpr std::array kProperties = {
    ObjectPropertyRow{
        u"Command.Command string",
        makeObjectProperty<OdTcTextObjectPropertyImplEx<Command, Get<&Command::commandString>,
                                                        Set<&Command::setCommandString>>>},
};

OdString withoutBlanksAtEnd(const OdString& text) {
  qsizetype end = text.size();
  while (end > 0 && text[end - 1].isSpace()) --end;
  return text.left(end);
}

} // namespace

bool OdTcToolCommandImpl::execute(IHostDocument* document) {
  if (!document) return false;
  setCommandString(withoutBlanksAtEnd(commandString()));
  if (commandString().isEmpty()) return false;
  if (IHostCommandInput* const input = document->commandInput())
    input->sendText(commandString() + QStringLiteral("^M"));
  return true;
}

void OdTcToolCommandImpl::writeProperties(OdTcFiler* filer) {
  filer->writeAttribute(QStringLiteral("Macro"), commandString());
}

bool OdTcToolCommandImpl::readProperty(const OdString& name, const OdVariant& value) {
  if (name != QLatin1String("Macro")) return false;
  setCommandString(value.toString());
  return true;
}

void OdTcToolCommandImpl::createProperties() { fillProperties(kProperties); }

OdRxObjectPtr OdTcToolCommandImpl::clone() const {
  return finishClone(odrxMake<OdTcToolCommandImpl>());
}

bool OdTcToolCommandImpl::imageSourceFromMacro(OdTcImage* image) const {
  OdString name = commandString();
  if (const qsizetype blank = name.indexOf(u' '); blank >= 0) name.truncate(blank);
  // A prefix of cancels such as ^C^C goes: each is a caret and one letter.
  if (const qsizetype caret = name.lastIndexOf(u'^'); caret >= 0) name = name.mid(caret + 2);
  name.remove(u'_');
  image->setResource(QStringLiteral("%ProgramBtnRes%"), name);
  return true;
}

} // namespace tc
