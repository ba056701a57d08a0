// The steps that can be taken back. Not for use outside of the library.
#pragma once

#include "drawing/header_vars.h"
#include "drawing/stub.h"
#include "drawing/undo_mark.h"

#include <vector>

/// Keeps what changes were made in each step, and plays them backwards and forwards.
///
/// A change holds the state on the other side of itself: playing it exchanges that state with the
/// drawing's, so that the same change serves undo and redo.
class OdDbUndo {
 public:
  explicit OdDbUndo(OdDbDatabase& database)
    : m_database(database) {}

  void start(const OdString& name);
  void end();
  bool undo();
  bool redo();
  void abandon();
  OdDbUndoMark mark() const;
  bool rollBack(const OdDbUndoMark& mark);
  void clear();
  const OdString* undoName() const;
  const OdString* redoName() const;
  std::size_t depth() const;

  /// Called before an object's data change.
  void willModify(OdDbStub& stub);
  /// Called before a new object gets its handle.
  void willAppend();
  /// Called when a new object is in the drawing and in its container.
  void appended(OdDbStub& stub);
  void willErase(OdDbStub& stub);
  void willSetVar(int index);
  bool recordVariables(bool on) { return std::exchange(m_recordsVariables, on); }
  bool recordsVariables() const { return m_recordsVariables; }
  /// Leaves out all changes until it is called with the former answer, which it gives.
  bool record(bool on) { return std::exchange(m_recording, on); }

 private:
  struct Modified {
    OdDbStub* stub;
    OdDbObjectPtr state;
  };
  struct Appended {
    OdDbStub* stub;
    OdDbObjectPtr detached; ///< the object while the step is undone
    bool listed = false;    ///< it stood in the list of its container
    std::uint32_t number = 0;
  };
  struct Erased {
    OdDbStub* stub;
    bool erased; ///< what the object is on the other side
  };
  struct VarSet {
    int index;
    OdDbVarValue value;
    bool present;
  };
  using Change = std::variant<Modified, Appended, Erased, VarSet>;
  struct Step {
    OdString name;
    std::uint64_t handseed;
    std::vector<Change> changes;
  };

  Step* step();
  void nextStamp() const;
  void play(Step& step, bool backwards);
  void playBack(Step& step, std::size_t kept);
  void play(Change& change, bool backwards);
  void exchangeHandseed(std::uint64_t& other);
  void play(Modified& change, bool backwards);
  void play(Appended& change, bool backwards);
  void play(Erased& change, bool backwards);
  void play(VarSet& change, bool backwards);

  OdDbDatabase& m_database;
  std::vector<Step> m_done, m_undone;
  OdString m_nextName;
  // Numbers of pieces between steps and marks are never used twice, so that an object's stamp
  // cannot be mistaken.
  static constexpr std::uint32_t kLastStamp = (1u << 29) - 1;
  mutable std::uint32_t m_stamp : 29 = 0;
  std::uint64_t m_record = 0;            ///< changes when marks lose their meaning
  std::uint64_t m_unrecordedHandles = 0; ///< handles below may belong to objects of no step
  bool m_recording = false;
  bool m_recordsVariables = true;
  bool m_open = false; ///< the last step done is the one under way
};
