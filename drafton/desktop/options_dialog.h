// How Drafton looks and works.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QDialog>

namespace drafton {

enum class OptionKind { kNumber, kSwitch, kChoice };

/// One row of the dialog: a variable, or a setting of the desktop.
struct OptionRow {
  const char16_t* label;
  const char* name;
  bool isVariable;
  OptionKind kind;
  int low, high, preset;   ///< of numbers
  const char16_t* choices; ///< of choices, separated by "|"
};
std::span<const OptionRow> optionTable();

/// The settings of the desktop that the table names, with their presets.
int numberOption(Desktop& desktop, const char* name);
OdString choiceOption(Desktop& desktop, const char* name);

class OptionsDialog : public QDialog {
  Q_OBJECT

 public:
  OptionsDialog(Desktop& desktop, QWidget* parent);

  /// Keeps what the rows show.
  void accept() override;

 private:
  OdVariant valueOf(const OptionRow& row);

  Desktop& m_desktop;
  std::vector<QWidget*> m_editors; ///< in the order of the table
};

/// Puts the chosen theme in force at once: that of the system, or one of Drafton's own. To be
/// called first before anything else has changed the style.
void applyTheme(const OdString& name);

} // namespace drafton
