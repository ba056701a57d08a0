#include "drawing/undo.h"

#include "drawing/database_data.h"
#include "drawing/variable_recording.h"

void OdDbUndo::start(const OdString& name) {
  end();
  m_recording = true;
  m_nextName = name;
}

void OdDbUndo::end() {
  m_recording = false;
  m_open = false;
  ++m_record;
  m_nextName.clear();
}

void OdDbUndo::clear() {
  end();
  m_done.clear();
  m_undone.clear();
}

const OdString* OdDbUndo::undoName() const {
  return m_done.empty() ? nullptr : &m_done.back().name;
}
const OdString* OdDbUndo::redoName() const {
  return m_undone.empty() ? nullptr : &m_undone.back().name;
}
std::size_t OdDbUndo::depth() const { return m_done.size(); }

OdDbUndo::Step* OdDbUndo::step() {
  if (!m_recording) return nullptr;
  if (!m_open) {
    m_undone.clear();
    m_done.push_back({m_nextName, m_database.data().handseed, {}});
    nextStamp();
    m_open = true;
  }
  return &m_done.back();
}

void OdDbUndo::willModify(OdDbStub& stub) {
  Step* const current = step();
  if (!current || stub.object->m_undoStep == m_stamp) return;
  stub.object->m_undoStep = m_stamp;
  OdDbObjectPtr state = stub.object->newInstance();
  state->assignFrom(*stub.object);
  current->changes.push_back(Modified{&stub, state});
}

void OdDbUndo::willAppend() {
  // An object of no step may get a handle that an undone one would want back.
  if (!step()) m_undone.clear();
}

void OdDbUndo::appended(OdDbStub& stub) {
  Step* const current = step();
  if (!current) {
    m_unrecordedHandles = m_database.data().handseed;
    return;
  }
  // Its first state is the one that it has when the step ends.
  stub.object->m_undoStep = m_stamp;
  current->changes.push_back(Appended{&stub, nullptr});
}

void OdDbUndo::willErase(OdDbStub& stub) {
  if (Step* const current = step())
    current->changes.push_back(Erased{&stub, stub.object->isErased()});
}

void OdDbUndo::willSetVar(int index) {
  if (!m_recordsVariables) return;
  Step* const current = step();
  if (!current) return;
  const OdDbDatabaseData& data = m_database.data();
  const auto i = static_cast<std::size_t>(index);
  current->changes.push_back(VarSet{index, data.vars[i], data.varPresent[i] != 0});
}

void OdDbUndo::nextStamp() const { m_stamp = (m_stamp + 1) & kLastStamp; }

bool OdDbUndo::undo() {
  m_open = false;
  ++m_record;
  if (m_done.empty()) return false;
  Step taken = std::move(m_done.back());
  m_done.pop_back();
  play(taken, true);
  m_undone.push_back(std::move(taken));
  return true;
}

bool OdDbUndo::redo() {
  m_open = false;
  ++m_record;
  if (m_undone.empty()) return false;
  Step taken = std::move(m_undone.back());
  m_undone.pop_back();
  play(taken, false);
  m_done.push_back(std::move(taken));
  return true;
}

void OdDbUndo::abandon() {
  if (m_open) {
    play(m_done.back(), true);
    m_done.pop_back();
  }
  end();
}

OdDbUndoMark OdDbUndo::mark() const {
  if (!m_recording) return {};
  // What an object is now has to be kept, though the step may know what it was before.
  nextStamp();
  return {m_record, m_open ? m_done.back().changes.size() : 0, m_database.data().handseed};
}

bool OdDbUndo::rollBack(const OdDbUndoMark& mark) {
  if (!m_recording || mark.record != m_record) return false;
  if (!m_open) return true;
  Step& step = m_done.back();
  // An earlier roll back went behind the mark.
  if (mark.changes > step.changes.size()) return false;
  if (mark.changes < step.changes.size()) {
    playBack(step, mark.changes);
    std::uint64_t handseed = mark.handseed;
    exchangeHandseed(handseed);
  }
  nextStamp();
  if (step.changes.empty()) {
    m_done.pop_back();
    m_open = false;
  }
  return true;
}

