#include "drafton/icons/command_icon.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <array>

// The library is linked into programs, where nothing else would bring its resources along. Qt wants
// this outside of namespaces.
static void bringResources() { Q_INIT_RESOURCE(icons); }

namespace drafton {
namespace {

constexpr int kLargest = 1024;

/// Commands that show the icon of another one.
struct OtherName {
  QStringView command;
  QStringView icon;
};
constexpr std::array kOtherNames = {
    OtherName{u"fastgradientcmd", u"gradient"},
    OtherName{u"fasthatchcmd", u"bhatch"},
    OtherName{u"insertblock", u"insert"},
    OtherName{u"u", u"undo"},
};

/// The two colours as the files have them, and as they are shown.
struct Tones {
  const char* ink;
  const char* accent;
};
constexpr Tones kInFile = {"#404850", "#1f78c8"};
constexpr Tones kShown[] = {
    {"#7a828a", "#2b8be0"}, // any ground
    {"#404850", "#1f78c8"}, // light
    {"#d8dde3", "#58b4f6"}, // dark
};

OdString iconName(const OdString& command) {
  static const OdString kSigns = QStringLiteral("_.'-");
  OdString name = command.toLower();
  while (!name.isEmpty() && kSigns.contains(name[0])) name.remove(0, 1);
  for (const OtherName& other : kOtherNames)
    if (name == other.command) return other.icon.toString();
  return name;
}

/// Names come from files of other people, and may not lead to other resources.
bool isName(const OdString& name) {
  return !name.isEmpty() &&
         std::all_of(name.begin(), name.end(), [](QChar c) { return c.isLetterOrNumber(); });
}

QByteArray drawing(const OdString& name, const Tones& tones) {
  QFile file(QStringLiteral(":/drafton/icons/%1.svg").arg(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return file.readAll().replace(kInFile.ink, tones.ink).replace(kInFile.accent, tones.accent);
}

} // namespace

QImage commandIcon(const OdString& command, int pixels, IconGround ground) {
  bringResources();
  const OdString name = iconName(command);
  if (!isName(name) || pixels <= 0 || pixels > kLargest) return {};
  const QByteArray bytes = drawing(name, kShown[static_cast<std::size_t>(ground)]);
  if (bytes.isEmpty()) return {};
  QImage icon(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  QSvgRenderer(bytes).render(&painter);
  return icon;
}

} // namespace drafton
