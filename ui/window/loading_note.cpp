#include "ui/window/loading_note.h"

#include "host/host_locator.h"
#include "module/string_table.h"
#include "ui/window/catalog_model.h"

namespace tc {

static constexpr int kBetweenUpdates = 250; // milliseconds

TcUiLoadingNote::TcUiLoadingNote(const TcUiCatalogModel& model, int untilShown)
  : m_model(model)
  , m_untilShown(untilShown) {
  setMargin(4);
  setWordWrap(true);
  hide();
  connect(&m_timer, &QTimer::timeout, this, &TcUiLoadingNote::follow);
  connect(&m_model, &QAbstractItemModel::rowsInserted, this, &TcUiLoadingNote::watch);
  watch();
}

void TcUiLoadingNote::watch() {
  if (!m_timer.isActive() && m_model.pendingCount() > 0) m_timer.start(m_untilShown);
}

void TcUiLoadingNote::follow() {
  const int count = m_model.pendingCount();
  setVisible(count > 0);
  if (count == 0) return m_timer.stop();
  setText(formatText(host::translate(QStringLiteral("Reading palettes, %s to go...")),
                     OdString::number(count)));
  m_timer.start(kBetweenUpdates);
}

} // namespace tc
