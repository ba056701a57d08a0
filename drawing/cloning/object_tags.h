// An object as the tags of its file entry. Not for use outside of the library.
#pragma once

#include "drawing/database_data.h"
#include "drawing/dxf/kept_tags.h"
#include "drawing/dxf/source.h"

namespace oddb {

using ObjectTags = std::vector<OdDbKeptTags::Tag>;

/// One file entry: the class's name there, its own handle, and all tags behind that.
struct ObjectEntry {
  QByteArray dxfName;
  OdDbHandle handle;
  ObjectTags tags;
};

/// The entries of an object, and of the vertices or attributes that follow it. The owner is left
/// out: it is told apart from the tags.
std::vector<ObjectEntry> entriesOf(const OdDbObject& object);

/// How a tag refers to another object.
enum class ReferenceKind : std::uint8_t {
  kNone,
  kSoftPointer, ///< counts if the other one is there
  kHardPointer, ///< needs the other one
  kOwner,       ///< the other one belongs to this
};
/// What the code of a handle says; kNone for all other codes.
ReferenceKind referenceKind(int code);

/// A tag that refers to a record by its name.
struct NameReference {
  OdDbDatabaseData::Table table;
  /// What is named belongs to the object.
  bool isOwned = false;
};

/// Walks the tags of an entry and tells in which subclass each of them stands.
class TagWalk {
 public:
  explicit TagWalk(const ObjectEntry& entry)
    : m_entry(entry) {}

  bool done() const { return m_at >= m_entry.tags.size(); }
  void step();
  const OdDbKeptTags::Tag& tag() const { return m_entry.tags[m_at]; }
  std::size_t index() const { return m_at; }
  /// True among the reactors that stand before the first subclass.
  bool isReactor() const { return m_group == "{ACAD_REACTORS"; }
  /// True where an object tells who refers to it.
  bool pointsBack() const { return isReactor() || m_group == "{BLKREFS"; }
  /// The reference by handle that the tag is.
  ReferenceKind handleReference() const;
  std::optional<NameReference> nameReference() const;

 private:
  const ObjectEntry& m_entry;
  std::size_t m_at = 0;
  QByteArray m_subclass, m_group;
};

/// Gives the tags of an entry to a reader.
class EntrySource : public OdDbDxfSource {
 public:
  explicit EntrySource(const ObjectTags& tags)
    : m_tags(tags) {}
  Result next(OdDbDxfTag& tag) override;
  qint64 line() const override { return static_cast<qint64>(m_at); }
  OdString problem() const override { return {}; }

 private:
  const ObjectTags& m_tags;
  std::size_t m_at = 0;
};

} // namespace oddb
