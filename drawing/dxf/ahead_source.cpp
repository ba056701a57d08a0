#include "drawing/dxf/ahead_source.h"

#include "drawing/dxf/makers.h"
#include "drawing/dxf/piece_source.h"

#include <algorithm>

class OdDbDxfAheadSource::Piece final : public OdDbDxfJob {
 public:
  Piece(OdDbDxfAheadSource& owner, OdDbDxfPiece text)
    : m_owner(owner)
    , content(std::move(text)) {}

  void work(std::size_t who) override;

 private:
  OdDbDxfAheadSource& m_owner;

 public:
  const OdDbDxfPiece content;
  // Those that were managed.
  std::vector<OdDbDxfReadEntity> entities;
  std::vector<OdDbDxfReadObject> objects;
};

/// Reads the entities of pieces in one thread.
class OdDbDxfAheadSource::Helper {
 public:
  Helper(const OdDbDxfIn& in, OdDbDxfShared& shared)
    : m_in(in, m_source, shared) {}

  void read(Piece& piece);

 private:
  void readEntity(Piece& piece);
  void readObject(Piece& piece);
  OdDbDxfReadAhead behind(std::string_view name) const;

  OdDbDxfPieceSource m_source;
  OdDbDxfIn m_in;
};

void OdDbDxfAheadSource::Piece::work(std::size_t who) {
  std::unique_ptr<Helper>& helper = m_owner.m_helpers[who];
  if (!helper) helper = std::make_unique<Helper>(*m_owner.m_in, *m_owner.m_shared);
  helper->read(*this);
}

void OdDbDxfAheadSource::Helper::read(Piece& piece) {
  // These stand between entities.
  static constexpr std::string_view kMarks[] = {"ENDSEC", "BLOCK", "ENDBLK", "EOF"};
  constexpr std::size_t kShortEntity = 100;
  piece.entities.reserve(piece.content.text.size() / kShortEntity);
  m_source.restart(piece.content);
  m_in.restart();
  // Pieces are asked for among entities.
  bool areObjects = false;
  while (!m_in.isDamaged()) {
    const std::string_view name = m_in.tag().text;
    if (name == "SECTION") {
      m_in.next();
      areObjects = m_in.tag().is(2, "OBJECTS");
    } else if (std::find(std::begin(kMarks), std::end(kMarks), name) != std::end(kMarks)) {
      m_in.next();
    } else {
      try {
        areObjects ? readObject(piece) : readEntity(piece);
      } catch (const std::exception&) {
        // It will be raised again where it can be told.
      }
    }
    while (m_in.tag().code != 0) m_in.next();
  }
}

OdDbDxfReadAhead OdDbDxfAheadSource::Helper::behind(std::string_view name) const {
  return {m_in.head(), name, m_in.isDamaged() ? std::string_view() : m_in.tag().text,
          m_source.place(), m_source.line()};
}

void OdDbDxfAheadSource::Helper::readEntity(Piece& piece) {
  const std::string_view name = m_in.tag().text;
  OdDbEntityPtr entity = m_in.readEntity(name);
  if (!m_in.hasGivenUp()) piece.entities.push_back({behind(name), std::move(entity)});
}

void OdDbDxfAheadSource::Helper::readObject(Piece& piece) {
  const std::string_view name = m_in.tag().text;
  OdDbObjectPtr object = oddxf::makeObject(name);
  m_in.readTags(*object);
  if (!m_in.hasGivenUp()) piece.objects.push_back({behind(name), std::move(object)});
}

OdDbDxfAheadSource::OdDbDxfAheadSource(OdDbDxfBytes bytes, std::size_t threads)
  : m_stream(std::move(bytes))
  , m_text(OdDbDxfBytes(std::string_view()))
  , m_threads(threads)
  , m_crew(std::make_unique<OdDbDxfCrew>(threads)) {
  // It comes while this thread reads what the first entities need.
  m_crew->call();
}

OdDbDxfAheadSource::~OdDbDxfAheadSource() { end(); }

OdDbDxfSource::Result OdDbDxfAheadSource::next(OdDbDxfTag& tag) {
  while (m_piece) {
    const Result result = m_text.next(tag);
    m_line = m_text.line();
    if (result != kEnd) return result;
    if (!advance()) break;
  }
  const Result result = m_stream.next(tag);
  m_line = m_stream.line();
  return result;
}

OdString OdDbDxfAheadSource::problem() const {
  return m_piece ? m_text.problem() : m_stream.problem();
}

void OdDbDxfAheadSource::begin(OdDbDxfIn& in) {
  if (!m_shared) {
    m_shared = std::make_unique<OdDbDxfShared>(in.database());
    m_helpers.resize(m_threads);
  }
  m_in = &in;
  m_lock = std::unique_lock(m_shared->mutex());
}

void OdDbDxfAheadSource::end() {
  if (!m_in) return;
  m_lock.unlock();
  m_crew->stop();
  m_in = nullptr;
}

void OdDbDxfAheadSource::fill() {
  while (m_in && !m_allCut && !m_crew->isFull()) {
    auto content = m_stream.cut();
    if (content)
      m_crew->give(std::make_unique<Piece>(*this, std::move(*content)));
    else
      m_allCut = true;
  }
}

bool OdDbDxfAheadSource::advance() {
  m_piece = nullptr;
  fill();
  if (m_crew->isEmpty()) return false;
  // Helpers may look into the drawing meanwhile, and so may this thread as one of them.
  if (m_in) m_lock.unlock();
  std::unique_ptr<OdDbDxfJob> job = m_crew->take();
  if (m_in) m_lock.lock();
  m_piece.reset(static_cast<Piece*>(job.release()));
  m_text.restart(m_piece->content.text, m_piece->content.line);
  m_at = m_objectAt = 0;
  return true;
}

namespace {

/// Of what was read, from `at` on: that of the tag, and those that follow without a gap.
template <class T>
std::span<T> oneBehindTheOther(std::vector<T>& all, std::size_t& at, const OdDbDxfTag& tag) {
  const char* const wanted = tag.text.data();
  while (at < all.size() && all[at].name.data() < wanted) ++at;
  if (at == all.size() || all[at].name.data() != wanted) return {};
  const std::size_t first = at++;
  while (at < all.size() && all[at].name.data() == all[at - 1].next.data()) ++at;
  return std::span(all).subspan(first, at - first);
}

} // namespace

std::span<OdDbDxfReadEntity> OdDbDxfAheadSource::entities(OdDbDxfIn& in) {
  if (!m_in) begin(in);
  if (!m_piece) {
    if (!m_stream.goBack(in.tag())) return {};
    m_allCut = false;
    advance();
    // The same tag again, from a piece if there is one.
    in.next();
    if (!m_piece) return {};
  }
  return oneBehindTheOther(m_piece->entities, m_at, in.tag());
}

std::span<OdDbDxfReadObject> OdDbDxfAheadSource::objects(const OdDbDxfIn& in) {
  if (!m_piece) return {};
  return oneBehindTheOther(m_piece->objects, m_objectAt, in.tag());
}

void OdDbDxfAheadSource::takeOver(const OdDbDxfReadAhead& read, OdDbDxfIn& in) {
  m_line = read.line;
  in.takeOver(read.head, {0, read.next});
}

void OdDbDxfAheadSource::goBehind(const OdDbDxfReadAhead& read, OdDbDxfIn& in) {
  m_text.goOn(read.place, read.line);
  if (read.next.data() == nullptr) in.next();
}
