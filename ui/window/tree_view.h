// The catalogs as a tree. Its selection decides what the list shows.
#pragma once

#include "ui/window/catalog_model.h"

#include <QTreeView>

#include <string_view>

namespace tc {

class ITcUiPaletteSet;
class ITcUiStateSaver;

/// What the rest of the window asks of the tree.
class ITcUiTreeView {
 public:
  static constexpr std::string_view kId = "ITcUiTreeView";

  /// Takes the item's label from the model anew.
  virtual void refreshName(const OdString& id) = 0;
  /// Hands the selected item to the list.
  virtual void announceSelection() = 0;
  /// Null if nothing is selected.
  virtual OdTcCatalogItem* selectedItem() const = 0;
  /// Each selects the item and shows it; false if it is not in the tree.
  virtual bool selectById(const OdString& id) = 0;
  virtual bool expandAndSelect(const OdString& id) = 0;
  /// Selects what stands above the selected item; nothing above a catalog.
  virtual void selectParent() = 0;
  /// The tool's pictures have changed.
  virtual void refreshToolImage(OdTcCatalogItem* tool) = 0;
  /// Fills the tree and expands the catalogs; what is there already stays as it is.
  virtual void populate() = 0;
  /// What the store names and has not come yet is expanded and selected when it comes, and kept for
  /// the next start if that is too late.
  virtual void saveState(ITcUiStateSaver& store) const = 0;
  virtual void loadState(const ITcUiStateSaver& store) = 0;

 protected:
  ~ITcUiTreeView() = default;
};

class TcUiTreeView : public QTreeView, public ITcUiTreeView {
 public:
  /// Finds its neighbours through the window.
  TcUiTreeView(ITcUiPaletteSet& window, TcUiItemPictures& pictures);

  void refreshName(const OdString& id) override;
  void announceSelection() override;
  OdTcCatalogItem* selectedItem() const override;
  bool selectById(const OdString& id) override;
  bool expandAndSelect(const OdString& id) override;
  void selectParent() override;
  void refreshToolImage(OdTcCatalogItem* tool) override;
  void populate() override;
  void saveState(ITcUiStateSaver& store) const override;
  void loadState(const ITcUiStateSaver& store) override;

  TcUiCatalogModel& catalogs() { return m_model; }

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& former) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool select(const QModelIndex& index);
  void takeInserted(const QModelIndex& parent, int first, int last);
  void takeAwaited(const QModelIndex& index);

  ITcUiPaletteSet& m_window;
  TcUiCatalogModel m_model;
  QStringList m_awaited; ///< what is to be expanded when it comes
  OdString m_awaitedSelection;
  QTimer m_bringSelection;
};

} // namespace tc
