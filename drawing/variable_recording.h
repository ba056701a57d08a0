// Which changes of header variables can be undone.
#pragma once

class OdDbDatabase;

namespace oddb {

/// Says whether changes of a drawing's header variables become part of its undo steps; they do at
/// first. Gives the former answer. A program lends values to a run and puts them back after it:
/// that is no change of the drawing, and a cancel or an undo of the run must not bring them again.
bool recordVariables(OdDbDatabase& database, bool on);

/// The same for as long as it lives.
class VariableRecording {
 public:
  /// Nothing happens without a drawing.
  VariableRecording(OdDbDatabase* database, bool on)
    : m_database(database)
    , m_former(database && recordVariables(*database, on)) {}
  ~VariableRecording() {
    if (m_database) recordVariables(*m_database, m_former);
  }
  VariableRecording(const VariableRecording&) = delete;
  VariableRecording& operator=(const VariableRecording&) = delete;

 private:
  OdDbDatabase* m_database;
  bool m_former;
};

} // namespace oddb
