// Where an object of a drawing is entered. Not for use outside of the library.
#pragma once

#include "drawing/object.h"

#include <deque>
#include <vector>

/// One entry for each object that was ever in the drawing, or that the file only refers to. Stubs
/// live as long as the drawing, so that ids may be kept anywhere.
struct OdDbStub {
  OdDbHandle handle;
  OdDbObjectPtr object; ///< null: undone, or only referred to

  OdDbDatabase* database() const;
};

/// The stubs of one drawing, by their numbers. They never move.
class OdDbStubPool {
 public:
  explicit OdDbStubPool(OdDbDatabase& database)
    : m_database(database) {}
  ~OdDbStubPool();
  OdDbStubPool(const OdDbStubPool&) = delete;
  OdDbStubPool& operator=(const OdDbStubPool&) = delete;

  std::uint32_t add(OdDbHandle handle);
  std::uint32_t size() const { return m_size; }
  OdDbStub& operator[](std::uint32_t number) const {
    return m_pages[number / kPageSize]->stubs[number % kPageSize];
  }

 private:
  friend struct OdDbStub;
  // A stub finds its drawing by the beginning of the memory page that it lies in.
  static constexpr std::size_t kPageBytes = 8192;
  static constexpr std::uint32_t kPageSize = kPageBytes / sizeof(OdDbStub) - 1;
  struct alignas(kPageBytes) Page {
    OdDbDatabase* database = nullptr;
    OdDbStub stubs[kPageSize];
  };

  OdDbDatabase& m_database;
  std::vector<std::unique_ptr<Page>> m_pages;
  std::uint32_t m_size = 0;
};

/// The numbers of stubs by their handles. Handles mostly follow each other: those that share all
/// but the last digit stand together.
class OdDbHandleTable {
 public:
  static constexpr std::uint32_t kNone = ~std::uint32_t{0};

  /// kNone if the handle is not there.
  std::uint32_t find(OdDbHandle handle) const {
    const Group* const group = findGroup(handle / kGroupSize);
    return group ? group->numbers[handle % kGroupSize] : kNone;
  }
  /// Replaces the number if the handle is there.
  void insert(OdDbHandle handle, std::uint32_t number);
  void remove(OdDbHandle handle);

 private:
  static constexpr std::uint64_t kGroupSize = 16;
  struct Group {
    std::uint64_t key;
    std::uint32_t numbers[kGroupSize];
  };
  const Group* findGroup(std::uint64_t key) const;
  std::size_t placeOf(std::uint64_t key) const;
  void grow();

  std::deque<Group> m_groups;
  std::vector<std::uint32_t> m_places; ///< groups by their keys; a power of two of places
  mutable const Group* m_recent = nullptr;
};
