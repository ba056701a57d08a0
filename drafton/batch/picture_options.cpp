#include "drafton/batch/picture_options.h"

#include <QFileInfo>

#include <cmath>

namespace drafton {
namespace {

constexpr int kLongestSide = 32767;
constexpr qint64 kMostPixels = qint64{1} << 28;

/// A part of the request that is read from a text; false with a message if it cannot be.
struct Reader {
  std::optional<OdString> PictureOptions::*given;
  const char16_t* option;
  bool (*read)(const OdString& text, PictureRequest& request, OdString& error);
};

bool readSize(const OdString& text, PictureRequest& request, OdString& error) {
  const QStringList sides = text.toLower().split(u'x');
  bool isWidth = false, isHeight = false;
  const int width = sides.value(0).toInt(&isWidth), height = sides.value(1).toInt(&isHeight);
  if (sides.size() != 2 || !isWidth || !isHeight || width < 1 || height < 1) {
    error = QStringLiteral("--size needs a width and a height in pixels, such as 800x600, not '%1'")
                .arg(text);
    return false;
  }
  if (width > kLongestSide || height > kLongestSide || qint64{width} * height > kMostPixels) {
    error = QStringLiteral("--size %1 is too large").arg(text);
    return false;
  }
  request.size = QSize(width, height);
  return true;
}

bool readBackground(const OdString& text, PictureRequest& request, OdString& error) {
  // A misspelt name would make Qt warn on its own.
  const bool isName = QColor::colorNames().contains(text, Qt::CaseInsensitive) ||
                      text.compare(QLatin1String("transparent"), Qt::CaseInsensitive) == 0;
  if (isName || text.startsWith(u'#')) request.background = QColor(text);
  if (request.background.isValid()) return true;
  error = QStringLiteral("--background needs a colour, such as white, #202020 or transparent, "
                         "not '%1'")
              .arg(text);
  return false;
}

bool readWindow(const OdString& text, PictureRequest& request, OdString& error) {
  const QStringList numbers = text.split(u',');
  std::array<double, 4> n{};
  bool areNumbers = numbers.size() == 4;
  for (qsizetype i = 0; areNumbers && i < 4; ++i) {
    double& value = n[static_cast<std::size_t>(i)];
    value = numbers[i].trimmed().toDouble(&areNumbers);
    areNumbers = areNumbers && std::isfinite(value);
  }
  if (!areNumbers) {
    error = QStringLiteral("--window needs two corners X1,Y1,X2,Y2, not '%1'").arg(text);
    return false;
  }
  if (n[0] == n[2] || n[1] == n[3]) {
    error = QStringLiteral("--window %1 has no area").arg(text);
    return false;
  }
  request.window = QRectF(QPointF(n[0], n[1]), QPointF(n[2], n[3])).normalized();
  return true;
}

bool readLayout(const OdString& text, PictureRequest& request, OdString& error) {
  request.layout = text;
  if (text.isEmpty()) error = QStringLiteral("--layout needs the name of a layout");
  return !text.isEmpty();
}

constexpr Reader kReaders[] = {
    {&PictureOptions::size, u"--size", readSize},
    {&PictureOptions::background, u"--background", readBackground},
    {&PictureOptions::window, u"--window", readWindow},
    {&PictureOptions::layout, u"--layout", readLayout},
};

OdString firstGiven(const PictureOptions& options) {
  for (const Reader& reader : kReaders)
    if (options.*reader.given) return OdString::fromUtf16(reader.option);
  return options.extents ? QStringLiteral("--extents") : OdString();
}

} // namespace

std::optional<PictureRequest> pictureRequest(const PictureOptions& options, OdString& error) {
  PictureRequest request;
  if (!options.isWanted()) {
    if (const OdString given = firstGiven(options); !given.isEmpty()) {
      error = QStringLiteral("%1 needs --png FILE, --pdf FILE or --svg FILE").arg(given);
      return std::nullopt;
    }
    return request;
  }
  request.file = options.file;
  if (options.file.isEmpty()) {
    error = QStringLiteral("%1 needs the name of a file").arg(options.option);
    return std::nullopt;
  }
  if (!isPictureFile(options.file)) {
    error = QStringLiteral("%1 %2: the name has to end in .png, .pdf or .svg")
                .arg(options.option, options.file);
    return std::nullopt;
  }
  if (options.extents && options.window) {
    error = QStringLiteral("--extents and --window cannot go together");
    return std::nullopt;
  }
  request.extents = options.extents;
  for (const Reader& reader : kReaders)
    if (const auto& text = options.*reader.given; text && !reader.read(*text, request, error))
      return std::nullopt;
  return request;
}

} // namespace drafton
