// What bounds the memory of decoded pictures.
#pragma once

#include <QImage>

namespace tc {

/// Decoded pictures that can be decoded again, up to a bound of memory. When it is passed, those go
/// that were not looked at for longest; they are decoded anew when somebody asks for them.
class PictureCache {
 public:
  /// A place for a picture. Only with use() does it count, until it is dropped, destroyed or given
  /// up.
  class Entry {
   public:
    Entry() = default;
    /// Shows the same picture; counts if the other one does.
    Entry(const Entry& other);
    Entry& operator=(const Entry&) = delete;
    ~Entry();

    QImage bitmap;

   private:
    friend class PictureCache;
    Entry* m_newer = nullptr;
    Entry* m_older = nullptr;
    qsizetype m_bytes = 0; ///< 0 while it does not count
  };

  static PictureCache& instance() { return s_instance; }

  /// Counts a picture as the one that was looked at last. Its own place may be emptied at once, if
  /// it alone is over the limit: take a copy of the picture before.
  void use(Entry& entry);
  /// Does not count it any longer, and leaves the picture where it is.
  void drop(Entry& entry);

  /// Bytes of the pictures that count.
  qsizetype size() const { return m_size; }
  qsizetype limit() const { return m_limit; }
  void setLimit(qsizetype bytes);

 private:
  void shrink();

  // Without a destructor: pictures may be destroyed after it.
  static PictureCache s_instance;

  Entry* m_newest = nullptr;
  Entry* m_oldest = nullptr;
  qsizetype m_size = 0;
  qsizetype m_limit = qsizetype{32} << 20;
};

} // namespace tc
