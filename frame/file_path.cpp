#include "frame/file_path.h"

#include <QDir>

namespace {

bool isSeparator(QChar c) { return c == u'\\' || c == u'/'; }

qsizetype lastSeparator(const OdString& path) {
  for (qsizetype i = path.size() - 1; i >= 0; --i)
    if (isSeparator(path[i])) return i;
  return -1;
}

} // namespace

OdString odpath::toPlatform(const OdString& path) {
#ifdef Q_OS_WIN
  return path;
#else
  OdString result = path;
  return result.replace(u'\\', u'/');
#endif
}

OdString odpath::fromPlatform(const OdString& path) {
  OdString result = path;
  return result.replace(u'/', u'\\');
}

bool odpath::isRelative(const OdString& path) {
  if (path.isEmpty()) return true;
  if (isSeparator(path[0])) return false;
  return !(path.size() > 1 && path[1] == u':' && path[0].isLetter());
}

OdString odpath::folderOf(const OdString& path) {
  const qsizetype at = lastSeparator(path);
  return at < 0 ? OdString() : path.left(at);
}

OdString odpath::fileNameOf(const OdString& path) { return path.mid(lastSeparator(path) + 1); }

OdString odpath::titleOf(const OdString& path) {
  const OdString name = fileNameOf(path);
  const qsizetype dot = name.lastIndexOf(u'.');
  return dot > 0 ? name.left(dot) : name;
}

OdString odpath::extensionOf(const OdString& path) {
  const OdString name = fileNameOf(path);
  const qsizetype dot = name.lastIndexOf(u'.');
  return dot < 0 ? OdString() : name.mid(dot + 1).toLower();
}

bool odpath::samePlace(const OdString& a, const OdString& b) {
#ifdef Q_OS_WIN
  constexpr Qt::CaseSensitivity kCase = Qt::CaseInsensitive;
#else
  constexpr Qt::CaseSensitivity kCase = Qt::CaseSensitive;
#endif
  const auto place = [](const OdString& path) {
    return path.isEmpty() ? QString() : QDir::cleanPath(QDir().absoluteFilePath(toPlatform(path)));
  };
  return place(a).compare(place(b), kCase) == 0;
}
