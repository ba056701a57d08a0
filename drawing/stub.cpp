#include "drawing/stub.h"

#include <bit>

OdDbDatabase* OdDbStub::database() const {
  constexpr auto kInPage = std::uintptr_t{OdDbStubPool::kPageBytes - 1};
  const auto address = reinterpret_cast<std::uintptr_t>(this);
  return reinterpret_cast<const OdDbStubPool::Page*>(address & ~kInPage)->database;
}

OdDbStubPool::~OdDbStubPool() = default;

std::uint32_t OdDbStubPool::add(OdDbHandle handle) {
  if (m_size % kPageSize == 0) {
    m_pages.push_back(std::make_unique<Page>());
    m_pages.back()->database = &m_database;
  }
  const std::uint32_t number = m_size++;
  (*this)[number].handle = handle;
  return number;
}

std::size_t OdDbHandleTable::placeOf(OdDbHandle handle) const {
  // Handles mostly follow each other, and so do their places: only groups of them are scattered.
  constexpr std::uint64_t kGroup = 64;
  constexpr std::uint64_t kScatter = 0x9E3779B97F4A7C15;
  std::uint64_t group = handle / kGroup * kScatter;
  group ^= group >> 32;
  return (group * kGroup + handle % kGroup) & (m_places.size() - 1);
}

std::uint32_t OdDbHandleTable::find(OdDbHandle handle) const {
  if (m_places.empty()) return kNone;
  for (std::size_t at = placeOf(handle);; at = (at + 1) & (m_places.size() - 1)) {
    const std::uint32_t number = m_places[at];
    if (number == kNone || m_stubs[number].handle == handle) return number;
  }
}

void OdDbHandleTable::insert(std::uint32_t number) {
  // A quarter is left free.
  if ((m_count + 1) * 4 > m_places.size() * 3)
    grow(std::max<std::size_t>(256, m_places.size() * 2));
  std::size_t at = placeOf(m_stubs[number].handle);
  while (m_places[at] != kNone) at = (at + 1) & (m_places.size() - 1);
  m_places[at] = number;
  ++m_count;
}

void OdDbHandleTable::reserve(std::size_t count) {
  const std::size_t places = std::bit_ceil(count * 4 / 3 + 1);
  if (places > m_places.size()) grow(places);
}

void OdDbHandleTable::grow(std::size_t places) {
  const std::vector<std::uint32_t> former = std::exchange(m_places, {});
  m_places.assign(places, kNone);
  m_count = 0;
  for (const std::uint32_t number : former)
    if (number != kNone) insert(number);
}

void OdDbHandleTable::remove(OdDbHandle handle) {
  if (m_places.empty()) return;
  const std::size_t mask = m_places.size() - 1;
  std::size_t at = placeOf(handle);
  while (m_places[at] != kNone && m_stubs[m_places[at]].handle != handle) at = (at + 1) & mask;
  if (m_places[at] == kNone) return;
  --m_count;
  // Those behind it move up, so that none of them stands beyond a gap.
  for (std::size_t gap = at;;) {
    m_places[gap] = kNone;
    std::size_t next = gap;
    do {
      next = (next + 1) & mask;
      if (m_places[next] == kNone) return;
    } while (((next - placeOf(m_stubs[m_places[next]].handle)) & mask) < ((next - gap) & mask));
    m_places[gap] = m_places[next];
    gap = next;
  }
}
