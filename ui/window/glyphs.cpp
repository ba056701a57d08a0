#include "ui/window/glyphs.h"

#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

namespace tc {
namespace {

/// What stands between the tags of each picture, on a sheet of 16 by 16; "ink" is the theme's
/// colour. Lines run through the middle of pixels.
constexpr const char* kShapes[] = {
    // A tree, and a list that takes its place.
    R"(<path d="M2.5 2v10.5h3M2.5 6.5h3" fill="none" stroke="ink"/>
       <rect x="1" y="1" width="4" height="3" fill="#3f8fdf"/>
       <rect x="6" y="5" width="4" height="3" fill="ink"/><rect x="6" y="11" width="4" height="3" fill="ink"/>
       <path d="M12 3.5h3M13.5 2l1.5 1.5-1.5 1.5" fill="none" stroke="#3f8fdf" stroke-linecap="round"/>)",
    // Three sheets that grow.
    R"(<rect x="1" y="10" width="4" height="4" fill="ink"/>
       <rect x="3.5" y="5.5" width="6" height="6" fill="none" stroke="ink"/>
       <rect x="6.5" y="1.5" width="8" height="8" rx="1" fill="none" stroke="#3f8fdf"/>)",
    // Rows with a picture each.
    R"(<rect x="1" y="2" width="3" height="3" fill="#3f8fdf"/><rect x="1" y="7" width="3" height="3" fill="#3f8fdf"/>
       <rect x="1" y="12" width="3" height="3" fill="#3f8fdf"/>
       <path d="M6 3.5h9M6 8.5h9M6 13.5h9" stroke="ink"/>)",
    // A question.
    R"(<circle cx="8" cy="8" r="6.5" fill="none" stroke="ink"/>
       <path d="M6 6.3a2 1.9 0 1 1 2.7 1.8c-.5.2-.7.5-.7 1.2" fill="none" stroke="#3f8fdf" stroke-width="1.5" stroke-linecap="round"/>
       <circle cx="8" cy="11.5" r=".9" fill="#3f8fdf"/>)",
    // A binder with two rings.
    R"(<rect x="2.5" y="1.5" width="11" height="13" rx="1" fill="#3f8fdf" fill-opacity=".18" stroke="ink"/>
       <path d="M5.5 2v12" stroke="ink"/><path d="M1.5 4.5h2M1.5 11.5h2" stroke="#3f8fdf" stroke-width="1.5" stroke-linecap="round"/>
       <path d="M8 5.5h3M8 8.5h3" stroke="ink"/>)",
    // A folder.
    R"(<path d="M1.5 13.5v-10a1 1 0 0 1 1-1h4l1.5 2h5.5a1 1 0 0 1 1 1v8z" fill="#e0a030" fill-opacity=".35" stroke="ink" stroke-linejoin="round"/>
       <path d="M1.5 6.5h13" stroke="ink"/>)",
    // A sheet with tools on it.
    R"(<rect x="1.5" y="1.5" width="13" height="13" rx="1" fill="none" stroke="ink"/>
       <rect x="4" y="4" width="3" height="3" fill="#3f8fdf"/><circle cx="10.5" cy="5.5" r="1.5" fill="#e0a030"/>
       <path d="M4 11.5h8" stroke="ink"/><path d="M4 9.5h8" stroke="ink" stroke-opacity=".5"/>)",
    // Something without a picture of its own.
    R"(<rect x="2.5" y="2.5" width="11" height="11" rx="1" fill="none" stroke="ink" stroke-dasharray="2 1.5"/>
       <path d="M6 8h4M8 6v4" stroke="#3f8fdf" stroke-linecap="round"/>)",
};

QByteArray documentOf(TcUiGlyph glyph, const QColor& ink) {
  return "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'>" +
         QByteArray(kShapes[static_cast<int>(glyph)]).replace("ink", ink.name().toLatin1()) +
         "</svg>";
}

} // namespace

QPixmap glyphPixmap(TcUiGlyph glyph, int pixels, qreal ratio, const QColor& ink) {
  QPixmap pixmap(QSize(pixels, pixels) * ratio);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  QSvgRenderer(documentOf(glyph, ink)).render(&painter);
  painter.end();
  pixmap.setDevicePixelRatio(ratio);
  return pixmap;
}

QIcon glyphIcon(TcUiGlyph glyph, const QPalette& palette) {
  QIcon icon;
  const std::pair<QIcon::Mode, QPalette::ColorGroup> modes[] = {
      {QIcon::Normal, QPalette::Active}, {QIcon::Disabled, QPalette::Disabled}};
  for (const auto& [mode, group] : modes)
    for (const qreal ratio : {1.0, 2.0, 3.0})
      icon.addPixmap(glyphPixmap(glyph, 16, ratio, palette.color(group, QPalette::ButtonText)),
                     mode);
  return icon;
}

} // namespace tc
