#include "drawing/undo.h"

#include "drawing/database_data.h"

void OdDbUndo::start(const OdString& name) {
  m_enabled = true;
  m_open = false;
  m_nextName = name;
}

void OdDbUndo::end() {
  m_open = false;
  m_nextName.clear();
}

void OdDbUndo::clear() {
  end();
  m_done.clear();
  m_undone.clear();
  m_enabled = false;
}

const OdString* OdDbUndo::undoName() const {
  return m_done.empty() ? nullptr : &m_done.back().name;
}
const OdString* OdDbUndo::redoName() const {
  return m_undone.empty() ? nullptr : &m_undone.back().name;
}
std::size_t OdDbUndo::depth() const { return m_done.size(); }

OdDbUndo::Step* OdDbUndo::step() {
  if (!m_enabled) return nullptr;
  if (!m_open) {
    m_undone.clear();
    m_done.push_back({m_nextName, m_database.data().handseed, {}});
    ++m_stamp;
    m_open = true;
  }
  return &m_done.back();
}

void OdDbUndo::willModify(OdDbStub& stub) {
  Step* const current = step();
  if (!current || stub.undoStep == m_stamp) return;
  stub.undoStep = m_stamp;
  OdDbObjectPtr state = stub.object->newInstance();
  state->assignFrom(*stub.object);
  current->changes.push_back(Modified{&stub, state});
}

void OdDbUndo::willAppend() { step(); }

void OdDbUndo::appended(OdDbStub& stub) {
  Step* const current = step();
  if (!current) return;
  // Its first state is the one that it has when the step ends.
  stub.undoStep = m_stamp;
  current->changes.push_back(Appended{&stub, nullptr});
}

void OdDbUndo::willErase(OdDbStub& stub) {
  if (Step* const current = step()) current->changes.push_back(Erased{&stub});
}

void OdDbUndo::willSetVar(int index) {
  Step* const current = step();
  if (!current) return;
  const OdDbDatabaseData& data = m_database.data();
  const auto i = static_cast<std::size_t>(index);
  current->changes.push_back(VarSet{index, data.vars[i], data.varPresent[i] != 0});
}

bool OdDbUndo::undo() {
  end();
  if (m_done.empty()) return false;
  Step taken = std::move(m_done.back());
  m_done.pop_back();
  play(taken, true);
  m_undone.push_back(std::move(taken));
  return true;
}

bool OdDbUndo::redo() {
  end();
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

void OdDbUndo::play(Step& step, bool backwards) {
  std::swap(step.handseed, m_database.data().handseed);
  m_database.data().modified = true;
  const auto one = [&](Change& change) {
    std::visit([&](auto& c) { play(c, backwards); }, change);
  };
  if (backwards)
    std::for_each(step.changes.rbegin(), step.changes.rend(), one);
  else
    std::for_each(step.changes.begin(), step.changes.end(), one);
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
    // Changes are taken back in the reverse order, so the object is the last one of its container.
    std::vector<OdDbObjectId>* const list =
        block ? &block->m_entities : (table ? &table->m_records : nullptr);
    change.listed = list && !list->empty() && list->back() == id;
    if (change.listed) list->pop_back();
    data.byHandle.remove(stub.handle);
    stub.object = nullptr;
    // Whoever still holds the object may keep it longer than the drawing lives.
    object->m_stub = nullptr;
    change.detached = object;
  } else {
    if (change.listed) (block ? block->m_entities : table->m_records).push_back(id);
    data.byHandle.insert(stub.handle, &stub);
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
  stub.erased = !stub.erased;
  if (const auto table = odrxCast<OdDbSymbolTable>(stub.object->ownerId().openObject().get()))
    table->renamed();
  m_database.data().tell([&](OdDbDatabaseReactor& r) {
    r.objectErased(m_database, OdDbObjectId(&stub), stub.erased);
  });
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
