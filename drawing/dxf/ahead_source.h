// Text files whose entities are read ahead by several threads.
#pragma once

#include "drawing/dxf/crew.h"
#include "drawing/dxf/in.h"
#include "drawing/dxf/shared.h"
#include "drawing/dxf/text_source.h"

#include <span>

/// Where something stands whose tags were read ahead, to be entered in the drawing.
struct OdDbDxfReadAhead {
  OdDbDxfHead head;
  std::string_view name; ///< where it stands in the file
  /// The object that follows: what stands in its first tag, the place behind that, and its line.
  /// It has no name at the end of a piece of the file.
  std::string_view next;
  const char* place;
  qint64 line;
};
struct OdDbDxfReadEntity : OdDbDxfReadAhead {
  OdDbEntityPtr entity;
};
struct OdDbDxfReadObject : OdDbDxfReadAhead {
  OdDbObjectPtr object;
};

/// Gives the tags of a text file, as any source. In sections with entities it cuts the file into
/// pieces between two of them, and helpers read these ahead. Whoever takes the tags may then take
/// many entities at once; those that the helpers did not manage have to be taken tag by tag, as
/// have all other things. No more than a few pieces are ahead. Nobody else may use the device
/// meanwhile.
class OdDbDxfAheadSource final : public OdDbDxfSource {
 public:
  OdDbDxfAheadSource(OdDbDxfBytes bytes, std::size_t threads);
  ~OdDbDxfAheadSource() override;
  OdDbDxfAheadSource(const OdDbDxfAheadSource&) = delete;
  OdDbDxfAheadSource& operator=(const OdDbDxfAheadSource&) = delete;

  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return m_line; }
  OdString problem() const override;

  /// Entities that stand one behind the other and were read ahead, from that of the tag at hand on.
  /// Nothing if that one was not. Helpers read for `in`, which takes the tags of this source, until
  /// end() is called; the drawing must not be changed by others meanwhile.
  std::span<OdDbDxfReadEntity> entities(OdDbDxfIn& in);
  /// The same for objects behind the entities, if a piece with some of them has been read. They may
  /// be taken behind end() as well.
  std::span<OdDbDxfReadObject> objects(const OdDbDxfIn& in);
  /// Makes `in` and the line for messages those that they are when the tags were read.
  void takeOver(const OdDbDxfReadAhead& read, OdDbDxfIn& in);
  /// Goes on behind what was read.
  void goBehind(const OdDbDxfReadAhead& read, OdDbDxfIn& in);
  /// No more entities are taken. This waits for the helpers.
  void end();

 private:
  class Helper;
  class Piece;
  void begin(OdDbDxfIn& in);
  void fill();
  bool advance();

  OdDbDxfTextSource m_stream; ///< what is not in pieces
  OdDbDxfTextSource m_text;   ///< the piece at hand
  std::unique_ptr<Piece> m_piece;
  std::size_t m_at = 0; ///< in its entities
  std::size_t m_objectAt = 0;
  qint64 m_line = 1;
  const std::size_t m_threads;

  OdDbDxfIn* m_in = nullptr; ///< while helpers are at work
  bool m_allCut = false;
  std::unique_ptr<OdDbDxfShared> m_shared;
  std::unique_lock<std::mutex> m_lock;
  std::vector<std::unique_ptr<Helper>> m_helpers; ///< one for each thread
  std::unique_ptr<OdDbDxfCrew> m_crew;
};
