// The files that tools bring their contents from.
#pragma once

#include "drawing/database.h"

#include <QImage>

#include <vector>

namespace tc {

/// Reads source files for whoever looks into many tools one after the other: tools of a palette
/// often share a source, which is then read once. Only the last few stay in memory.
class OdTcSourceFiles {
 public:
  /// The drawing of a stored path, borrowed until the next call; null if it cannot be read.
  OdDbDatabase* drawing(const OdString& path);
  /// The picture of a stored path, reduced to what pictures of tools need; null if it cannot be
  /// read.
  QImage picture(const OdString& path);
  /// Why what was asked for last gave nothing; empty if it gave something.
  const OdString& problem() const { return m_problem; }
  /// Who looks for something in a source tells here why that is not to be had; empty before a
  /// search.
  void setProblem(const OdString& problem) { m_problem = problem; }

 private:
  /// What a file is read as: one that is no drawing may be a picture.
  enum class Kind { kDrawing, kPicture };
  struct Entry {
    Kind kind = Kind::kDrawing;
    OdString path;
    OdDbDatabasePtr drawing;
    QImage picture;
    OdString problem;
  };
  template <class Read>
  Entry& entry(Kind kind, const OdString& path, Read read);

  std::vector<Entry> m_entries; ///< the last one used is the last
  OdString m_problem;
};

} // namespace tc
