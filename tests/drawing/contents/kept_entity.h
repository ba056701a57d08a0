// Drawings with entities that are kept as their file had them.
#pragma once

#include "drawing/contents/support.h"

namespace oddbtest {

/// A drawing with entities of the file's form in its model; bars part the lines.
inline OdDbDatabasePtr drawingWith(const QByteArray& tags) {
  const OdDbDatabasePtr empty = OdDbDatabase::createDatabase();
  QByteArray file = empty->writeDxf();
  file.replace("\r\n", "\n");
  const qsizetype section = file.indexOf("\nENTITIES\n");
  const qsizetype end = file.indexOf("  0\nENDSEC\n", section);
  QByteArray lines = tags;
  lines.replace('|', '\n');
  file.insert(end, lines + '\n');
  return OdDbDatabase::readDxf(file, QStringLiteral("made"));
}

inline QByteArray head(const char* name, const char* handle = "F0") {
  return QByteArray("0|") + name + "|5|" + handle + "|100|AcDbEntity|8|0|";
}

inline OdDbEntityPtr first(const OdDbDatabase& database) {
  return entitiesOf(database.getModelSpaceId()).at(0)->objectId().openObject(OdDb::kForWrite);
}

/// The values of a code in the entity's entry of the file, rounded, with blanks between them.
inline std::string valuesOf(const OdDbDatabase& database, const char* name, int code) {
  QByteArray file = database.writeDxf();
  file.replace("\r\n", "\n");
  const qsizetype from = file.indexOf(QByteArray("\n") + name + "\n", file.indexOf("\nENTITIES\n"));
  const QByteArray entry = file.mid(from, file.indexOf("\n  0\n", from) - from);
  const QList<QByteArray> lines = entry.split('\n');
  std::string found;
  for (qsizetype i = 2; i + 1 < lines.size(); i += 2)
    if (lines[i].trimmed().toInt() == code)
      found += (found.empty() ? "" : " ") +
               QString::number(std::round(lines[i + 1].toDouble() * 1000) / 1000).toStdString();
  return found;
}

/// A multileader with a line, a landing and the text "Note".
inline QByteArray leaderWithText() {
  return head("MULTILEADER") + "100|AcDbMLeader|270|2|300|CONTEXT_DATA{|40|1.0|10|20.0|20|10.0|30|"
                               "0.0|41|2.5|140|3.0|145|1.0"
                               "|174|1|175|1|176|0|177|0|290|1|304|Note|11|0.0|21|0.0|31|1.0|340|0|"
                               "12|21.0|22|11.0|32|0.0|"
                               "13|1.0|23|0.0|33|0.0|42|0.0|43|0.0|44|0.0|45|1.0|170|1|90|-"
                               "1056964608|171|1|172|1|296|0|110|"
                               "0.0|120|0.0|130|0.0|111|1.0|121|0.0|131|0.0|112|0.0|122|1.0|132|0."
                               "0|297|0|302|LEADER{|290|1|"
                               "291|1|10|15.0|20|10.0|30|0.0|11|1.0|21|0.0|31|0.0|90|0|40|5.0|304|"
                               "LEADER_LINE{|10|0.0|20|0.0"
                               "|30|0.0|91|0|305|}|271|0|303|}|272|9|273|9|301|}|340|0|90|0|170|1|"
                               "91|-1056964608|171|-2|290|"
                               "1|291|1|41|5.0|42|3.0|172|2|43|0.0|45|1.0";
}

/// A multileader with a block, whose attribute says "B7".
inline QByteArray leaderWithBlock(OdDbHandle block, OdDbHandle definition) {
  const QByteArray blockHandle = block.ascii().toLatin1();
  return head("MULTILEADER") +
         "100|AcDbMLeader|270|2|300|CONTEXT_DATA{|40|1.0|10|20.0|20|10.0|30|0.0|41|2.5|140|3.0|145|"
         "1.0|174|1|290|0|296|1|341|" +
         blockHandle +
         "|14|0.0|24|0.0|34|1.0|15|20.0|25|10.0|35|0.0|16|1.0|26|1.0|36|1.0|46|0.0|93|-1056964608|"
         "47|1.0|47|0.0|47|0.0|47|20.0|47|0.0|47|1.0|47|0.0|47|10.0|47|0.0|47|0.0|47|1.0|47|0.0|47|"
         "0.0|47|0.0|47|0.0|47|1.0|110|0.0|120|0.0|130|0.0|111|1.0|121|0.0|131|0.0|112|0.0|122|1.0|"
         "132|0.0|297|0|302|LEADER{|290|1|291|1|10|15.0|20|10.0|30|0.0|11|1.0|21|0.0|31|0.0|90|0|"
         "40|5.0|304|LEADER_LINE{|10|1.0|20|1.0|30|0.0|91|0|305|}|271|0|303|}|301|}|340|0|90|0|170|"
         "1|91|-1056964608|171|-2|290|1|291|1|41|5.0|42|3.0|172|1|344|" +
         blockHandle + "|10|1.0|20|1.0|30|1.0|43|0.0|176|0|330|" + definition.ascii().toLatin1() +
         "|177|0|44|0.0|302|B7|45|1.0";
}

} // namespace oddbtest
