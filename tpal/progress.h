// How far long work has come.
#pragma once

#include "tpal/command.h"

#include <QElapsedTimer>

namespace tpal {

/// One line on a terminal that is written over as the work goes on, and is gone at its end. Nothing
/// is shown elsewhere, or of work that is done in a moment.
class Progress {
 public:
  /// `what` stands before the figures.
  Progress(Console& console, OdString what, std::size_t total);
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;
  ~Progress();

  /// So many of all are done.
  void show(std::size_t done);

 private:
  Console& m_console;
  const OdString m_what;
  const std::size_t m_total;
  QElapsedTimer m_sinceLast;
  qsizetype m_width = 0; ///< of what stands on the line
};

} // namespace tpal
