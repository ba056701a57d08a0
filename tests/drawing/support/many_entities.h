// Drawings of many entities, as text.
#pragma once

#include <QByteArray>

namespace many_entities {

/// Writes entities one after the other, as lines of a file.
class Entities {
 public:
  explicit Entities(bool plain = false)
    : m_plain(plain) {}

  Entities& add(const char* name, const char* subclass, const QByteArray& tags,
                const QByteArray& handle = {}) {
    lines += QByteArray("  0\n") + name + "\n  5\n" +
             (handle.isEmpty() ? QByteArray::number(++m_handle, 16).toUpper() : handle) + "\n";
    if (!m_plain) lines += "330\n1F\n100\nAcDbEntity\n";
    lines += "  8\n" + layer + "\n";
    if (!m_plain) lines += QByteArray("100\n") + subclass + "\n";
    lines += tags;
    return *this;
  }
  Entities& line(const QByteArray& x = "1.5", const QByteArray& handle = {}) {
    return add("LINE", "AcDbLine",
               " 10\n" + x + "\n 20\n2.25\n 30\n0.0\n 11\n-7.125\n 21\n1e3\n 31\n0.1\n", handle);
  }
  Entities& text(const QByteArray& value) {
    add("TEXT", "AcDbText", " 10\n1\n 20\n2\n 30\n0\n 40\n2.5\n  1\n" + value + "\n");
    if (!m_plain) lines += "100\nAcDbText\n";
    return *this;
  }
  Entities& vertex(const QByteArray& x) {
    add("VERTEX", "AcDbVertex", m_plain ? " 10\n" + x + "\n 20\n4\n" : QByteArray());
    if (!m_plain) lines += "100\nAcDb2dVertex\n 10\n" + x + "\n 20\n4\n 30\n0\n";
    return *this;
  }
  Entities& end() { return add("SEQEND", "AcDbEntity", {}); }
  Entities& polyline(int corners) {
    add("POLYLINE", "AcDb2dPolyline", " 66\n1\n 10\n0\n 20\n0\n 30\n0\n");
    for (int i = 0; i < corners; ++i) vertex(QByteArray::number(i) + ".5");
    return end();
  }
  Entities& insert(const QByteArray& block) {
    add("INSERT", "AcDbBlockReference", " 66\n1\n  2\n" + block + "\n 10\n5\n 20\n6\n 30\n0\n");
    for (const char* tag : {"NUMBER", "PLACE"}) {
      add("ATTRIB", "AcDbText", " 10\n5\n 20\n6\n 30\n0\n 40\n2.5\n  1\n0\n");
      if (!m_plain) lines += "100\nAcDbAttribute\n";
      lines += QByteArray("  2\n") + tag + "\n 70\n0\n";
    }
    return end();
  }
  /// One of each kind that matters here.
  Entities& some(int i) {
    if (i % 3 == 0) line(QByteArray::number(i) + ".0625");
    if (i % 3 == 1) text("Room " + QByteArray::number(i));
    if (i % 5 == 0) text(i % 2 == 0 ? "0" : "LINE");
    if (i % 7 == 0) polyline(i % 40);
    if (i % 11 == 0) insert("DOOR");
    if (i % 13 == 0)
      add("CIRCLE", "AcDbCircle", " 10\n1\n 20\n2\n 30\n0\n 40\n" + QByteArray::number(i) + "1\n");
    if (i % 17 == 0)
      add("WIDGET", "AcDbWidget", "1000\n  0\n1000\nLINE\n999\na comment\n 70\n  0\n340\n12\n");
    return *this;
  }

  QByteArray lines, layer = "0";

 private:
  bool m_plain;
  int m_handle = 0x1000;
};

inline constexpr const char* kHeader = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n";

/// A drawing with a block DOOR and these entities.
inline QByteArray drawing(const QByteArray& entities, const QByteArray& inBlock = {}) {
  return kHeader +
         QByteArray("AC1032\n  9\n$HANDSEED\n  5\nFFFFFF\n  0\nENDSEC\n"
                    "  0\nSECTION\n  2\nTABLES\n"
                    "  0\nTABLE\n  2\nBLOCK_RECORD\n  5\n1\n330\n0\n100\nAcDbSymbolTable\n 70\n3\n"
                    "  0\nBLOCK_RECORD\n  5\n1F\n330\n1\n100\nAcDbSymbolTableRecord\n"
                    "100\nAcDbBlockTableRecord\n  2\n*Model_Space\n"
                    "  0\nBLOCK_RECORD\n  5\n1E\n330\n1\n100\nAcDbSymbolTableRecord\n"
                    "100\nAcDbBlockTableRecord\n  2\nDOOR\n  0\nENDTAB\n  0\nENDSEC\n"
                    "  0\nSECTION\n  2\nBLOCKS\n"
                    "  0\nBLOCK\n  5\n20\n330\n1E\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockBegin\n"
                    "  2\nDOOR\n 70\n0\n 10\n0\n 20\n0\n 30\n0\n  3\nDOOR\n  1\n\n") +
         inBlock +
         "  0\nENDBLK\n  5\n21\n330\n1E\n100\nAcDbEntity\n  8\n0\n100\nAcDbBlockEnd\n"
         "  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" +
         entities +
         "  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n  0\nDICTIONARY\n  5\nC\n330\n0\n"
         "100\nAcDbDictionary\n  0\nENDSEC\n  0\nEOF\n";
}

inline Entities many(int count, bool plain = false) {
  Entities all(plain);
  for (int i = 0; i < count; ++i) all.some(i);
  return all;
}

} // namespace many_entities
