// The user's language.
#pragma once

#include "frame/string.h"

#include <QTranslator>

namespace drafton {

/// Looks texts up in a catalogue (a compiled Qt translation whose context is "Drafton"). Without a
/// catalogue every text stays as it is.
class Translator {
 public:
  /// Loads a catalogue; false if the file cannot be read or is none.
  bool load(const OdString& file);
  void clear();
  /// The translation in `out`; false if there is none.
  bool translate(const OdString& text, OdString& out) const;

  /// The one of this process.
  static Translator& instance();

 private:
  QTranslator m_catalogue;
  bool m_loaded = false;
};

/// The text in the user's language, or the text itself.
OdString translated(QStringView text);

} // namespace drafton