void OdDbUndo::play(Step& step, bool backwards) {
  exchangeHandseed(step.handseed);
  m_database.data().modified = true;
  if (backwards)
    std::for_each(step.changes.rbegin(), step.changes.rend(),
                  [&](Change& change) { play(change, true); });
  else
    std::for_each(step.changes.begin(), step.changes.end(),
                  [&](Change& change) { play(change, false); });
}

void OdDbUndo::playBack(Step& step, std::size_t kept) {
  while (step.changes.size() > kept) {
    play(step.changes.back(), true);
    step.changes.pop_back();
  }
}

void OdDbUndo::play(Change& change, bool backwards) {
  std::visit([&](auto& c) { play(c, backwards); }, change);
}

void OdDbUndo::exchangeHandseed(std::uint64_t& other) {
  std::uint64_t& seed = m_database.data().handseed;
  std::swap(other, seed);
  seed = std::max(seed, m_unrecordedHandles);
}

void OdDbUndo::play(Modified& change, bool) {
  const OdDbObjectPtr live = change.stub->object;
  const OdDbObjectPtr other = live->newInstance();
  other->assignFrom(*live);
  live->assignFrom(*change.state);
  change.state = other;
  if (const auto table = odrxCast<OdDbSymbolTable>(live->ownerId().openObject().get()))
    table->renamed();
  m_database.data().noteChange(*change.stub);
}

void OdDbUndo::play(Appended& change, bool backwards) {
  OdDbDatabaseData& data = m_database.data();
  OdDbStub& stub = *change.stub;
  const OdDbObjectId id(&stub);
  const OdDbObjectPtr object = backwards ? stub.object : change.detached;
  const OdDbObjectPtr owner = object->ownerId().openObject(OdDb::kForRead, true);
  auto* const block = odrxCast<OdDbBlockTableRecord>(owner.get());
  auto* const table = odrxCast<OdDbSymbolTable>(owner.get());
  if (backwards) {
    // Changes are taken back in the reverse order, so the object is the last one of its container
    // but for what came to it outside of every step.
    std::vector<OdDbObjectId>* const list =
        block ? &block->m_entities : (table ? &table->m_records : nullptr);
    change.listed = false;
    if (list) {
      const auto at = std::find(list->rbegin(), list->rend(), id);
      change.listed = at != list->rend();
      if (change.listed) list->erase(std::next(at).base());
    }
    change.number = data.byHandle.find(stub.handle);
    data.byHandle.remove(stub.handle);
    object->m_changePending = false;
    stub.object = nullptr;
    // Whoever still holds the object may keep it longer than the drawing lives.
    object->m_stub = nullptr;
    change.detached = object;
  } else {
    if (change.listed) (block ? block->m_entities : table->m_records).push_back(id);
    data.byHandle.insert(stub.handle, change.number);
    stub.object = object;
    object->m_stub = &stub;
    change.detached = nullptr;
  }
  if (table) table->renamed();
  data.tell([&](OdDbDatabaseReactor& r) {
    if (backwards)
      r.objectUnAppended(m_database, id);
    else
      r.objectAppended(m_database, id);
  });
}

void OdDbUndo::play(Erased& change, bool) {
  OdDbStub& stub = *change.stub;
  const bool erased = std::exchange(change.erased, stub.object->isErased());
  stub.object->m_erased = erased ? 1 : 0;
  if (const auto table = odrxCast<OdDbSymbolTable>(stub.object->ownerId().openObject().get()))
    table->renamed();
  m_database.data().tell(
      [&](OdDbDatabaseReactor& r) { r.objectErased(m_database, OdDbObjectId(&stub), erased); });
}

void OdDbUndo::play(VarSet& change, bool) {
  OdDbDatabaseData& data = m_database.data();
  const auto i = static_cast<std::size_t>(change.index);
  std::swap(change.value, data.vars[i]);
  const bool present = data.varPresent[i] != 0;
  data.varPresent[i] = change.present;
  change.present = present;
  data.tell([&](OdDbDatabaseReactor& r) {
    r.headerSysVarChanged(m_database, QLatin1String(oddbHeaderVars()[i].name));
  });
}

bool oddb::recordVariables(OdDbDatabase& database, bool on) {
  return database.data().undo.recordVariables(on);
}
