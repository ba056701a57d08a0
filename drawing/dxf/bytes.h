// Bytes of a file, piece by piece.
#pragma once

#include "frame/string.h"

#include <memory>
#include <string_view>

class QIODevice;

/// A window on bytes that lie in memory or come from a device. Of a device no more than the window
/// is in memory, and the device may change or end at any time.
class OdDbDxfBytes {
 public:
  /// `all` must outlive the window.
  explicit OdDbDxfBytes(std::string_view all)
    : at(all.data())
    , end(all.data() + all.size())
    , m_begin(all.data()) {}
  /// From where the device stands; it must outlive the window.
  explicit OdDbDxfBytes(QIODevice& device);

  OdDbDxfBytes(OdDbDxfBytes&&) = default;
  OdDbDxfBytes& operator=(OdDbDxfBytes&&) = default;

  /// A second window on the same bytes, for a look ahead. Once it has brought further bytes from
  /// the device, hasFallenBehind() is true and this window is of no use any more.
  OdDbDxfBytes twin() const { return *this; }
  bool hasFallenBehind() const;

  /// The first byte that can still be read; bytes before `at` can be gone back to.
  const char* begin() const { return m_begin; }
  std::size_t left() const { return static_cast<std::size_t>(end - at); }
  /// Brings further bytes behind those that are left, which may move. False if there are none.
  bool more();
  /// What went wrong with the device; empty if nothing did.
  const OdString& problem() const { return m_problem; }
  /// The memory in which the bytes at hand lie; null if it is not the window's own. Whoever keeps
  /// it may go on reading there: further bytes are then brought into other memory.
  const std::shared_ptr<char[]>& memory() const { return m_memory; }

  const char* at;  ///< the next byte; whoever reads moves it on
  const char* end; ///< behind the last byte in the window

 private:
  OdDbDxfBytes(const OdDbDxfBytes&) = default;

  const char* m_begin = nullptr;
  QIODevice* m_device = nullptr;
  qint64 m_behind = 0; ///< the place in the device behind the window
  std::shared_ptr<char[]> m_memory;
  std::size_t m_size = 0;
  OdString m_problem;
};
