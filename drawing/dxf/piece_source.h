// Tags from pieces of text files.
#pragma once

#include "drawing/dxf/text_source.h"

/// Splits a piece of a text file into the tags that OdDbDxfTextSource gives. All of the piece is at
/// hand and ends with a line: what plain tags are, which nearly all are, is seen with little work.
class OdDbDxfPieceSource final : public OdDbDxfSource {
 public:
  void restart(const OdDbDxfPiece& piece);

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override { return m_other.problem(); }
  /// Behind the last tag.
  const char* place() const { return m_at; }

 private:
  const char* m_at = nullptr;
  const char* m_end = nullptr;
  qint64 m_line = 1, m_nextLine = 1;
  OdDbDxfTextSource m_other{OdDbDxfBytes(std::string_view())}; ///< for tags that are not plain
};
