// Choosing a colour as drawings know them.
#pragma once

#include "drawing/color.h"
#include "drawing/database.h"

#include <QDialog>

#include <span>
#include <vector>

class QColorDialog;
class QLabel;
class QLineEdit;
class QTableWidget;
class QTabWidget;
class QTreeWidget;

namespace drafton {

/// The entries of colour books that layers and entities of a drawing have, sorted by book and name,
/// each once.
std::vector<OdCmColor> bookColorsOf(const OdDbDatabase& database);

/// An index of the palette, a true colour, or an entry of a colour book; recent colours stand
/// below.
class ColorDialog : public QDialog {
  Q_OBJECT

 public:
  /// `takesBy` offers by layer and by block. `books` are entries that can be chosen again; others
  /// are made by naming a true colour.
  ColorDialog(const OdCmColor& now, bool takesBy, std::span<const OdCmColor> recent,
              std::vector<OdCmColor> books, QWidget* parent = nullptr);

  const OdCmColor& color() const { return m_color; }

 private:
  void makePalette();
  QWidget* indexPage(bool takesBy);
  QWidget* truePage();
  QWidget* bookPage();
  QWidget* recentRow(std::span<const OdCmColor> recent);
  void takeIndex(int row, int column);
  void takeNames();
  void choose(const OdCmColor& color);
  /// Brings the pages to the colour, and opens the one that it stands on.
  void showPageOf(const OdCmColor& color);

  OdCmColor m_color;
  std::vector<OdCmColor> m_books;
  QTabWidget* m_pages = nullptr;
  QTableWidget* m_palette = nullptr;
  QColorDialog* m_true = nullptr;
  QTreeWidget* m_entries = nullptr;
  QLineEdit *m_book = nullptr, *m_name = nullptr;
  QLabel *m_swatch = nullptr, *m_text = nullptr;
};

} // namespace drafton
