// Tags from binary files.
#pragma once

#include "drawing/dxf/bytes.h"
#include "drawing/dxf/source.h"

#include <string>

/// Splits the binary form of the format, with group codes of one byte (R12 and before) or two.
/// Values are given as the text form would have them.
class OdDbDxfBinarySource final : public OdDbDxfSource {
 public:
  /// What every such file begins with.
  static constexpr std::string_view kMark{"AutoCAD Binary DXF\r\n\x1A\0", 22};

  /// `bytes` begin with the mark.
  explicit OdDbDxfBinarySource(OdDbDxfBytes bytes);

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_count; }
  OdString problem() const override { return m_problem; }

 private:
  bool have(std::size_t count);
  template <class T>
  bool take(T& value);
  bool takeCode(int& code);
  bool takeValue(OdDbDxfTag& tag);
  bool takeText(std::string_view& text);
  bool takeBytes(std::string_view& text);

  OdDbDxfBytes m_bytes;
  bool m_shortCodes = false;
  qint64 m_count = 0;
  std::string m_text;
  OdString m_problem;
};
