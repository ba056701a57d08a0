// Opening, saving and closing drawings.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drafton/desktop/user_dialogs.h"

namespace drafton {

/// Paths are the platform's. What cannot be done is told in a dialog; nothing is lost.
class FileActions : public QObject {
  Q_OBJECT

 public:
  FileActions(Desktop& desktop, UserDialogs& dialogs, QObject* parent);

  /// Ends the commands that wait and then does something, at once or when those that are on the
  /// stack have unwound.
  void whenSettled(std::function<void()> action);

  void newDrawing();
  void open();
  /// False, and a message, if the drawing cannot be opened.
  bool openFile(const OdString& path);
  bool save(Document& document);
  bool saveAs(Document& document);
  /// Asks about changes first; false if the document stays open.
  bool close(Document& document);
  bool closeAll();

  /// The latest first.
  QStringList recentFiles();

 private:
  bool saveTo(Document& document, const OdString& path);
  void remember(const OdString& path);
  OdString folder();

  Desktop& m_desktop;
  UserDialogs& m_dialogs;
};

} // namespace drafton
