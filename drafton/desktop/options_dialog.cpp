#include "drafton/desktop/options_dialog.h"

#include "drafton/desktop/theme.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <QStyle>

namespace drafton {
namespace {

constexpr OptionRow kOptions[] = {
    {u"&Theme", "Theme", false, OptionKind::kChoice, 0, 0, 0, u"System|Light|Dark"},
    {u"&Language (at the next start)", "Language", false, OptionKind::kChoice, 0, 0, 0,
     u"System|English|Deutsch"},
    {u"Size of the &crosshair (percent)", "CURSORSIZE", true, OptionKind::kNumber, 1, 100, 5, u""},
    {u"&Pick box (pixels)", "PICKBOX", true, OptionKind::kNumber, 0, 50, 5, u""},
    {u"Reach of object &snaps (pixels)", "APERTURE", true, OptionKind::kNumber, 1, 50, 10, u""},
    {u"Step of polar &angles (degrees)", "POLARANG", true, OptionKind::kNumber, 1, 180, 45, u""},
    {u"&Keep the former file as .bak", "ISAVEBAK", true, OptionKind::kSwitch, 0, 1, 1, u""},
    {u"Copies for &recovery every (minutes, 0 for none)", "AutosaveMinutes", false,
     OptionKind::kNumber, 0, 120, 10, u""},
};

const OptionRow* rowOf(const char* name) {
  for (const OptionRow& row : kOptions)
    if (std::strcmp(row.name, name) == 0) return &row;
  return nullptr;
}

QStringList choicesOf(const OptionRow& row) { return OdString::fromUtf16(row.choices).split(u'|'); }

QPalette darkPalette() {
  QPalette palette(QColor(0x35, 0x3B, 0x45), QColor(0x2A, 0x2F, 0x37));
  palette.setColor(QPalette::Base, QColor(0x22, 0x27, 0x2E));
  palette.setColor(QPalette::AlternateBase, QColor(0x28, 0x2D, 0x35));
  palette.setColor(QPalette::Highlight, QColor(0x2F, 0x7F, 0xD6));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Link, QColor(0x58, 0xB4, 0xF6));
  palette.setColor(QPalette::ToolTipBase, QColor(0x38, 0x40, 0x4C));
  palette.setColor(QPalette::ToolTipText, QColor(0xE8, 0xEC, 0xF2));
  palette.setColor(QPalette::PlaceholderText, QColor(0x8A, 0x94, 0xA2));
  return palette;
}

} // namespace

std::span<const OptionRow> optionTable() { return kOptions; }

int numberOption(Desktop& desktop, const char* name) {
  const OptionRow& row = *rowOf(name);
  const OdVariant value = desktop.setting(name, row.preset);
  return std::clamp(value.toInt32(), row.low, row.high);
}

OdString choiceOption(Desktop& desktop, const char* name) {
  const QStringList choices = choicesOf(*rowOf(name));
  const OdString value = desktop.setting(name, choices.first()).toString();
  return choices.contains(value) ? value : choices.first();
}

OdVariant OptionsDialog::valueOf(const OptionRow& row) {
  return row.isVariable ? m_desktop.variable(row.name) : m_desktop.setting(row.name, row.preset);
}

OptionsDialog::OptionsDialog(Desktop& desktop, QWidget* parent)
  : QDialog(parent)
  , m_desktop(desktop) {
  setWindowTitle(translated(u"Options"));
  auto* const form = new QFormLayout(this);
  for (const OptionRow& row : kOptions) {
    QWidget* editor = nullptr;
    if (row.kind == OptionKind::kChoice) {
      auto* const list = new QComboBox(this);
      for (const OdString& choice : choicesOf(row)) list->addItem(translated(choice), choice);
      list->setCurrentIndex(list->findData(choiceOption(desktop, row.name)));
      editor = list;
    } else if (row.kind == OptionKind::kNumber) {
      auto* const box = new QSpinBox(this);
      box->setRange(row.low, row.high);
      box->setValue(valueOf(row).toInt32());
      editor = box;
    } else {
      auto* const tick = new QCheckBox(this);
      tick->setChecked(valueOf(row).toBool());
      editor = tick;
    }
    editor->setObjectName(OdString::fromLatin1(row.name));
    editor->setAccessibleName(translated(row.label).remove(u'&'));
    // A variable belongs to a drawing's window, so without one it cannot be set.
    editor->setEnabled(!row.isVariable || desktop.document());
    form->addRow(translated(row.label), editor);
    m_editors.push_back(editor);
  }
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, &OptionsDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &OptionsDialog::reject);
  form->addRow(buttons);
}

void OptionsDialog::accept() {
  for (std::size_t i = 0; i < m_editors.size(); ++i) {
    const OptionRow& row = kOptions[i];
    if (!m_editors[i]->isEnabled()) continue;
    OdVariant value;
    if (auto* const list = qobject_cast<QComboBox*>(m_editors[i]))
      value = list->currentData().toString();
    else if (auto* const box = qobject_cast<QSpinBox*>(m_editors[i]))
      value = box->value();
    else
      value = qobject_cast<QCheckBox*>(m_editors[i])->isChecked() ? 1 : 0;
    if (row.isVariable)
      m_desktop.setVariable(row.name, value);
    else
      m_desktop.setSetting(row.name, value);
  }
  applyTheme(choiceOption(m_desktop, "Theme"));
  QDialog::accept();
}

void applyTheme(const OdString& name) {
  // What was there first is the system's.
  static const OdString systemStyle = styleName();
  const bool isSystem = name == QLatin1String("System");
  const OdString style = isSystem ? systemStyle : QStringLiteral("Fusion");
  setStyle(style);
  if (isSystem)
    QApplication::setPalette(QPalette());
  else if (name == QLatin1String("Dark"))
    QApplication::setPalette(darkPalette());
  else
    QApplication::setPalette(QApplication::style()->standardPalette());
}

} // namespace drafton
