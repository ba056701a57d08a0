#include "drafton/desktop/color_dialog.h"

#include "drafton/engine/commands/shown_values.h"
#include "drafton/engine/translator.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <algorithm>
#include <set>
#include <tuple>

namespace drafton {
namespace {

constexpr int kCell = 20, kSwatch = 48;
/// The palette on the table: the first entries and the greys, then the hues, whose shades differ by
/// one from row to row.
constexpr int kColumns = 24, kFirstHue = 10, kLastHue = 249, kShades = 10;
constexpr int kNamedColors = 9;
constexpr int kPlaceRole = Qt::UserRole;

int indexAt(int row, int column) {
  if (row > 0) return kFirstHue + column * kShades + row - 1;
  if (column < kNamedColors) return column + 1;
  const int gray = kLastHue + 1 + column - kNamedColors - 1;
  return column > kNamedColors && gray <= 255 ? gray : 0;
}

QColor shown(const OdCmColor& color) { return QColor::fromRgb(color.rgb() | 0xFF000000u); }

OdCmColor trueColor(const QColor& color) {
  OdCmColor chosen;
  chosen.setColor((std::uint32_t{OdCmColor::kByColor} << 24) | (color.rgb() & 0xFFFFFFu));
  return chosen;
}

QIcon swatch(const OdCmColor& color) {
  QPixmap pixmap(kCell, kCell);
  pixmap.fill(shown(color));
  return pixmap;
}

std::tuple<OdString, OdString> namesOf(const OdCmColor& color) {
  return {color.bookName(), color.colorName()};
}

} // namespace

std::vector<OdCmColor> bookColorsOf(const OdDbDatabase& database) {
  std::vector<OdCmColor> colors;
  std::set<std::tuple<OdString, OdString>> known;
  const auto add = [&](const OdCmColor& color) {
    if (color.hasNames() && known.insert(namesOf(color)).second) colors.push_back(color);
  };
  add(database.currentColor());
  const auto layers = database.getLayerTableId().openAs<OdDbLayerTable>();
  for (auto at = layers->newIterator(); !at->done(); at->step())
    add(odrxCast<OdDbLayerTableRecord>(at->getRecord().get())->color());
  const auto blocks = database.getBlockTableId().openAs<OdDbBlockTable>();
  for (auto block = blocks->newIterator(); !block->done(); block->step()) {
    const auto record = odrxCast<OdDbBlockTableRecord>(block->getRecord().get());
    for (auto at = record->newIterator(); !at->done(); at->step())
      if (const OdDbEntityPtr entity = at->entity()) add(entity->color());
  }
  std::ranges::sort(colors, {}, namesOf);
  return colors;
}

ColorDialog::ColorDialog(const OdCmColor& now, bool takesBy, std::span<const OdCmColor> recent,
                         std::vector<OdCmColor> books, QWidget* parent)
  : QDialog(parent)
  , m_books(std::move(books))
  , m_pages(new QTabWidget(this)) {
  setWindowTitle(translated(u"Choose a Color"));
  m_pages->addTab(indexPage(takesBy), translated(u"&Index"));
  m_pages->addTab(truePage(), translated(u"&True Color"));
  m_pages->addTab(bookPage(), translated(u"Color &Books"));
  m_swatch = new QLabel(this);
  m_swatch->setFixedSize(kSwatch, kSwatch / 2);
  m_swatch->setAutoFillBackground(true);
  m_text = new QLabel(this);
  auto* const bottom = new QHBoxLayout;
  bottom->addWidget(m_swatch);
  bottom->addWidget(m_text, 1);
  bottom->addWidget(recentRow(recent));
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &ColorDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &ColorDialog::reject);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(m_pages);
  column->addLayout(bottom);
  column->addWidget(buttons);
  showPageOf(now);
}

void ColorDialog::makePalette() {
  m_palette = new QTableWidget(kShades + 1, kColumns, this);
  m_palette->setObjectName(QStringLiteral("palette"));
  m_palette->setAccessibleName(translated(u"Palette"));
  m_palette->setSelectionMode(QAbstractItemView::SingleSelection);
  m_palette->setEditTriggers(QAbstractItemView::NoEditTriggers);
  m_palette->setTabKeyNavigation(false);
  for (QHeaderView* const header : {m_palette->horizontalHeader(), m_palette->verticalHeader()}) {
    header->hide();
    header->setMinimumSectionSize(kCell);
    header->setDefaultSectionSize(kCell);
  }
  for (int row = 0; row <= kShades; ++row)
    for (int column = 0; column < kColumns; ++column) {
      auto* const item = new QTableWidgetItem;
      if (const int index = indexAt(row, column)) {
        const OdCmColor color = OdCmColor::fromColorIndex(index);
        item->setBackground(shown(color));
        item->setToolTip(shownColor(color));
        item->setData(Qt::AccessibleTextRole, shownColor(color));
      } else {
        item->setFlags(Qt::NoItemFlags);
      }
      m_palette->setItem(row, column, item);
    }
  const int frame = 2 * m_palette->frameWidth();
  m_palette->setFixedSize(kColumns * kCell + frame, (kShades + 1) * kCell + frame);
  connect(m_palette, &QTableWidget::currentCellChanged, this, &ColorDialog::takeIndex);
  connect(m_palette, &QTableWidget::cellClicked, this, &ColorDialog::takeIndex);
  connect(m_palette, &QTableWidget::cellDoubleClicked, this, &ColorDialog::accept);
}

