// How the variables of a style lay dimensions out, compared with a golden file: with
// DRAFTON_WRITE_GOLDEN set that is written instead; look at its changes before they are committed.
#include "drawing/entities/arc.h"
#include "drawing/entities/block_reference.h"
#include "drawing/entities/dimension_kinds.h"
#include "drawing/entities/mtext.h"
#include "drawing/entities/solid.h"
#include "drawing/tables/standard_arrows.h"

#include "drawing/contents/support.h"

#include <QFile>

using namespace oddbtest;

namespace {

/// In thousandths; a half of one goes up, whatever its last digits are.
OdString shown(double value) {
  constexpr double kPlaces = 1e3, kNudge = 1e-4;
  return OdString::number(std::floor(value * kPlaces + 0.5 + kNudge) / kPlaces + 0.0);
}
OdString shown(const OdGePoint3d& p) { return shown(p.x) + u',' + shown(p.y); }

OdString shown(const OdDbEntity& entity) {
  const OdString name = QLatin1String(entity.dxfName()) + u' ';
  if (const auto* const line = odrxCast<OdDbLine>(&entity))
    return name + shown(line->startPoint()) + u' ' + shown(line->endPoint());
  if (const auto* const arc = odrxCast<OdDbArc>(&entity))
    return name + shown(arc->center()) + QStringLiteral(" r") + shown(arc->radius()) + u' ' +
           shown(arc->startAngle()) + u' ' + shown(arc->endAngle());
  if (const auto* const text = odrxCast<OdDbMText>(&entity))
    return name + shown(text->location()) + u' ' + shown(text->rotation());
  if (const auto* const insert = odrxCast<OdDbBlockReference>(&entity))
    return name + shown(insert->position()) + u' ' + shown(insert->rotation());
  OdGeExtents3d box;
  entity.getGeomExtents(box);
  return name + shown(box.minPoint()) + u' ' + shown(box.maxPoint());
}

struct Style {
  const char* name;
  void (*set)(OdDbDimVarValues& values);
};

constexpr Style kStyles[] = {
    {"as it comes", [](OdDbDimVarValues&) {}},
    {"dimtad 0", [](OdDbDimVarValues& v) { v.dimtad = 0; }},
    {"dimtad 4", [](OdDbDimVarValues& v) { v.dimtad = 4; }},
    {"dimtad 0, dimtvp 1.5", [](OdDbDimVarValues& v) { v.dimtad = 0, v.dimtvp = 1.5; }},
    {"dimjust 1", [](OdDbDimVarValues& v) { v.dimjust = 1; }},
    {"dimjust 2", [](OdDbDimVarValues& v) { v.dimjust = 2; }},
    {"dimtih, not dimtoh", [](OdDbDimVarValues& v) { v.dimtih = true, v.dimtoh = false; }},
    {"dimtoh, not dimtih", [](OdDbDimVarValues& v) { v.dimtih = false, v.dimtoh = true; }},
    {"dimtix", [](OdDbDimVarValues& v) { v.dimtix = true; }},
    {"dimtofl", [](OdDbDimVarValues& v) { v.dimtofl = true; }},
    {"not dimtofl", [](OdDbDimVarValues& v) { v.dimtofl = false; }},
    {"dimsoxd", [](OdDbDimVarValues& v) { v.dimsoxd = true; }},
    {"dimatfit 0", [](OdDbDimVarValues& v) { v.dimatfit = 0; }},
    {"dimatfit 1", [](OdDbDimVarValues& v) { v.dimatfit = 1; }},
    {"dimatfit 2", [](OdDbDimVarValues& v) { v.dimatfit = 2; }},
    {"dimdle 2", [](OdDbDimVarValues& v) { v.dimdle = 2; }},
    {"dimdle 2, dimtsz 3", [](OdDbDimVarValues& v) { v.dimdle = 2, v.dimtsz = 3; }},
    {"dimcen -1", [](OdDbDimVarValues& v) { v.dimcen = -1; }},
    {"dimgap -2", [](OdDbDimVarValues& v) { v.dimgap = -2; }},
};

OdDbDimensionPtr linear(double length, double oblique = 0) {
  const auto made = odrxMake<OdDbRotatedDimension>(
      0.0, OdGePoint3d{0, 0, 0}, OdGePoint3d{length, 5, 0}, OdGePoint3d{0, 20, 0});
  made->setOblique(oblique);
  return made;
}
OdDbDimensionPtr radius(double length, double leader) {
  return odrxMake<OdDbRadialDimension>(OdGePoint3d{5, 5, 0},
                                       OdGePoint3d{5 - length * 0.8, 5 + length * 0.6, 0}, leader);
}
OdDbDimensionPtr diameter(double length, double leader) {
  return odrxMake<OdDbDiametricDimension>(OdGePoint3d{length * 0.6, length * 0.8, 0},
                                          OdGePoint3d{-length * 0.6, -length * 0.8, 0}, leader);
}
OdDbDimensionPtr angle(double y) {
  const auto made = odrxMake<OdDb3PointAngularDimension>();
  made->set({0, 0, 0}, {20, 0, 0}, {20, y, 0}, {22, y / 2, 0});
  return made;
}
OdDbDimensionPtr placed(OdDbDimensionPtr dimension, const OdGePoint3d& middle) {
  dimension->setTextPosition(middle);
  return dimension;
}

struct Subject {
  const char* name;
  OdDbDimensionPtr (*make)();
};

constexpr Subject kSubjects[] = {
    {"wide", [] { return linear(50); }},
    {"narrow", [] { return linear(9); }},
    {"tight", [] { return linear(6); }},
    {"tiny", [] { return linear(2); }},
    {"slanted", [] { return linear(50, 1.2); }},
    {"slanted along itself", [] { return linear(50, kOdaPi); }},
    {"placed",
     [] {
       return placed(linear(50), {70, 33, 0});
     }},
    {"radius", [] { return radius(40, 0); }},
    {"small radius", [] { return radius(2, 0); }},
    {"radius with a leader", [] { return radius(40, 12); }},
    {"radius, placed within",
     [] {
       return placed(radius(40, 0), {-10, 14, 0});
     }},
    {"radius, placed outside",
     [] {
       return placed(radius(4, 0), {30, 3, 0});
     }},
    {"diameter", [] { return diameter(20, 0); }},
    {"small diameter", [] { return diameter(1, 0); }},
    {"diameter with a leader", [] { return diameter(20, 3); }},
    {"angle", [] { return angle(30); }},
    {"small angle", [] { return angle(1); }},
    {"angle, placed",
     [] {
       return placed(angle(30), {40, 10, 0});
     }},
};

/// What is drawn of a dimension, one piece a line. Points that only fasten it are left out.
OdString layoutOf(OdDbDatabase& db, const Subject& subject) {
  const OdDbDimensionPtr dimension = subject.make();
  dimension->setDatabaseDefaults(db);
  addTo(db, dimension);
  OdString lines;
  for (const OdDbEntityPtr& piece : entitiesOf(dimension->dimBlockId()))
    if (std::string_view(piece->dxfName()) != "POINT")
      lines += QStringLiteral("    ") + shown(*piece) + u'\n';
  return lines;
}

OdString allLayouts() {
  OdString all;
  for (const Style& style : kStyles) {
    const OdDbDatabasePtr db = OdDbDatabase::createDatabase();
    const OdDbDimStyleTableRecordPtr record = db->currentDimStyle().safeOpenObject(OdDb::kForWrite);
    OdDbDimVarValues values = record->values();
    style.set(values);
    record->setValues(values);
    all += QLatin1String(style.name) + u'\n';
    for (const Subject& subject : kSubjects)
      all += QStringLiteral("  ") + QLatin1String(subject.name) + u'\n' + layoutOf(*db, subject);
  }
  return all;
}

} // namespace

