// Copies of changed drawings for the case that the program crashes.
#pragma once

#include "drafton/desktop/desktop.h"
#include "drafton/desktop/user_dialogs.h"

#include <QLockFile>
#include <QTimer>

namespace drafton {

/// A drawing that a crashed run has left behind. Paths are the platform's.
struct LostDrawing {
  OdString copy;
  OdString name;
  OdString file; ///< where it came from; empty if it had no file
};

/// Writes a copy of every changed drawing into a folder of this run, from time to time and between
/// commands. The folder goes when the program ends as it should.
class Autosave : public QObject {
  Q_OBJECT

 public:
  /// `folder` is the platform's path of a folder for all runs.
  Autosave(Desktop& desktop, OdString folder, QObject* parent);
  ~Autosave() override;

  /// 0 writes no copies.
  void setInterval(int minutes);
  void saveNow();

  /// What runs that have crashed left behind. The result stays until forget().
  std::vector<LostDrawing> findLost();
  /// Opens a copy as a changed drawing of its own file, or of a new one in the user's folder.
  /// False, and a message, if it cannot be read.
  bool open(const LostDrawing& lost);
  /// Removes what findLost() gave.
  void forget();

 private:
  OdString own() const;

  Desktop& m_desktop;
  OdString m_folder;
  std::unique_ptr<QLockFile> m_lock;
  QTimer m_timer;
  QStringList m_lostFolders;
};

/// Offers what a crashed run has left behind: to open it, to delete it, or to ask again at the next
/// start.
void recover(Autosave& autosave, UserDialogs& dialogs);

} // namespace drafton
