// What a picture file tells of itself before anybody decodes it.
#pragma once

#include <QByteArray>

#include <cstdint>

class QIODevice;

/// Decoders show what is left of a picture that is cut off and say so nowhere, or only in words
/// without the file's name. Who has to tell the user looks here first.
struct OdPictureFacts {
  /// The file's kind by its contents, as decoders name it ("png", "jpeg", "gif", "bmp", "tiff");
  /// empty for any other.
  QByteArray kind;
  /// Pixels as the header of a png, jpeg or bmp has them; 0 where none is found, and for others.
  std::int64_t width = 0, height = 0;
  /// The file ends before its first picture does, or a checksum of it is wrong.
  bool isCut = false;
};

/// Looks a file over, from its first byte on; the device stands at the start afterwards. Nothing is
/// decoded and little is in memory at a time. Of a device that cannot be read nothing is known.
OdPictureFacts oddbPictureFacts(QIODevice& device);