TEST(DimensionLayouts, FollowEveryVariableOfTheStyle) {
  QFile file(QStringLiteral(TEST_DATA_DIR "/golden/dimension_layouts.txt"));
  const QByteArray made = allLayouts().toUtf8();
  if (qEnvironmentVariableIsSet("DRAFTON_WRITE_GOLDEN")) {
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(made);
    return;
  }
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = made.split('\n'), golden = file.readAll().split('\n');
  for (qsizetype i = 0; i < std::min(lines.size(), golden.size()); ++i)
    ASSERT_EQ(lines[i].toStdString(), golden[i].toStdString()) << "line " << i + 1;
  EXPECT_EQ(lines.size(), golden.size());
}

TEST(DimensionLayouts, LinesReachTheTipsOfArrowsThatStandOnThem) {
  const std::vector<const char*> reaching = {"_ArchTick", "_DotSmall", "_Integral",
                                             "_None",     "_Oblique",  "_Small"};
  for (const char* const name :
       {"_ArchTick",     "_BoxBlank",   "_BoxFilled",   "_Closed",  "_ClosedBlank",
        "_ClosedFilled", "_DatumBlank", "_DatumFilled", "_Dot",     "_DotBlank",
        "_DotSmall",     "_Integral",   "_None",        "_Oblique", "_Open",
        "_Open30",       "_Open90",     "_Origin",      "_Origin2", "_Small"})
    EXPECT_EQ(oddb::lineReachesTip(QLatin1String(name)),
              std::ranges::find(reaching, std::string_view(name)) != reaching.end())
        << name;
}
