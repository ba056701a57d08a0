#include "drawing/dxf/entities_out.h"

#include <algorithm>

namespace {

// Enough that handing them over costs little beside writing them.
constexpr std::size_t kRun = 256;
// Entities may be of any size: what a run has written when it is that long is enough.
constexpr std::size_t kLongRun = 4 * 1024 * 1024;

/// Writes one entity, or leaves it out.
void writeOne(OdDbObjectId id, OdDbDxfOut& out) {
  const auto& transient = out.database().data().transient;
  if (!id.isValid() || (!transient.empty() && transient.contains(id))) return;
  const OdDbObject& entity = *id.stub()->object;
  out.object(entity);
  static_cast<const OdDbEntity&>(entity).dxfOutFollowers(out);
}

} // namespace

class OdDbDxfEntitiesOut::Run final : public OdDbDxfJob {
 public:
  explicit Run(const OdDbDxfOut& other)
    : out(other.database(), other.version()) {}

  void work(std::size_t) override {
    while (!ids.empty() && out.collected().size() < kLongRun) {
      writeOne(ids.front(), out);
      ids = ids.subspan(1);
    }
  }

  OdDbDxfOut out;
  std::span<const OdDbObjectId> ids; ///< those that are left
};

OdDbDxfEntitiesOut::OdDbDxfEntitiesOut(OdDbDxfOut& out, std::size_t threads)
  : m_out(out)
  , m_crew(threads) {}

OdDbDxfEntitiesOut::~OdDbDxfEntitiesOut() = default;

void OdDbDxfEntitiesOut::write(std::span<const OdDbObjectId> ids) {
  if (m_crew.threads() == 1 || ids.size() <= kRun) {
    for (const OdDbObjectId id : ids) writeOne(id, m_out);
    return;
  }
  while (!ids.empty()) {
    if (m_crew.isFull()) writeOldest();
    std::unique_ptr<Run> run;
    if (m_free.empty()) {
      run = std::make_unique<Run>(m_out);
    } else {
      run = std::move(m_free.back());
      m_free.pop_back();
    }
    run->out.setPaperSpace(m_out.isPaperSpace());
    run->ids = ids.first(std::min(kRun, ids.size()));
    ids = ids.subspan(run->ids.size());
    m_crew.give(std::move(run));
  }
  while (!m_crew.isEmpty()) writeOldest();
}

void OdDbDxfEntitiesOut::writeOldest() {
  std::unique_ptr<Run> run(static_cast<Run*>(m_crew.take().release()));
  m_out.addCollected(run->out);
  run->out.clearCollected();
  for (const OdDbObjectId id : run->ids) writeOne(id, m_out);
  m_free.push_back(std::move(run));
}
