// Tags from text files.
#pragma once

#include "drawing/dxf/piece.h"
#include "drawing/dxf/source.h"

#include <optional>

/// Splits the text form of the format. Lines may end in either way.
class OdDbDxfTextSource final : public OdDbDxfSource {
 public:
  explicit OdDbDxfTextSource(OdDbDxfBytes bytes);

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override { return m_problem; }

  /// Begins anew with other text, whose first line has the number `line`.
  void restart(std::string_view text, qint64 line);
  /// Behind the last tag. The place and the tag's line tell where to go on later.
  const char* place() const { return m_bytes.at; }
  void goOn(const char* place, qint64 line);
  /// Makes the last tag the next one again. False if the beginning of its lines is not at hand.
  bool goBack(const OdDbDxfTag& tag);
  /// Takes what can be read apart from what follows it; see OdDbDxfPiece.
  std::optional<OdDbDxfPiece> cut();

 private:
  bool nextLine(std::string_view& line, std::size_t longest);
  Result damaged(const OdString& problem);

  OdDbDxfBytes m_bytes;
  qint64 m_nextLine = 1;
  qint64 m_line = 1;
  bool m_tooLong = false;
  OdString m_problem;
};
