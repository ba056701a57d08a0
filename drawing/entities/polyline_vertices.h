// The corners of a polyline.
#pragma once

#include "drawing/geometry/geometry.h"
#include "drawing/seldom.h"

#include <vector>

/// One corner, with the piece that follows it. The bulge is the tangent of a quarter of the
/// piece's angle: 0 straight, positive counterclockwise, 1 a half circle.
struct OdDbPolylineVertex {
  OdGePoint2d point;
  double bulge = 0, startWidth = 0, endWidth = 0;
  int identifier = 0;
  bool operator==(const OdDbPolylineVertex&) const = default;
};

/// A list of corners. Those of most polylines are nothing but points, and take no more room.
/// Indices are not checked.
class OdDbPolylineVertices {
 public:
  using Vertex = OdDbPolylineVertex;

  std::size_t size() const { return m_points.size(); }
  bool empty() const { return m_points.empty(); }
  const OdGePoint2d& pointAt(std::size_t index) const { return m_points[index]; }
  OdGePoint2d& editPoint(std::size_t index) { return m_points[index]; }
  Vertex operator[](std::size_t index) const {
    return {m_points[index], valueAt(m_rest->bulges, index), valueAt(m_rest->startWidths, index),
            valueAt(m_rest->endWidths, index), valueAt(m_rest->identifiers, index)};
  }
  void set(std::size_t index, const Vertex& vertex) {
    m_points[index] = vertex.point;
    setRest(index, vertex);
  }
  void insert(std::size_t index, const Vertex& vertex) {
    const auto at = static_cast<std::ptrdiff_t>(index);
    if (m_rest.isSet())
      m_rest.edit().forEach([&]<class T>(std::vector<T>& values) {
        if (index < values.size()) values.insert(values.begin() + at, T{});
      });
    m_points.insert(m_points.begin() + at, vertex.point);
    setRest(index, vertex);
  }
  void push_back(const Vertex& vertex) {
    m_points.push_back(vertex.point);
    setRest(size() - 1, vertex);
  }
  void erase(std::size_t index) {
    const auto at = static_cast<std::ptrdiff_t>(index);
    m_points.erase(m_points.begin() + at);
    if (!m_rest.isSet()) return;
    m_rest.edit().forEach([&](auto& values) {
      if (index < values.size()) values.erase(values.begin() + at);
    });
  }
  void setBulge(std::size_t index, double bulge) { setValue(&Rest::bulges, index, bulge); }
  void setStartWidth(std::size_t index, double width) {
    setValue(&Rest::startWidths, index, width);
  }
  void setEndWidth(std::size_t index, double width) { setValue(&Rest::endWidths, index, width); }
  void setIdentifier(std::size_t index, int identifier) {
    setValue(&Rest::identifiers, index, identifier);
  }
  void reserve(std::size_t count) { m_points.reserve(count); }
  void shrinkToFit() {
    m_points.shrink_to_fit();
    if (m_rest.isSet()) m_rest.edit().forEach([](auto& values) { values.shrink_to_fit(); });
  }

  /// Gives the corners by value.
  class Iterator {
   public:
    Iterator(const OdDbPolylineVertices& vertices, std::size_t at)
      : m_vertices(&vertices)
      , m_at(at) {}
    Vertex operator*() const { return (*m_vertices)[m_at]; }
    Iterator& operator++() {
      ++m_at;
      return *this;
    }
    bool operator==(const Iterator&) const = default;

   private:
    const OdDbPolylineVertices* m_vertices;
    std::size_t m_at;
  };
  Iterator begin() const { return {*this, 0}; }
  Iterator end() const { return {*this, size()}; }
  bool operator==(const OdDbPolylineVertices& other) const {
    if (size() != other.size()) return false;
    for (std::size_t i = 0; i < size(); ++i)
      if ((*this)[i] != other[i]) return false;
    return true;
  }

 private:
  /// Values that follow the last one that is not 0 are left out.
  struct Rest {
    std::vector<double> bulges, startWidths, endWidths;
    std::vector<int> identifiers;
    bool operator==(const Rest&) const = default;
    template <class F>
    void forEach(F call) {
      call(bulges);
      call(startWidths);
      call(endWidths);
      call(identifiers);
    }
  };
  template <class T>
  static T valueAt(const std::vector<T>& values, std::size_t index) {
    return index < values.size() ? values[index] : T{};
  }
  template <class T>
  void setValue(std::vector<T> Rest::*member, std::size_t index, T value) {
    if (value == T{} && index >= ((*m_rest).*member).size()) return;
    std::vector<T>& values = m_rest.edit().*member;
    if (index >= values.size()) values.resize(index + 1);
    values[index] = value;
  }
  void setRest(std::size_t index, const Vertex& vertex) {
    setBulge(index, vertex.bulge);
    setStartWidth(index, vertex.startWidth);
    setEndWidth(index, vertex.endWidth);
    setIdentifier(index, vertex.identifier);
  }

  std::vector<OdGePoint2d> m_points;
  OdDbSeldom<Rest> m_rest;
};
