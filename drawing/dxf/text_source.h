// Tags from text files.
#pragma once

#include "drawing/dxf/bytes.h"
#include "drawing/dxf/source.h"

/// Splits the text form of the format. Lines may end in either way.
class OdDbDxfTextSource final : public OdDbDxfSource {
 public:
  explicit OdDbDxfTextSource(OdDbDxfBytes bytes);

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override { return m_problem; }
  /// Where the text of the last tag lies; see OdDbDxfBytes.
  const std::shared_ptr<char[]>& memory() const { return m_bytes.memory(); }

 private:
  bool nextLine(std::string_view& line, std::size_t longest);
  Result damaged(const OdString& problem);

  OdDbDxfBytes m_bytes;
  qint64 m_nextLine = 1;
  qint64 m_line = 1;
  bool m_tooLong = false;
  OdString m_problem;
};
