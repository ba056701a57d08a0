// The frame's reference-counted array.
#pragma once

#include "frame/error.h"

#include <QList>

/// An array whose copies share their elements until one of them changes. The sharing count is
/// atomic. `at` and `operator[]` raise OdError_InvalidIndex for an index out of range.
template <class T>
class OdArray {
 public:
  OdArray() = default;
  OdArray(std::initializer_list<T> items)
    : m_items(items) {}

  qsizetype size() const { return m_items.size(); }
  bool isEmpty() const { return m_items.isEmpty(); }
  const T& at(qsizetype i) const {
    check(i);
    return m_items.at(i);
  }
  const T& operator[](qsizetype i) const { return at(i); }
  T& operator[](qsizetype i) {
    check(i);
    return m_items[i];
  }
  void append(const T& item) { m_items.append(item); }
  void insertAt(qsizetype i, const T& item) {
    if (i != m_items.size()) check(i);
    m_items.insert(i, item);
  }
  void removeAt(qsizetype i) {
    check(i);
    m_items.removeAt(i);
  }
  /// Removes the first element equal to `item`; false if there is none.
  bool removeFirst(const T& item) { return m_items.removeOne(item); }
  /// The position of the first equal element, or -1.
  qsizetype indexOf(const T& item) const { return m_items.indexOf(item); }
  bool contains(const T& item) const { return m_items.contains(item); }
  void clear() { m_items.clear(); }
  void reserve(qsizetype n) { m_items.reserve(n); }

  auto begin() const { return m_items.constBegin(); }
  auto end() const { return m_items.constEnd(); }
  auto begin() { return m_items.begin(); }
  auto end() { return m_items.end(); }

  bool operator==(const OdArray& other) const { return m_items == other.m_items; }

 private:
  void check(qsizetype i) const {
    if (i < 0 || i >= m_items.size()) throw OdError_InvalidIndex(i, m_items.size());
  }

  QList<T> m_items;
};
