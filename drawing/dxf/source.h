// Where tags come from.
#pragma once

#include "frame/string.h"

#include <cstdint>
#include <memory>
#include <string_view>

/// One tag: a group code and a value as text. The text lives as long as its source.
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
  /// The line of the last tag's group code, from 1.
  virtual qint64 line() const = 0;
  /// Why the source is damaged.
  virtual OdString problem() const = 0;
};

/// Splits the text form of the format. Lines may end in either way.
class OdDbDxfTextSource : public OdDbDxfSource {
 public:
  /// `bytes` must outlive the source.
  explicit OdDbDxfTextSource(std::string_view bytes);

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override { return m_problem; }

 private:
  bool nextLine(std::string_view& line);

  const char* m_at;
  const char* m_end;
  qint64 m_nextLine = 1;
  qint64 m_line = 1;
  OdString m_problem;
};

/// Gives tags from a short form in which the parts of the library write constant drawings: tags
/// with a bar between them, each a code, a blank and a value.
class OdDbDxfShortSource : public OdDbDxfSource {
 public:
  explicit OdDbDxfShortSource(std::string_view text)
    : m_text(text) {}

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_count; }
  OdString problem() const override { return {}; }

 private:
  std::string_view m_text;
  qint64 m_count = 0;
};
