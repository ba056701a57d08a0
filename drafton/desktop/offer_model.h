// What can be chosen for a word that is being typed.
#pragma once

#include "host/completion.h"

#include <QAbstractListModel>
#include <QIcon>

#include <optional>
#include <vector>

namespace drafton {

/// Offers that begin with a letter, narrowed to those that begin with more. Pictograms are asked
/// for when they are shown.
class OfferModel : public QAbstractListModel {
 public:
  using Entry = std::shared_ptr<HostEdCompletion::Entry>;

  using QAbstractListModel::QAbstractListModel;

  /// Takes other offers, all of which are shown.
  void take(std::vector<Entry> entries);
  /// Shows those that begin with a text, in any case.
  void narrow(const OdString& prefix);
  bool isEmpty() const { return m_offers.empty(); }
  /// The offer of a row that is shown.
  const Entry& at(int row) const { return m_offers[m_shown[static_cast<std::size_t>(row)]].entry; }
  /// How many pixels of the device a pixel of the list has.
  void setPixelRatio(double ratio) { m_pixelRatio = ratio; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  struct Offer {
    Entry entry;
    mutable std::optional<QIcon> icon;
  };
  const QIcon& iconOf(const Offer& offer) const;

  std::vector<Offer> m_offers;
  std::vector<std::size_t> m_shown;
  double m_pixelRatio = 1;
};

} // namespace drafton
