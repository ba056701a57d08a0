// Where tags come from.
#pragma once

#include "frame/string.h"

#include <cstdint>
#include <memory>
#include <string_view>

class OdDbDxfBytes;

/// One tag: a group code and a value as text. The text lives until the next tag is asked for.
struct OdDbDxfTag {
  int code = 0;
  std::string_view text;

  bool is(int wanted, std::string_view value) const { return code == wanted && text == value; }
};

/// Gives the tags of a drawing one after the other.
class OdDbDxfSource {
 public:
  enum Result : std::uint8_t {
    kTag,
    kEnd,     ///< nothing is left
    kDamaged, ///< what follows cannot be split into tags; see problem()
  };

  virtual ~OdDbDxfSource() = default;
  virtual Result next(OdDbDxfTag& tag) = 0;
  /// Where the last tag stands, from 1: the line of its group code, or its number if there are no
  /// lines.
  virtual qint64 line() const = 0;
  /// Why the source is damaged.
  virtual OdString problem() const = 0;

  /// The source for a text or a binary file by its first bytes. Raises nothing: what is neither is
  /// found to be damaged.
  static std::unique_ptr<OdDbDxfSource> of(OdDbDxfBytes bytes);
};

/// Gives tags from a short form in which the parts of the library write constant drawings: tags
/// with a bar between them, each a code, a blank and a value.
class OdDbDxfShortSource : public OdDbDxfSource {
 public:
  /// Handles in it are raised by `lastHandle`, behind which they then lie.
  explicit OdDbDxfShortSource(std::string_view text, std::uint64_t lastHandle = 0)
    : m_text(text)
    , m_lastHandle(lastHandle) {}

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_count; }
  OdString problem() const override { return {}; }

 private:
  void raise(OdDbDxfTag& tag);

  std::string_view m_text;
  std::uint64_t m_lastHandle;
  char m_handle[20] = {};
  qint64 m_count = 0;
};
