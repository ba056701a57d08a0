#include "drafton/engine/command_context.h"

#include "drafton/engine/engine.h"

namespace drafton {

Document& CommandContext::document() const {
  if (!m_document) throw CommandFailure(translated(u"No drawing is open."));
  return *m_document;
}

OdDbDatabase& CommandContext::database() const {
  OdDbDatabase* const database = document().database();
  if (!database) throw CommandFailure(translated(u"The drawing is being closed."));
  return *database;
}

IHostVariables& CommandContext::variables() const { return *document().variables(); }

void CommandContext::print(const OdString& text) const { m_engine.print(text); }

OdGePoint3d CommandContext::lastPoint() const { return document().lastPoint(); }

void CommandContext::setLastPoint(const OdGePoint3d& point) const {
  document().setLastPoint(point);
}

bool CommandContext::run(const OdString& command, IMemParam* parameters) const {
  return document().processor().run(command, parameters);
}

} // namespace drafton