QWidget* ColorDialog::indexPage(bool takesBy) {
  makePalette();
  auto* const page = new QWidget(this);
  auto* const column = new QVBoxLayout(page);
  column->addWidget(m_palette);
  auto* const row = new QHBoxLayout;
  column->addLayout(row);
  const auto add = [&](const char16_t* text, OdCmColor::Method method) {
    auto* const button = new QPushButton(translated(text), page);
    button->setAutoDefault(false);
    button->setEnabled(takesBy);
    connect(button, &QPushButton::clicked, this, [this, method] { choose(OdCmColor(method)); });
    row->addWidget(button);
  };
  add(u"By &Layer", OdCmColor::kByLayer);
  add(u"By Bloc&k", OdCmColor::kByBlock);
  row->addStretch();
  return page;
}

QWidget* ColorDialog::truePage() {
  m_true = new QColorDialog(this);
  m_true->setWindowFlags(Qt::Widget);
  m_true->setOptions(QColorDialog::DontUseNativeDialog | QColorDialog::NoButtons);
  connect(m_true, &QColorDialog::currentColorChanged, this,
          [this](const QColor& color) { choose(trueColor(color)); });
  return m_true;
}

QWidget* ColorDialog::bookPage() {
  auto* const page = new QWidget(this);
  m_entries = new QTreeWidget(page);
  m_entries->setObjectName(QStringLiteral("books"));
  m_entries->setHeaderHidden(true);
  m_entries->setAccessibleName(translated(u"Entries of color books in this drawing"));
  QTreeWidgetItem* book = nullptr;
  for (std::size_t i = 0; i < m_books.size(); ++i) {
    const OdCmColor& color = m_books[i];
    if (!book || book->text(0) != color.bookName())
      book = new QTreeWidgetItem(m_entries, {color.bookName()});
    auto* const entry = new QTreeWidgetItem(book, {color.colorName()});
    entry->setIcon(0, swatch(color));
    entry->setData(0, kPlaceRole, static_cast<int>(i));
  }
  m_entries->expandAll();
  connect(m_entries, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* entry) {
    const QVariant place = entry ? entry->data(0, kPlaceRole) : QVariant();
    if (place.isValid()) choose(m_books[static_cast<std::size_t>(place.toInt())]);
  });
  connect(m_entries, &QTreeWidget::itemActivated, this, &ColorDialog::accept);
  m_book = new QLineEdit(page);
  m_name = new QLineEdit(page);
  connect(m_book, &QLineEdit::textEdited, this, &ColorDialog::takeNames);
  connect(m_name, &QLineEdit::textEdited, this, &ColorDialog::takeNames);
  auto* const form = new QFormLayout;
  form->addRow(translated(u"Boo&k"), m_book);
  form->addRow(translated(u"&Name in the book"), m_name);
  auto* const column = new QVBoxLayout(page);
  column->addWidget(new QLabel(translated(u"Entries of color books in this drawing"), page));
  column->addWidget(m_entries);
  column->addWidget(new QLabel(translated(u"Or name the color that is chosen now:"), page));
  column->addLayout(form);
  return page;
}

QWidget* ColorDialog::recentRow(std::span<const OdCmColor> recent) {
  auto* const row = new QWidget(this);
  auto* const line = new QHBoxLayout(row);
  line->setContentsMargins(0, 0, 0, 0);
  for (const OdCmColor& color : recent) {
    auto* const button = new QToolButton(row);
    button->setIcon(swatch(color));
    button->setToolTip(shownColor(color));
    button->setAccessibleName(translated(u"Recent color %1").arg(shownColor(color)));
    button->setFocusPolicy(Qt::StrongFocus);
    connect(button, &QToolButton::clicked, this, [this, color] { showPageOf(color); });
    line->addWidget(button);
  }
  return row;
}

void ColorDialog::takeIndex(int row, int column) {
  if (row < 0 || column < 0) return;
  if (const int index = indexAt(row, column)) choose(OdCmColor::fromColorIndex(index));
}

/// Names go with the parts of a colour; without them it is a plain one again.
void ColorDialog::takeNames() {
  OdCmColor named = trueColor(shown(m_color));
  named.setNames(m_name->text().trimmed(), m_book->text().trimmed());
  choose(named);
}

void ColorDialog::choose(const OdCmColor& color) {
  m_color = color;
  const bool isPlain = !color.isByLayer() && !color.isByBlock();
  QPalette palette = m_swatch->palette();
  palette.setColor(QPalette::Window, isPlain ? shown(color) : QColor(Qt::transparent));
  m_swatch->setPalette(palette);
  m_text->setText(shownColor(color));
  if (!m_book->hasFocus()) m_book->setText(color.bookName());
  if (!m_name->hasFocus()) m_name->setText(color.colorName());
  if (!isPlain) return;
  const QSignalBlocker quiet(m_true);
  m_true->setCurrentColor(shown(color));
}

void ColorDialog::showPageOf(const OdCmColor& color) {
  choose(color);
  m_pages->setCurrentIndex(color.hasNames() ? 2 : color.isByColor() ? 1 : 0);
  if (!color.isByACI()) return;
  const QSignalBlocker quiet(m_palette);
  for (int row = 0; row <= kShades; ++row)
    for (int column = 0; column < kColumns; ++column)
      if (indexAt(row, column) == color.colorIndex()) m_palette->setCurrentCell(row, column);
}

} // namespace drafton
