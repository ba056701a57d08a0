// The contents of what is selected in the tree. Here tools are seen and picked.
#pragma once

#include "ui/window/item_list_model.h"
#include "ui/window/window_commands.h"

#include <QWidget>

#include <array>
#include <string_view>

class QAbstractItemView;
class QItemSelectionModel;
class QListView;
class QStackedLayout;
class QTreeView;

namespace tc {

class ITcUiPaletteSet;
class ITcUiStateSaver;

/// What the rest of the window asks of the list.
class ITcUiListView {
 public:
  static constexpr std::string_view kId = "ITcUiListView";

  /// Shows what is in the item. A tool changes nothing.
  virtual void fill(OdTcCatalogItem* item) = 0;
  virtual void addItem(OdTcCatalogItem* item) = 0;
  virtual void renameItem(OdTcCatalogItem* item) = 0;
  /// 1, 3 or 4.
  virtual void applyIconSize(std::int32_t size) = 0;
  /// One of TcUiViewStyle.
  virtual void setViewStyle(std::int32_t style) = 0;
  virtual void removeItem(OdTcCatalogItem* item) = 0;
  virtual void updateImage(OdTcCatalogItem* item) = 0;
  virtual void saveState(ITcUiStateSaver& store) const = 0;
  virtual void loadState(const ITcUiStateSaver& store) = 0;
  /// 0 by name, 1 by kind: 0. Any other mode: 40, with nothing changed.
  virtual int sort(std::int32_t mode) = 0;
  virtual void clear() = 0;

 protected:
  ~ITcUiListView() = default;
};

/// Shows the same rows in one of two ways: with wrapped icons, or as a table with descriptions.
class TcUiListView : public QWidget, public ITcUiListView {
 public:
  /// Finds its neighbours through the window.
  TcUiListView(ITcUiPaletteSet& window, TcUiItemPictures& pictures);

  void fill(OdTcCatalogItem* item) override;
  void addItem(OdTcCatalogItem* item) override { m_model.append(item); }
  void renameItem(OdTcCatalogItem* item) override { m_model.changed(*item); }
  void applyIconSize(std::int32_t size) override;
  void setViewStyle(std::int32_t style) override;
  void removeItem(OdTcCatalogItem* item) override { m_model.remove(item); }
  void updateImage(OdTcCatalogItem* item) override { m_model.changed(*item); }
  void saveState(ITcUiStateSaver& store) const override;
  void loadState(const ITcUiStateSaver& store) override;
  int sort(std::int32_t mode) override;
  void clear() override { m_model.clear(); }

  /// Whether Tab and clicks bring the keys here.
  void takeKeys(bool takes);
  TcUiItemListModel& rows() { return m_model; }
  std::int32_t viewStyle() const { return m_style; }
  /// The widget that shows the rows now.
  QAbstractItemView& shownView() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void setUp(QAbstractItemView& view);
  void setColumns();
  std::array<int, 2> columnWidths() const;
  void mousePressed(QAbstractItemView& view, const QModelIndex& index, Qt::MouseButton button);
  bool keyPressed(int key);
  /// Runs a tool in the active document; anything else is left alone.
  void runTool(const QModelIndex& index);
  /// Shows what is in a group or palette, here and in the tree; leaves tools alone.
  void open(const QModelIndex& index);

  ITcUiPaletteSet& m_window;
  TcUiItemListModel m_model;
  QStackedLayout* m_stack;
  QListView* m_icons;
  QTreeView* m_details;
  std::int32_t m_style = kIconStyle;
  std::array<int, 2> m_columns{}; ///< stored widths of name and description; 0 for none
};

} // namespace tc
