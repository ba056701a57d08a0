#include "tools/source_files.h"

#include "frame/error.h"
#include "images/picture_file.h"

#include <algorithm>

namespace tc {
namespace {

/// As many as are kept.
constexpr std::size_t kMost = 2;

} // namespace

/// The entry of a path that is read as that; one that is not known is filled by `read`.
template <class Read>
OdTcSourceFiles::Entry& OdTcSourceFiles::entry(Kind kind, const OdString& path, Read read) {
  const auto known = std::find_if(m_entries.begin(), m_entries.end(), [&](const Entry& each) {
    return each.kind == kind && each.path == path;
  });
  if (known != m_entries.end()) {
    std::rotate(known, known + 1, m_entries.end());
  } else {
    if (m_entries.size() == kMost) m_entries.erase(m_entries.begin());
    m_entries.push_back({kind, path, {}, {}, {}});
    read(m_entries.back());
  }
  m_problem = m_entries.back().problem;
  return m_entries.back();
}

OdDbDatabase* OdTcSourceFiles::drawing(const OdString& path) {
  return entry(Kind::kDrawing, path,
               [&](Entry& fresh) {
                 try {
                   fresh.drawing = OdDbDatabase::readFile(path);
                 } catch (const OdError& error) {
                   fresh.problem = error.description();
                 }
               })
      .drawing.get();
}

QImage OdTcSourceFiles::picture(const OdString& path) {
  return entry(Kind::kPicture, path,
               [&](Entry& fresh) {
                 fresh.picture = loadReducedPicture(path);
                 if (fresh.picture.isNull()) fresh.problem = whyNoPicture(path);
               })
      .picture;
}

} // namespace tc
