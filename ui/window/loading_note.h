// Says that palettes are still to come.
#pragma once

#include <QLabel>
#include <QTimer>

namespace tc {

class TcUiCatalogModel;

/// A line that shows while palettes are read, once that has taken a second, and tells how many are
/// left.
class TcUiLoadingNote : public QLabel {
 public:
  /// The model lives longer. `untilShown` is in milliseconds.
  explicit TcUiLoadingNote(const TcUiCatalogModel& model, int untilShown = 1000);

 private:
  void watch();
  void follow();

  const TcUiCatalogModel& m_model;
  int m_untilShown;
  QTimer m_timer;
};

} // namespace tc
