// Where an object of a drawing is entered. Not for use outside of the library.
#pragma once

#include "drawing/object.h"

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

/// Stubs by their handles.
class OdDbHandleTable {
 public:
  explicit OdDbHandleTable(const OdDbStubPool& stubs)
    : m_stubs(stubs) {}

  /// The number of the stub; kNone if there is none.
  std::uint32_t find(OdDbHandle handle) const;
  /// `number` is that of a stub whose handle is not there yet.
  void insert(std::uint32_t number);
  void remove(OdDbHandle handle);
  /// Makes room for so many at once.
  void reserve(std::size_t count);

  static constexpr std::uint32_t kNone = ~std::uint32_t{0};

 private:
  std::size_t placeOf(OdDbHandle handle) const;
  void grow(std::size_t places);

  const OdDbStubPool& m_stubs;
  std::vector<std::uint32_t> m_places; ///< a power of two of them
  std::size_t m_count = 0;
};
