#include "persistence/foreign_paths.h"

#include "frame/file_path.h"
#include "host/host_locator.h"

#include <array>

namespace tc {
namespace {

constexpr std::array<QStringView, 2> kDeviceFolders = {u"\\\\.\\", u"\\\\?\\"};
/// Names that one system takes for devices, in every folder and whatever their extension.
constexpr std::array<QStringView, 4> kDevices = {u"CON", u"PRN", u"AUX", u"NUL"};
constexpr std::array<QStringView, 2> kNumberedDevices = {u"COM", u"LPT"};

OdString translated(const char16_t* text) { return host::translate(OdString::fromUtf16(text)); }

QStringView withoutExtension(QStringView name) {
  const qsizetype dot = name.indexOf(u'.');
  return (dot < 0 ? name : name.left(dot)).trimmed();
}

bool isDeviceName(QStringView segment) {
  const QStringView name = withoutExtension(segment);
  for (const QStringView device : kDevices)
    if (name.compare(device, Qt::CaseInsensitive) == 0) return true;
  for (const QStringView device : kNumberedDevices)
    if (name.size() == device.size() + 1 && name.back().isDigit() &&
        name.startsWith(device, Qt::CaseInsensitive))
      return true;
  return false;
}

bool namesDevice(const OdString& stored) {
  for (const QStringView folder : kDeviceFolders)
    if (stored.startsWith(folder)) return true;
  for (const QStringView segment : QStringView(stored).split(u'\\'))
    if (isDeviceName(segment)) return true;
  return stored.startsWith(QLatin1String("\\dev\\"));
}

bool isShare(const OdString& stored) { return stored.startsWith(QLatin1String("\\\\")); }

} // namespace

OdString whyOutside(const OdString& path) {
  const OdString stored = odpath::fromPlatform(path);
  if (namesDevice(stored)) return translated(u"it names a device");
  if (isShare(stored)) return translated(u"it lies on a network share");
  if (stored.contains(u':')) return translated(u"it is an absolute path");
  int depth = 0;
  for (const QStringView segment : QStringView(stored).split(u'\\')) {
    if (segment == QLatin1String("..") && --depth < 0)
      return translated(u"it leads out of its folder");
    if (segment != QLatin1String("..") && segment != QLatin1String(".") && !segment.isEmpty())
      ++depth;
  }
  return {};
}

std::optional<OdString> insidePath(const OdString& path) {
  if (!whyOutside(path).isEmpty()) return std::nullopt;
  QStringList segments;
  for (const OdString& segment : odpath::fromPlatform(path).split(u'\\')) {
    if (segment == QLatin1String(".."))
      segments.removeLast();
    else if (!segment.isEmpty() && segment != QLatin1String("."))
      segments << segment;
  }
  return segments.join(u'\\');
}

OdString whyNotLookedFor(const OdString& path) {
  const OdString stored = odpath::fromPlatform(path);
  if (namesDevice(stored)) return translated(u"it names a device");
  return isShare(stored) ? translated(u"it lies on a network share") : OdString();
}

} // namespace tc
