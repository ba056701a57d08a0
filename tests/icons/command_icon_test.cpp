#include "drafton/icons/command_icon.h"

#include "drafton/engine/command_menu.h"
#include "drafton/icons/icon_service.h"
#include "render/golden_picture.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

using namespace drafton;
using render_test::looksLike;

constexpr QRgb kLight = qRgb(255, 255, 255), kDark = qRgb(30, 30, 30);

OdString text(const char16_t* s) { return OdString::fromUtf16(s); }

QDir folder() { return QDir(QStringLiteral(SOURCE_DIR "/drafton/icons/data")); }

QStringList names() {
  QStringList all;
  for (const QString& file : folder().entryList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name))
    all << file.chopped(4);
  return all;
}

double luminance(QRgb pixel) {
  const auto linear = [](int part) {
    const double value = part / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
         0.0722 * linear(qBlue(pixel));
}
double contrast(QRgb a, QRgb b) {
  const double ofA = luminance(a), ofB = luminance(b);
  const auto [low, high] = std::minmax(ofA, ofB);
  return (high + 0.05) / (low + 0.05);
}

QImage on(const QImage& icon, QRgb ground) {
  QImage picture(icon.size(), QImage::Format_RGB32);
  picture.fill(ground);
  QPainter(&picture).drawImage(0, 0, icon);
  return picture;
}

TEST(CommandIcons, ExistForEveryCommandOfTheMenu) {
  for (const MenuRow& row : commandMenu())
    for (const int pixels : {16, 24, 32, 64}) {
      const QImage icon = commandIcon(text(row.command), pixels);
      EXPECT_EQ(icon.size(), QSize(pixels, pixels)) << text(row.command).toStdString();
    }
}

TEST(CommandIcons, BelongToACommandEach) {
  QStringList commands = {text(u"gradient"), text(u"toolpalettes")};
  for (const MenuRow& row : commandMenu()) commands << text(row.command).toLower();
  for (const QString& name : names()) EXPECT_TRUE(commands.contains(name)) << name.toStdString();
}

TEST(CommandIcons, AreDrawnInOneManner) {
  for (const QString& name : names()) {
    QFile file(folder().filePath(name + QLatin1String(".svg")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QString drawing = QString::fromUtf8(file.readAll());
    EXPECT_TRUE(
        drawing.contains(QLatin1String("viewBox=\"0 0 24 24\" fill=\"none\" stroke-width=\"1.5\"")))
        << name.toStdString();
    EXPECT_TRUE(
        drawing.contains(QLatin1String("stroke-linecap=\"round\" stroke-linejoin=\"round\"")))
        << name.toStdString();
    static const QRegularExpression color(QStringLiteral("#[0-9a-fA-F]{3,8}"));
    for (auto found = color.globalMatch(drawing); found.hasNext();) {
      const QString tone = found.next().captured();
      EXPECT_TRUE(tone == QLatin1String("#404850") || tone == QLatin1String("#1f78c8"))
          << name.toStdString() << ' ' << tone.toStdString();
    }
  }
}

TEST(CommandIcons, AreAllDifferent) {
  std::map<QByteArray, QString> seen;
  for (const QString& name : names()) {
    const QImage icon = commandIcon(name, 16);
    const QByteArray bytes(reinterpret_cast<const char*>(icon.constBits()), icon.sizeInBytes());
    EXPECT_TRUE(seen.emplace(bytes, name).second)
        << name.toStdString() << " looks like " << seen[bytes].toStdString();
  }
}

struct GroundRow {
  IconGround ground;
  std::vector<QRgb> shownOn;
};

TEST(CommandIcons, HaveContrastOnTheirGround) {
  const GroundRow rows[] = {{IconGround::kAny, {kLight, kDark}},
                            {IconGround::kLight, {kLight}},
                            {IconGround::kDark, {kDark}}};
  for (const GroundRow& row : rows)
    for (const QString& name : names()) {
      const QImage icon = commandIcon(name, 32, row.ground);
      for (const QRgb ground : row.shownOn) {
        const QImage shown = on(icon, ground);
        int seen = 0;
        for (int y = 0; y < 32; ++y)
          for (int x = 0; x < 32; ++x) seen += contrast(shown.pixel(x, y), ground) >= 3;
        EXPECT_GE(seen, 40) << name.toStdString();
      }
    }
}

TEST(CommandIcons, StayWithinTheirSquare) {
  // Beside a line of its own width nothing is cut: what touches the edge is faint.
  for (const QString& name : names()) {
    const QImage icon = commandIcon(name, 64);
    for (int i = 0; i < 64; ++i)
      for (const QPoint at : {QPoint(i, 0), QPoint(i, 63), QPoint(0, i), QPoint(63, i)})
        ASSERT_LT(qAlpha(icon.pixel(at)), 128) << name.toStdString();
  }
}

TEST(CommandIcons, AreSharpAtSixteenPixels) {
  const QImage icon = commandIcon(text(u"LAYOUT"), 16);
  for (int x = 2; x < 14; ++x) {
    EXPECT_EQ(qAlpha(icon.pixel(x, 2)), 255) << x;
    EXPECT_EQ(qAlpha(icon.pixel(x, 1)), 0) << x;
    EXPECT_EQ(qAlpha(icon.pixel(x, 3)), 0) << x;
  }
}

struct NameRow {
  const char16_t* typed;
  const char16_t* same; ///< null if there is no icon
};

TEST(CommandIcons, AreFoundByNamesAsTheyAreTyped) {
  const NameRow rows[] = {{u"LINE", u"line"},
                          {u"line", u"line"},
                          {u"_LINE", u"line"},
                          {u"'_.Line", u"line"},
                          {u"-LAYER", u"layer"},
                          {u"InsertBlock", u"insert"},
                          {u"FASTHATCHCMD", u"bhatch"},
                          {u"FASTGRADIENTCMD", u"gradient"},
                          {u"U", u"undo"},
                          {u"ToolPalettes", u"toolpalettes"},
                          {u"", nullptr},
                          {u"-", nullptr},
                          {u"NOSUCH", nullptr},
                          {u"LINE ", nullptr},
                          {u"../icons/line", nullptr},
                          {u"line.svg", nullptr}};
  for (const NameRow& row : rows) {
    const QImage icon = commandIcon(text(row.typed), 32);
    const QImage wanted = row.same ? commandIcon(text(row.same), 32) : QImage();
    EXPECT_EQ(icon, wanted) << text(row.typed).toStdString();
    EXPECT_EQ(icon.isNull(), row.same == nullptr) << text(row.typed).toStdString();
  }
  for (const int pixels : {0, -16, 100000})
    EXPECT_TRUE(commandIcon(text(u"LINE"), pixels).isNull());
}

TEST(CommandIcons, AreGivenToModulesByNamesAndSecondNames) {
  const KVPtr<IconService> plain = kvMake<IconService>();
  EXPECT_EQ(plain->icon(text(u"LINE"), 32), commandIcon(text(u"LINE"), 32));
  EXPECT_TRUE(plain->icon(text(u"L"), 32).isNull());
  const KVPtr<IconService> full = kvMake<IconService>(
      [](const OdString& word) { return word == text(u"L") ? text(u"LINE") : word; });
  EXPECT_EQ(full->icon(text(u"L"), 32), commandIcon(text(u"LINE"), 32));
  EXPECT_TRUE(full->icon(text(u"Q"), 32).isNull());
}

/// All icons in some sizes, on one ground.
QImage sheet(IconGround tones, QRgb ground) {
  constexpr int kColumns = 11, kCell = 68;
  constexpr int kSizes[] = {16, 32};
  const QStringList all = names();
  const int rows = (static_cast<int>(all.size()) + kColumns - 1) / kColumns;
  QImage picture(kColumns * kCell, rows * 40, QImage::Format_RGB32);
  picture.fill(ground);
  QPainter painter(&picture);
  for (int i = 0; i < static_cast<int>(all.size()); ++i) {
    int x = i % kColumns * kCell + 4;
    for (const int pixels : kSizes) {
      painter.drawImage(x, i / kColumns * 40 + 4, commandIcon(all[i], pixels, tones));
      x += pixels + 6;
    }
  }
  return picture;
}

TEST(CommandIcons, LookAsTheGoldenOnes) {
  EXPECT_TRUE(looksLike(sheet(IconGround::kLight, kLight), "icons_light"));
  EXPECT_TRUE(looksLike(sheet(IconGround::kDark, kDark), "icons_dark"));
  EXPECT_TRUE(looksLike(sheet(IconGround::kAny, kLight), "icons_any_on_light"));
  EXPECT_TRUE(looksLike(sheet(IconGround::kAny, kDark), "icons_any_on_dark"));
}

} // namespace
