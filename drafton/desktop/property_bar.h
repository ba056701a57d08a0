// The layer, colour, line type and line weight of what is chosen, or of what is drawn next.
#pragma once

#include "drafton/desktop/desktop.h"

#include <QToolBar>

class QComboBox;

namespace drafton {

/// The line weights that lists offer.
std::vector<OdDb::LineWeight> offeredLineWeights();

/// Four lists. While entities are chosen they show and change theirs, empty where these differ;
/// else the drawing's current values.
class PropertyBar : public QToolBar {
  Q_OBJECT

 public:
  explicit PropertyBar(Desktop& desktop, QWidget* parent = nullptr);

  QComboBox& layers() { return *m_layers; }
  QComboBox& colors() { return *m_colors; }
  QComboBox& linetypes() { return *m_linetypes; }
  QComboBox& lineWeights() { return *m_weights; }

  /// Asks for a colour in a dialog and sets it, as a choice in the list does.
  void otherColor();
  /// Brings the lists to what is true now.
  void follow();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QComboBox* addList(const char16_t* name, int letters);
  void fill(OdDbDatabase& database);
  void apply(const OdString& step, const std::function<void(OdDbEntity&)>& entity,
             const std::function<void(OdDbDatabase&)>& current);
  void chooseLayer(int index);
  void chooseColor(int index);
  void applyColor(const OdCmColor& color);
  void chooseLinetype(int index);
  void chooseWeight(int index);

  Desktop& m_desktop;
  QComboBox *m_layers, *m_colors, *m_linetypes, *m_weights;
};

} // namespace drafton
