// How files of pictures are read, for those who decode them. Header only: the drawing library
// itself needs nothing of QtGui.
#pragma once

#include "drawing/pictures/picture_facts.h"

#include <QImageReader>

#include <limits>

/// A decoder of a file that was looked over before. What the file is, its contents tell, not its
/// name, and its pixels come as they lie in it: drawings and other programs count them so, and a
/// photograph that its camera marked as turned stays as it is.
class OdPictureReader : public QImageReader {
 public:
  explicit OdPictureReader(QIODevice* device)
    : QImageReader(device)
    , m_facts(oddbPictureFacts(*device)) {
    setDecideFormatFromContent(true);
    setAutoTransform(false);
  }

  /// True if the file ends before its picture does: decoders would fill in the rest.
  bool isCut() const { return m_facts.isCut; }
  /// What the file is if the program has nothing to decode it with; else empty.
  QByteArray missingDecoder() const {
    const bool isThere = m_facts.kind.isEmpty() || supportedImageFormats().contains(m_facts.kind);
    return isThere ? QByteArray() : m_facts.kind;
  }
  /// The picture's size before it is decoded; not valid if nobody tells.
  QSize toldSize() const {
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    const bool isKnown = m_facts.width > 0 && m_facts.height > 0 && m_facts.width <= kMost &&
                         m_facts.height <= kMost;
    if (isKnown) return {static_cast<int>(m_facts.width), static_cast<int>(m_facts.height)};
    // Decoders print what they think of a file that ends too early.
    return isCut() ? QSize() : size();
  }
  /// True if the decoded picture takes more memory than Qt allows. Qt itself would refuse it as
  /// well, but prints a warning without the file's name.
  bool isTooLarge() const {
    constexpr int kUsualBits = 32;
    const QImage::Format format = isCut() ? QImage::Format_Invalid : imageFormat();
    const int bits = format == QImage::Format_Invalid
                         ? kUsualBits
                         : QImage::toPixelFormat(format).bitsPerPixel();
    const qint64 limit = qint64{allocationLimit()} << 20;
    const QSize whole = toldSize();
    return whole.isValid() && limit != 0 &&
           qint64{whole.width()} * whole.height() > limit * 8 / bits;
  }

 private:
  OdPictureFacts m_facts;
};
