// What objects meet while they are read.
#pragma once

#include "drawing/database_data.h"
#include "drawing/dxf/source.h"

#include <QStringDecoder>

#include <cstring>
#include <string>
#include <unordered_map>

class OdDbDxfShared;
class OdDbRawEntity;

/// What is known of an object when its tags are read, beside what it knows itself.
struct OdDbDxfHead {
  OdDbHandle handle;
  OdDbHandle owner; ///< as the file names it; empty if it does not
  bool hasBadValue = false;
  bool isInPaperSpace = false;
  bool hasFollowers = false; ///< the entity says that others follow which belong to it
};

/// Reads values and references for the objects of one drawing, and collects what is wrong.
///
/// A value that cannot be read is told in the list of damage and leaves the field as it is; an
/// entity with such a value is left out, since nobody could trust its shape.
class OdDbDxfIn {
 public:
  /// `name` is the path, for messages.
  OdDbDxfIn(OdDbDatabase& database, OdDbDxfSource& source, OdString name);
  /// A helper that reads other tags of the same drawing at the same time, but enters nothing. What
  /// would have to be told or added to the drawing makes it give up.
  OdDbDxfIn(const OdDbDxfIn& other, OdDbDxfSource& source, OdDbDxfShared& shared);
  OdDbDxfIn(const OdDbDxfIn&) = delete;
  OdDbDxfIn& operator=(const OdDbDxfIn&) = delete;

  OdDbDatabase& database() { return m_database; }
  OdDbDatabaseData& data() { return m_database.data(); }

  /// The tag at hand; next() goes on and gives false at the end or at damage, which is then told.
  const OdDbDxfTag& tag() const { return m_tag; }
  bool next();
  bool isDamaged() const { return m_damaged; }
  /// For helpers: begins with the next tag of a source that was at its end or damaged.
  void restart();
  /// True since the last restart() or readTags() if whoever enters objects has to read this.
  bool hasGivenUp() const { return m_givenUp; }
  /// Goes on where an object was read by a helper: its head, and the tag behind it.
  void takeOver(const OdDbDxfHead& head, const OdDbDxfTag& next) {
    m_head = head;
    m_tag = next;
  }
  const OdDbDxfHead& head() const { return m_head; }
  [[noreturn]] void fail(const OdString& reason) const;

  /// True if the tag at hand stands in the subclass, or if the file has no subclasses.
  bool in(std::string_view subclass) const {
    return m_subclass == subclass || (m_subclass.empty() && m_plain);
  }
  /// The same for a name whose length is known: this is asked for every tag, and so compared with
  /// a few instructions.
  template <std::size_t N>
  bool in(const char (&subclass)[N]) const {
    if (m_subclass.size() == N - 1) return std::memcmp(m_subclass.data(), subclass, N - 1) == 0;
    return m_subclass.empty() && m_plain;
  }
  /// Files of R12 have no subclasses.
  bool isPlain() const { return m_plain; }
  void setPlain(bool plain, bool hasHandles) {
    m_plain = plain;
    m_keepsHandles = hasHandles;
  }

  // Values. Each gives what the field has now if the tag's value is no good.
  double real(const OdDbDxfTag& tag, double now);
  /// Degrees in the file.
  double angle(const OdDbDxfTag& tag, double now);
  int integer(const OdDbDxfTag& tag, int now);
  std::int64_t longInteger(const OdDbDxfTag& tag, std::int64_t now);
  OdString text(std::string_view bytes);
  OdDbObjectId reference(const OdDbDxfTag& tag);
  OdDbHandle handle(const OdDbDxfTag& tag);

  /// Records by name. A record that the file lacks is made, and noted.
  OdDbObjectId layer(std::string_view name) { return record(OdDbDatabaseData::kLayers, name); }
  OdDbObjectId linetype(std::string_view name) {
    return record(OdDbDatabaseData::kLinetypes, name);
  }
  OdDbObjectId textStyle(std::string_view name) {
    return record(OdDbDatabaseData::kTextStyles, name);
  }
  OdDbObjectId dimStyle(std::string_view name) {
    return record(OdDbDatabaseData::kDimStyles, name);
  }
  OdDbObjectId block(std::string_view name) { return record(OdDbDatabaseData::kBlocks, name); }

  /// Tells what cannot be taken over, with the place.
  void damage(const OdString& what);
  /// Tells what was mended.
  void note(const OdString& what);

  /// Reads the tags of an object up to the next tag of code 0, and enters it in the drawing under
  /// `owner`, or under the owner that the file names if `owner` is null. False if it was left out.
  bool readObject(OdDbObject& object, OdDbObjectId owner);
  /// The handle of an object's owner as the file names it; empty if it does not.
  OdDbHandle namedOwner() const { return m_head.owner; }
  bool hasFollowers() const { return m_head.hasFollowers; }
  bool wasInPaperSpace() const { return m_head.isInPaperSpace; }
  void setPaperSpace() { m_head.isInPaperSpace = true; }

  /// Puts the object under its handle, or under a new one if that is missing or taken.
  void enter(OdDbObject& object, OdDbObjectId owner);
  /// Puts what follows a polyline or an insert under its handle, outside of every list. Files name
  /// the leader or its block as the owner, which is kept.
  void enterFollower(OdDbObject& object, OdDbObjectId leader);
  /// As enter(), for an entity that comes to the end of `block`.
  void enterEntity(OdDbEntityPtr entity, OdDbBlockTableRecord& block);
  /// Reads the tags without entering the object.
  void readTags(OdDbObject& object);
  /// Reads an entity of that name without entering it. Null if the tags end before it does or one
  /// of its values is no good.
  OdDbEntityPtr readEntity(std::string_view name);

  void setCodePage(std::string_view name);

 private:
  OdDbObjectId record(OdDbDatabaseData::Table table, std::string_view name);
  void keepGroup(OdDbObject& object);
  void keepTag(OdDbObject& object);
  void keepPlainTag(OdDbObject& object, OdDbDxfResidue& residue);
  void takeElevation(OdDbObject& object);
  OdDbStub* freeStub(const OdDbObject& object);
  OdDbObjectId foundRecord(OdDbDatabaseData::Table table, const std::string& name);

  OdDbDatabase& m_database;
  OdDbDxfSource& m_source;
  OdString m_name;
  OdDbDxfTag m_tag;
  QStringDecoder m_decoder;
  bool m_decodeEscapes = false;
  bool m_damaged = false, m_plain = false, m_keepsHandles = true;

  // Of the object at hand.
  std::string m_subclass;
  bool m_knownSubclass = true;
  const char* m_plainSubclass = nullptr;
  std::string m_elevation;
  OdDbDxfHead m_head;
  bool m_ownerSeen = false;

  // Neighbours in a file mostly share their layer and line type.
  struct Recent {
    std::string name;
    OdDbObjectId id;
  };
  Recent m_recent[OdDbDatabaseData::kTableCount];

  // Of helpers.
  OdDbDxfShared* m_shared = nullptr;
  bool m_givenUp = false;
  std::unordered_map<std::string, OdDbObjectId> m_found[OdDbDatabaseData::kTableCount];
};
