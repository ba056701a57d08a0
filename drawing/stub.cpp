#include "drawing/stub.h"

#include <algorithm>

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

std::size_t OdDbHandleTable::placeOf(std::uint64_t key) const {
  // Neighbours stay together, as they are asked for together; all others are scattered. Few stay
  // together, since long rows that meet would have to be walked over.
  constexpr std::uint64_t kScatter = 0x9E3779B97F4A7C15;
  constexpr int kNeighbours = 3;
  const std::uint64_t scattered = (key >> kNeighbours) * kScatter;
  return (key + (scattered ^ scattered >> 32)) & (m_places.size() - 1);
}

const OdDbHandleTable::Group* OdDbHandleTable::findGroup(std::uint64_t key) const {
  if (m_recent && m_recent->key == key) return m_recent;
  if (m_places.empty()) return nullptr;
  for (std::size_t at = placeOf(key);; at = (at + 1) & (m_places.size() - 1)) {
    if (m_places[at] == kNone) return nullptr;
    const Group& group = m_groups[m_places[at]];
    if (group.key == key) return m_recent = &group;
  }
}

void OdDbHandleTable::insert(OdDbHandle handle, std::uint32_t number) {
  const std::uint64_t key = handle / kGroupSize;
  auto* group = const_cast<Group*>(findGroup(key));
  if (!group) {
    // Half of the places are left free.
    if ((m_groups.size() + 1) * 2 > m_places.size()) grow();
    group = &m_groups.emplace_back();
    group->key = key;
    std::fill(std::begin(group->numbers), std::end(group->numbers), kNone);
    std::size_t at = placeOf(key);
    while (m_places[at] != kNone) at = (at + 1) & (m_places.size() - 1);
    m_places[at] = static_cast<std::uint32_t>(m_groups.size() - 1);
    m_recent = group;
  }
  group->numbers[handle % kGroupSize] = number;
}

void OdDbHandleTable::remove(OdDbHandle handle) {
  if (find(handle) != kNone) insert(handle, kNone);
}

void OdDbHandleTable::grow() {
  m_places.assign(std::max<std::size_t>(16, m_places.size() * 2), kNone);
  for (std::size_t i = 0; i < m_groups.size(); ++i) {
    std::size_t at = placeOf(m_groups[i].key);
    while (m_places[at] != kNone) at = (at + 1) & (m_places.size() - 1);
    m_places[at] = static_cast<std::uint32_t>(i);
  }
}
