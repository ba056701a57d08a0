#include "tpal/progress.h"

namespace tpal {
namespace {

/// Between two looks of the user.
constexpr qint64 kMilliseconds = 100;

} // namespace

Progress::Progress(Console& console, OdString what, std::size_t total)
  : m_console(console)
  , m_what(std::move(what))
  , m_total(total) {
  m_sinceLast.start();
}

Progress::~Progress() {
  if (m_width == 0) return;
  m_console.err << '\r' << OdString(m_width, u' ') << '\r';
  m_console.err.flush();
}

void Progress::show(std::size_t done) {
  if (!m_console.showsProgress || m_sinceLast.elapsed() < kMilliseconds) return;
  m_sinceLast.restart();
  const OdString line = QStringLiteral("%1: %2 of %3").arg(m_what).arg(done).arg(m_total);
  m_console.err << '\r' << line;
  m_console.err.flush();
  m_width = line.size();
}

} // namespace tpal
