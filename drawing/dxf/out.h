// What objects meet while they are written.
#pragma once

#include "drawing/database_data.h"
#include "drawing/dxf/residue.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <functional>
#include <string>

/// Writes the tags of one drawing.
class OdDbDxfOut {
 public:
  /// Takes the bytes as they come; raises OdFileError if it cannot.
  using Sink = std::function<void(const QByteArray&)>;

  OdDbDxfOut(const OdDbDatabase& database, OdDb::DwgVersion version, Sink sink);
  /// Collects the bytes; see collected().
  OdDbDxfOut(const OdDbDatabase& database, OdDb::DwgVersion version)
    : OdDbDxfOut(database, version, nullptr) {}

  OdDb::DwgVersion version() const { return m_version; }
  const OdDbDatabase& database() const { return m_database; }
  /// Entities on paper say so.
  bool isPaperSpace() const { return m_paperSpace; }
  void setPaperSpace(bool paper) { m_paperSpace = paper; }

  void raw(int code, std::string_view value);
  void text(int code, const OdString& value);
  void integer(int code, std::int64_t value);
  /// Raises OdError(eInvalidInput) for a number that is not finite.
  void real(int code, double value);
  /// Degrees in the file.
  void angle(int code, double radians);
  /// Three tags: `code`, `code` + 10 and `code` + 20.
  void point(int code, const OdGePoint3d& p);
  /// Two tags: `code` and, unless told otherwise, `code` + 10.
  void point2d(int code, const OdGePoint2d& p, int yCode = 0);
  void handle(int code, OdDbHandle value);
  void reference(int code, OdDbObjectId id) { handle(code, id.getHandle()); }
  /// The name of a record, or `fallback` for a null id.
  void recordName(int code, OdDbObjectId id, const char* fallback);

  /// Ends the subclass before, with what is kept of its tags, and begins another.
  void subclass(const char* name);
  /// Writes what is kept of the subclass at hand, since what follows has to stand behind it.
  void endSubclassHere();
  /// A whole object with everything that is kept of it. Erased objects are left out by the caller.
  void object(const OdDbObject& object);
  /// The beginning of a table, up to the count of its records.
  void beginTable(const OdDbSymbolTable& table);
  /// The parts of an object for those who write it in two pieces.
  void beginObject(const OdDbObject& object, const char* name, int handleCode, OdDbObjectId owner);
  void endObject();
  /// Lines that were kept from the file.
  void kept(const QByteArray& lines);
  /// The same for lines of a subclass: without tags that are newer than the version written.
  void keptOf(std::string_view subclass, const QByteArray& lines);

  void section(const char* name);
  void endSection() { raw(0, "ENDSEC"); }
  void flush();
  /// Bytes that were not handed on so far: all, if nobody takes them as they come.
  std::string_view collected() const {
    return {m_buffer.get(), static_cast<std::size_t>(m_at - m_buffer.get())};
  }
  void clearCollected() { m_at = m_buffer.get(); }
  /// Hands on what another one has collected.
  void addCollected(const OdDbDxfOut& other);

 private:
  /// Room for a short tag, to be filled from m_at on.
  void ensureRoom() {
    if (room() < kShortTag) makeRoom(kShortTag);
  }
  std::size_t room() const { return static_cast<std::size_t>(m_buffer.get() + m_size - m_at); }
  void makeRoom(std::size_t size);
  void code(int code);
  void append(std::string_view bytes);
  static double degreesOf(double radians);
  void endSubclass();
  /// One line's text in the encoding of the file; what its code page lacks is escaped.
  std::string encoded(QStringView line);
  /// The bytes in the code page of the file; empty if it lacks a character.
  QByteArray inCodePage(QStringView text);

  const OdDbDatabase& m_database;
  OdDb::DwgVersion m_version;
  Sink m_sink;
  // No code and no number is longer, line ends included.
  static constexpr std::size_t kShortTag = 64;
  std::size_t m_size; ///< of the buffer
  std::unique_ptr<char[]> m_buffer;
  char* m_at; ///< behind the last byte in the buffer
  // Neighbours mostly share their records, whose names need not be encoded again.
  struct RecentName {
    OdDbObjectId id;
    std::string bytes;
  };
  static constexpr std::size_t kRecentNames = 16;
  RecentName m_recentNames[kRecentNames];
  // And so they do their angles, for which the shortest degrees are costly to find.
  struct RecentAngle {
    double radians = 0, degrees = 0;
  };
  static constexpr std::size_t kRecentAngles = 4;
  RecentAngle m_recentAngles[kRecentAngles];
  QStringEncoder m_encoder;
  QStringDecoder m_keptDecoder;
  QStringDecoder m_codePageDecoder;
  bool m_utf8, m_transcode;
  bool m_paperSpace = false;
  const OdDbDxfResidue* m_residue = nullptr;
  std::string_view m_subclass;
};
