// Byte streams.
#pragma once

#include "frame/smart_ptr.h"

#include <QByteArray>

#include <cstdint>
#include <memory>

class QIODevice;

/// A stream of bytes with a position. Every failure raises OdFileError with the stream's name and
/// the system's reason.
class OdStreamBuf : public OdRxObject {
 public:
  /// What the stream is called in messages: the path of a file.
  virtual OdString fileName() const = 0;
  virtual std::uint64_t length() = 0;
  virtual std::uint64_t tell() = 0;
  virtual void seek(std::uint64_t position) = 0;
  /// Reads exactly `count` bytes; a shorter stream is a failure.
  virtual void getBytes(void* buffer, std::uint32_t count) = 0;
  virtual void putBytes(const void* buffer, std::uint32_t count) = 0;
  virtual void putByte(std::uint8_t byte) { putBytes(&byte, 1); }
  /// Hands buffered bytes to the system; without it the last failure can go unseen.
  virtual void flush() {}
};
using OdStreamBufPtr = OdSmartPtr<OdStreamBuf>;

/// A stream over any Qt device, which it owns.
class OdDeviceStream : public OdStreamBuf {
 public:
  /// `device` must be open.
  OdDeviceStream(std::unique_ptr<QIODevice> device, OdString name);
  ~OdDeviceStream() override;

  OdString fileName() const override { return m_name; }
  std::uint64_t length() override;
  std::uint64_t tell() override;
  void seek(std::uint64_t position) override;
  void getBytes(void* buffer, std::uint32_t count) override;
  void putBytes(const void* buffer, std::uint32_t count) override;
  void putByte(std::uint8_t byte) override;
  void flush() override;

  QIODevice* device() const { return m_device.get(); }

 private:
  [[noreturn]] void fail() const;
  void drain();

  std::unique_ptr<QIODevice> m_device;
  OdString m_name;
  // Single bytes are gathered here: printing a document writes it byte by byte.
  std::unique_ptr<char[]> m_pending;
  std::uint32_t m_used = 0;
};

/// A growing stream in memory.
class OdMemoryStream : public OdStreamBuf {
 public:
  explicit OdMemoryStream(QByteArray bytes = {}, OdString name = QStringLiteral("(memory)"))
    : m_bytes(std::move(bytes))
    , m_name(std::move(name)) {}

  const QByteArray& bytes() const { return m_bytes; }

  OdString fileName() const override { return m_name; }
  std::uint64_t length() override { return static_cast<std::uint64_t>(m_bytes.size()); }
  std::uint64_t tell() override { return m_position; }
  void seek(std::uint64_t position) override { m_position = position; }
  void getBytes(void* buffer, std::uint32_t count) override;
  void putBytes(const void* buffer, std::uint32_t count) override;
  void putByte(std::uint8_t byte) override;

 private:
  QByteArray m_bytes;
  OdString m_name;
  std::uint64_t m_position = 0;
};
