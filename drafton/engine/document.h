// One open drawing.
#pragma once

#include "drafton/engine/command_processor.h"
#include "drafton/engine/hatch_keeper.h"
#include "drafton/engine/host_variables.h"
#include "drawing/database.h"
#include "frame/time_stamp.h"
#include "host/document.h"

#include <map>

namespace drafton {

/// A drawing with its command line, its variables and its file.
class Document : public IHostDocument, private OdDbDatabaseReactor {
 public:
  /// `name` stands for the document until it has a file.
  Document(Engine& engine, OdDbDatabasePtr database, OdString name);
  ~Document();

  OdDbDatabase* database() override { return m_isClosing ? nullptr : m_database.get(); }
  IHostCommandInput* commandInput() override { return &m_processor; }
  IHostUserInput* userInput() override { return &m_processor; }
  IHostVariables* variables() override { return &m_variables; }
  OdString name() const override;
  OdString path() const override { return m_database->fileName(); }

  CommandProcessor& processor() { return m_processor; }
  bool isModified() const { return m_database->isModified(); }

  /// Writes the drawing to `path` and makes that its file. Raises OdFileError, and CommandFailure
  /// if the drawing's own file holds what would be lost. With the variable ISAVEBAK the former file
  /// stays as .bak.
  void save(const OdString& path);
  /// What of the drawing's file a saved file would lack; empty if nothing.
  QStringList lostBySaving() const;
  /// What was mended when the file was read.
  QStringList notes() const { return m_database->readNotes(); }

  /// Opens an undo step of that name unless a command runs, whose step takes the changes.
  bool lock(const OdString& name);
  void unlock();

  /// Goes on with the step of the lock behind a command that had its own.
  void resumeLockStep();

  /// The z of points that are given without one.
  double elevation() const;
  OdGePoint3d lastPoint() const { return m_lastPoint; }
  void setLastPoint(const OdGePoint3d& point) { m_lastPoint = point; }
  /// The side of a pixel in drawing units where a window shows the drawing; 0 without one.
  double pixelSize() const { return m_pixelSize; }
  void setPixelSize(double units) { m_pixelSize = units; }
  /// The values of variables that belong to the document and not to its drawing.
  std::map<OdString, OdVariant>& values() { return m_values; }
  /// Entities that "Previous" chooses.
  std::vector<OdDbObjectId>& previousSelection() { return m_previousSelection; }
  /// Entities that were chosen while no command ran; the next command that asks for entities takes
  /// them.
  std::vector<OdDbObjectId>& preselection() { return m_preselection; }
  /// What the running commands have chosen, for a window to show; empty again when they end.
  std::vector<OdDbObjectId>& chosen() { return m_chosen; }

  /// Lets associative hatches follow what the command changed whose step is about to end.
  void updateHatches();
  /// Passes over changes that bring former states back.
  void forgetHatchChanges() { m_hatchKeeper.forget(); }

  /// From now on there is no drawing for anybody who asks.
  void beginClosing();

 private:
  void headerSysVarChanged(const OdDbDatabase& database, const OdString& name) override;
  void keepBackup(const OdString& path);

  Engine& m_engine;
  OdDbDatabasePtr m_database;
  OdString m_name;
  HostVariables m_variables;
  HatchKeeper m_hatchKeeper;
  OdTimeStamp m_since; ///< when it was opened, made, or last saved
  std::map<OdString, OdVariant> m_values;
  std::vector<OdDbObjectId> m_previousSelection, m_preselection, m_chosen;
  OdGePoint3d m_lastPoint;
  double m_pixelSize = 0;
  int m_locks = 0;
  std::optional<OdString> m_lockStep; ///< the name of the step that the lock opened
  bool m_isClosing = false;
  // Its commands use all of the above.
  CommandProcessor m_processor;
};

} // namespace drafton
