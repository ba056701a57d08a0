#include "ui/window/item_tip.h"

#include "catalog/tool.h"

#include <QBuffer>

namespace tc {
namespace {

OdString asData(const QPixmap& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return QLatin1String("data:image/png;base64,") + QString::fromLatin1(bytes.toBase64());
}

OdString lines(const OdString& text) {
  return text.toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
}

} // namespace

OdString itemTip(const OdTcCatalogItem& item, TcUiItemPictures& pictures) {
  OdString words = QLatin1String("<b>") + lines(item.name()) + QLatin1String("</b>");
  if (!item.description().isEmpty()) words += QLatin1String("<br>") + lines(item.description());
  if (!odrxCast<OdTcTool>(&item)) return words;
  const int pixels = TcUiItemPictures::pixelsOf(kLargeIcons);
  return QStringLiteral("<table><tr><td><img width=\"%2\" height=\"%2\" src=\"%1\"></td>"
                        "<td style=\"padding-left:8px\">%3</td></tr></table>")
      .arg(asData(pictures.picture(item, kLargeIcons)), OdString::number(pixels), words);
}

} // namespace tc
