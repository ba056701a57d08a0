// Pictures that drawings show.
#pragma once

#include "frame/string.h"

#include <QDateTime>
#include <QImage>

#include <list>

namespace drafton {

/// How a picture is changed on its way; each 0 to 100, with 50 (fade: 0) for as it is.
struct ImageTones {
  int brightness = 50, contrast = 50, fade = 0;
  bool operator==(const ImageTones&) const = default;
};

/// The pictures that were shown last, also in smaller sizes, up to a bound of memory. A file that
/// was changed is read again.
class ImageCache {
 public:
  /// The program's own.
  static ImageCache& instance();

  /// The picture of a file (a stored path), halved as often as its width may be without becoming
  /// smaller than `width`. Null if the file is none that can be read. `ground` is what fading leads
  /// to.
  QImage find(const OdString& path, double width, const ImageTones& tones, QRgb ground);

  void setLimit(qsizetype bytes);
  qsizetype size() const { return m_size; }

 private:
  struct Entry {
    OdString path;
    QDateTime modified;
    int halvings = 0;
    ImageTones tones;
    QRgb ground = 0;
    QImage image;
  };
  QImage keep(Entry entry);
  void shrink();

  std::list<Entry> m_entries; // the last used one in front
  qsizetype m_size = 0, m_limit = qsizetype{256} << 20;
};

} // namespace drafton
