#include "drafton/desktop/language.h"

#include "drafton/engine/translator.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace drafton {
namespace {

struct Language {
  const char16_t* name;
  const char16_t* code;
};
constexpr Language kLanguages[] = {{u"Deutsch", u"de"}};

OdString codeOf(const OdString& name) {
  const OdString wanted =
      name == QLatin1String("System") ? QLocale::system().name().section(u'_', 0, 0) : name;
  for (const Language& language : kLanguages)
    if (wanted == QStringView(language.name) || wanted == QStringView(language.code))
      return OdString::fromUtf16(language.code);
  return {};
}

} // namespace

bool loadLanguage(const OdString& programFolder, const OdString& name) {
  static QTranslator dialogs;
  QCoreApplication::removeTranslator(&dialogs);
  Translator::instance().clear();
  const OdString code = codeOf(name);
  if (code.isEmpty()) return false;
  if (dialogs.load(QStringLiteral("qtbase_") + code,
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&dialogs);
  return Translator::instance().load(
      QStringLiteral("%1/translations/drafton_%2.qm").arg(programFolder, code));
}

} // namespace drafton
