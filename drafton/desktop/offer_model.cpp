#include "drafton/desktop/offer_model.h"

#include <QImage>
#include <QPixmap>

#include <cmath>
#include <numeric>

namespace drafton {
namespace {

constexpr int kPictogramSize = 16;

} // namespace

void OfferModel::take(std::vector<Entry> entries) {
  beginResetModel();
  m_offers.clear();
  m_offers.reserve(entries.size());
  for (Entry& entry : entries) m_offers.push_back({std::move(entry), std::nullopt});
  m_shown.resize(m_offers.size());
  std::iota(m_shown.begin(), m_shown.end(), std::size_t{0});
  endResetModel();
}

void OfferModel::narrow(const OdString& prefix) {
  beginResetModel();
  m_shown.clear();
  for (std::size_t i = 0; i < m_offers.size(); ++i)
    if (m_offers[i].entry->text.startsWith(prefix, Qt::CaseInsensitive)) m_shown.push_back(i);
  endResetModel();
}

int OfferModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

QVariant OfferModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Offer& offer = m_offers[m_shown[static_cast<std::size_t>(index.row())]];
  if (role == Qt::DisplayRole) return offer.entry->displayText;
  if (role == Qt::DecorationRole && offer.entry->pictogram) return iconOf(offer);
  return {};
}

const QIcon& OfferModel::iconOf(const Offer& offer) const {
  if (!offer.icon) {
    const int pixels = static_cast<int>(std::lround(kPictogramSize * m_pixelRatio));
    QPixmap pixmap = QPixmap::fromImage(offer.entry->pictogram->image(pixels));
    pixmap.setDevicePixelRatio(m_pixelRatio);
    offer.icon = QIcon(pixmap);
  }
  return *offer.icon;
}

} // namespace drafton
