// Objects of classes that the database does not know.
#pragma once

#include "drawing/entities/entity.h"

#include <optional>
#include <vector>

struct OdGiLetterFrame;

/// An object that is kept and written back as the file had it.
class OdDbRawObject : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbRawObject);

 public:
  OdDbRawObject() = default;
  /// `name` is the name of the class in files.
  explicit OdDbRawObject(QByteArray name)
    : m_name(std::move(name)) {}

  const char* dxfName() const override { return m_name.constData(); }
  void assignFrom(const OdDbObject& other) override;

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbRawObject>(m_name); }

 private:
  QByteArray m_name;
};

/// An entity that is kept and written back as the file had it, but for the common properties.
class OdDbRawEntity : public OdDbEntity {
  ODRX_DECLARE_MEMBERS(OdDbRawEntity);

 public:
  OdDbRawEntity() = default;
  explicit OdDbRawEntity(QByteArray name)
    : m_name(std::move(name)) {}

  const char* dxfName() const override { return m_name.constData(); }
  void assignFrom(const OdDbObject& other) override;
  /// Raises OdError(eNotApplicable): what such an entity refers to cannot be told.
  OdRxObjectPtr clone() const override;
  bool takesFollowers() const override { return !m_followers.empty(); }
  void addFollower(OdDbEntity& follower) override { m_followers.push_back(follower.objectId()); }
  void dxfOutFollowers(OdDbDxfOut& out) const override;
  bool dxfInTag(const OdDbDxfTag& tag, OdDbDxfIn& in) override;
  /// Shows the block or the graphic that the file has of it; nothing without either.
  void worldDraw(OdGiWorldDraw& draw) const override;
  /// None: null.
  OdDbEntityPtr getTransformedCopy(const OdGeMatrix3d& transform) const override;
  /// Moves the points of classes whose tags are understood so far: multilines, multileaders, masks,
  /// spirals, tables and the like. False for all others, and for what their shape cannot follow.
  /// A table that is mirrored can still be read.
  bool transformBy(const OdGeMatrix3d& transform) override;
  /// As transformBy() with a mirror, but what is to be read is turned: it comes to stand where the
  /// mirror shows it.
  bool mirrorReadably(const OdGeMatrix3d& mirror);

 protected:
  OdDbObjectPtr newInstance() const override { return odrxMake<OdDbRawEntity>(m_name); }

 private:
  bool isTable() const;
  /// What of it is to be read; nothing if nothing is.
  std::optional<OdGiLetterFrame> letterFrame() const;
  bool move(const OdGeMatrix3d& shape, const OdGeMatrix3d& letters);

  QByteArray m_name;
  /// The vertices or attributes that belong to it, and their end mark, in the order of the file.
  std::vector<OdDbObjectId> m_followers;
};
