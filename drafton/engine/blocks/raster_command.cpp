// INSERTRASTER.

#include "drafton/engine/blocks/block_commands.h"
#include "drafton/engine/blocks/parameter_set.h"
#include "drafton/engine/blocks/place_prompts.h"
#include "drafton/engine/commands/new_entities.h"
#include "drafton/engine/commands/record_names.h"
#include "drafton/engine/document.h"
#include "drafton/engine/support_files.h"
#include "drafton/engine/translator.h"
#include "drawing/entities/raster_image.h"
#include "drawing/objects/dictionary.h"
#include "drawing/objects/picture_limits.h"
#include "drawing/pictures/picture_reader.h"
#include "frame/file_path.h"

#include <QFile>

namespace drafton {
namespace {

/// A picture file that can be shown.
struct Picture {
  OdString path;
  QSize size;
};

OdString unreadable(const OdString& path, const OdString& reason) {
  return translated(u"%1 cannot be read as a picture: %2").arg(odpath::toPlatform(path), reason);
}

Picture pictureAt(const CommandContext& context, const OdString& typed) {
  const OdString path =
      findSupportFile(context.engine(), &context.document(), typed, QStringLiteral("png"));
  if (path.isEmpty())
    throw CommandFailure(
        whyNoSupportFile(context.engine(), &context.document(), typed, QStringLiteral("png")));
  QFile file(odpath::toPlatform(path));
  if (!file.open(QIODevice::ReadOnly)) throw CommandFailure(unreadable(path, file.errorString()));
  OdPictureReader reader(&file);
  if (const QByteArray kind = reader.missingDecoder(); !kind.isEmpty())
    throw CommandFailure(unreadable(
        path,
        translated(u"Qt's image format plugin for pictures of the kind \"%1\" is not installed")
            .arg(OdString::fromLatin1(kind))));
  if (reader.isCut()) throw CommandFailure(unreadable(path, translated(u"its end is missing")));
  QSize size = reader.toldSize();
  // Some formats tell their size only while they are decoded.
  if (size.isEmpty()) size = reader.read().size();
  if (size.isEmpty()) throw CommandFailure(unreadable(path, reader.errorString()));
  return {path, size};
}

/// The definition of a picture under its name; one that the drawing has already is used again, for
/// another file of that name a number is added.
OdDbObjectId definitionOf(OdDbDatabase& database, const Picture& picture, const OdString& wanted) {
  const OdDbDictionaryPtr all =
      OdDbRasterImageDef::createImageDictionary(database).openObject(OdDb::kForWrite);
  OdString name = wanted.isEmpty() ? odpath::titleOf(picture.path) : wanted;
  for (int number = 2; !all->getAt(name).isNull(); ++number) {
    const OdDbRasterImageDefPtr there = all->getAt(name).openObject();
    if (there && odpath::samePlace(there->activeFileName(), picture.path)) return there->objectId();
    name = QStringLiteral("%1 (%2)")
               .arg(wanted.isEmpty() ? odpath::titleOf(picture.path) : wanted)
               .arg(number);
  }
  const auto made = odrxMake<OdDbRasterImageDef>();
  made->setSourceFileName(picture.path);
  made->setSize(
      {static_cast<double>(picture.size.width()), static_cast<double>(picture.size.height())});
  made->setResolution({1.0 / picture.size.width(), 1.0 / picture.size.width()});
  return all->setAt(name, made);
}

/// At scale 1 a picture is one unit wide.
void addImage(CommandContext& context, const Picture& picture, const OdString& name,
              const OdGePoint3d& point, double scale, double rotation) {
  OdDbDatabase& database = context.database();
  const double width = scale;
  const double height = scale * picture.size.height() / picture.size.width();
  const auto image = odrxMake<OdDbRasterImage>();
  image->setImageDefId(definitionOf(database, picture, name));
  image->setImageSize(
      {static_cast<double>(picture.size.width()), static_cast<double>(picture.size.height())});
  image->setOrientation(point, OdGeVector3d{std::cos(rotation), std::sin(rotation), 0} * width,
                        OdGeVector3d{-std::sin(rotation), std::cos(rotation), 0} * height);
  addNewEntity(database, *image);
  if (oddb::isTooLargePicture(picture.size.width(), picture.size.height()))
    context.print(translated(u"%1 is too large to be shown: %2 by %3 pixels")
                      .arg(odpath::toPlatform(picture.path))
                      .arg(picture.size.width())
                      .arg(picture.size.height()));
  context.setLastPoint(point);
}

Task<void> insertTyped(CommandContext& context) {
  const Answer<OdString> file =
      co_await context.input().string({.text = u"Enter image file name", .allowBlanks = true});
  const Picture picture = pictureAt(context, file.value);
  const Answer<OdGePoint3d> point =
      co_await context.input().point({.text = u"Specify insertion point"});
  const Answer<double> scale = co_await context.input().real(
      {.text = u"Specify scale factor", .defaultValue = 1, .range = NumberRange::kPositive});
  const Answer<double> rotation = co_await context.input().angle(
      {.text = u"Specify rotation angle", .base = point.value, .defaultValue = 0});
  addImage(context, picture, OdString(), point.value, scale.value, rotation.value);
}

} // namespace

Task<void> insertRaster(CommandContext& context) {
  if (!context.parameters()) {
    co_await insertTyped(context);
    co_return;
  }
  const ParameterSet set(*context.parameters());
  const Picture picture = pictureAt(context, set.text(u"Path"));
  const double scale = set.number(u"Scale", 1);
  if (!(scale > 0) || !std::isfinite(scale))
    throw CommandFailure(translated(u"A picture cannot be inserted at the scale %1.").arg(scale));
  const Answer<OdGePoint3d> point =
      co_await context.input().point({.text = u"Specify insertion point"});
  addImage(context, picture, set.text(u"DefName"), point.value, scale, set.number(u"Rotation", 0));
}

} // namespace drafton
