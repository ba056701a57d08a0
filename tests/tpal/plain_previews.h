// A host's pictures for the tests of the catalog tool.
#pragma once

#include "host/preview_service.h"

#include <QImage>

/// Makes pictures of one colour, and says what was asked for.
class PlainPreviews : public CKVUnknownImpl<IHostPreviewService> {
 public:
  QImage renderObjects(std::span<const OdDbObjectId>, const OdGeExtents3d&, int pixels) override {
    ++objects;
    return plain(pixels);
  }
  QImage renderPattern(const OdString& name, const OdString& file, int pixels) override {
    asked << name + u'|' + file;
    return name == unknownPattern ? QImage() : plain(pixels);
  }
  QImage storedPreview(const OdString&, int) override { return {}; }
  QImage fileIcon(const OdString&, int pixels) override { return plain(pixels); }
  QImage renderUserPattern(double, bool, int pixels) override { return plain(pixels); }

  int objects = 0;
  OdString unknownPattern;
  QStringList asked; ///< patterns and their files

 private:
  static QImage plain(int pixels) {
    QImage picture(pixels, pixels, QImage::Format_ARGB32);
    picture.fill(qRgb(0, 100, 0));
    return picture;
  }
};
