#include "drafton/engine/translator.h"

#include "frame/file_path.h"

namespace drafton {

bool Translator::load(const OdString& file) {
  m_loaded = m_catalogue.load(odpath::toPlatform(file));
  return m_loaded;
}

void Translator::clear() { m_loaded = false; }

bool Translator::translate(const OdString& text, OdString& out) const {
  if (!m_loaded) return false;
  const OdString found = m_catalogue.translate("Drafton", text.toUtf8().constData());
  if (found.isEmpty()) return false;
  out = found;
  return true;
}

Translator& Translator::instance() {
  static Translator translator;
  return translator;
}

OdString translated(QStringView text) {
  OdString result = text.toString();
  Translator::instance().translate(result, result);
  return result;
}

} // namespace drafton
