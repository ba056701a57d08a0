// The common implementation of stored objects.
#pragma once

#include "module/persist.h"

#include <memory>

namespace tc {

namespace persist_detail {
bool readAttributes(OdTcPersist& object, OdTcFiler* filer);
bool readElements(OdTcPersist& object, OdTcFiler* filer);
} // namespace persist_detail

/// Implements the abstract interface T, which derives from OdTcPersist.
template <class T>
class OdTcPersistImpl : public T {
 public:
  bool readAttributes(OdTcFiler* filer) override {
    return persist_detail::readAttributes(*this, filer);
  }
  bool readElements(OdTcFiler* filer) override {
    return persist_detail::readElements(*this, filer);
  }
  void write(OdTcFiler* filer) override { this->writeFields(filer); }

  void setOwner(OdTcPersist* owner) override { m_owner = owner; }
  OdString elementName() const override { return QStringLiteral("OdTcPersist"); }
  void setTag(const OdString& tag) override {
    m_tag = tag.isEmpty() ? nullptr : std::make_unique<OdString>(tag);
  }
  OdString tag() const override { return m_tag ? *m_tag : OdString(); }
  OdTcPersist* owner() const override { return m_owner; }
  OdTcPersist* ownerNoRef() const override { return m_owner; }
  OdTcDatabase* database() const override { return hasRoot() ? m_owner->database() : nullptr; }
  OdTcCatalog* catalog() const override { return hasRoot() ? m_owner->catalog() : nullptr; }
  bool isContainer(const OdString&) const override { return false; }
  OdString displayName() const override { return {}; }
  void setOwnerInDatabase(OdTcPersist* owner, const OdString&) override {
    m_owner = owner;
    this->noteInDatabase(this);
  }
  void setOwnerInCatalog(OdTcPersist* owner) override {
    m_owner = owner;
    this->noteInCatalog(this);
  }
  void setOwnerQuiet(OdTcPersist* owner) override { m_owner = owner; }
  void noteInDatabase(OdTcPersist* object) override {
    if (hasRoot()) m_owner->noteInDatabase(object);
  }
  void noteInCatalog(OdTcPersist* object) override {
    if (hasRoot()) m_owner->noteInCatalog(object);
  }
  void forgetInCatalog(OdTcPersist* object) override {
    if (hasRoot()) m_owner->forgetInCatalog(object);
  }

  void writeFields(OdTcFiler*) override {}
  bool readField(const OdString&, const OdVariant&) override { return false; }

 private:
  bool hasRoot() const { return m_owner && m_owner != static_cast<const OdTcPersist*>(this); }

  // Nearly all objects live without a tag, and there are many objects.
  std::unique_ptr<OdString> m_tag;
  OdTcPersist* m_owner = nullptr;
};

} // namespace tc
