// Pictures that drawings show.
#pragma once

#include "frame/string.h"

#include <QDateTime>
#include <QImage>
#include <QStringList>

#include <list>
#include <utility>

namespace drafton {

/// How a picture is changed on its way; each 0 to 100, with 50 (fade: 0) for as it is.
struct ImageTones {
  int brightness = 50, contrast = 50, fade = 0;
  bool operator==(const ImageTones&) const = default;
};

/// The pictures that were shown last, also in smaller sizes, up to a bound of memory. A file that
/// was changed is read again, one that could not be read is not.
class ImageCache {
 public:
  /// The program's own.
  static ImageCache& instance();

  /// The picture of a file (a stored path), halved as often as its width may be without becoming
  /// smaller than `width`, and further if it would fill the cache alone. Null if the file is none
  /// that can be read, or is too large. `ground` is what fading leads to.
  QImage find(const OdString& path, double width, const ImageTones& tones, QRgb ground);

  /// The stored paths of files that were asked for and turned out to be none that can be shown,
  /// each once, since the last call.
  QStringList takeUnshown() { return std::exchange(m_unshown, {}); }

  void setLimit(qsizetype bytes);
  qsizetype size() const { return m_size; }

 private:
  struct Entry {
    OdString path;
    QDateTime modified;
    QSize whole; ///< of the whole picture, in pixels
    int halvings = 0;
    ImageTones tones;
    QRgb ground = 0;
    QImage image; ///< null for a file that cannot be shown
  };
  /// What an entry counts for; one without a picture takes some room as well.
  static qsizetype bytesOf(const Entry& entry) {
    return entry.image.isNull() ? qsizetype{sizeof(Entry)} : entry.image.sizeInBytes();
  }
  QImage keep(Entry entry);
  void shrink();

  std::list<Entry> m_entries; // the last used one in front
  QStringList m_unshown;
  qsizetype m_size = 0, m_limit = qsizetype{384} << 20;
};

} // namespace drafton
