// Compiled translations for tests, written byte by byte.
#pragma once

#include "frame/string.h"

#include <QByteArray>
#include <QDataStream>
#include <QIODevice>
#include <QList>
#include <QMap>

/// The bytes of a compiled Qt translation that knows these texts, English to translated, in any
/// context.
inline QByteArray catalogueOf(const QMap<QByteArray, OdString>& texts) {
  constexpr quint8 kHashes = 0x42, kMessages = 0x69, kTranslation = 3, kSource = 6, kEnd = 1;
  // The hash by which texts are looked up is the one of object files.
  const auto hashOf = [](const QByteArray& text) {
    quint32 hash = 0;
    for (const char c : text) {
      hash = (hash << 4) + static_cast<quint8>(c);
      const quint32 high = hash & 0xf0000000u;
      hash ^= high >> 24;
      hash &= ~high;
    }
    return hash == 0 ? 1 : hash;
  };
  QByteArray messages;
  QDataStream messageStream(&messages, QIODevice::WriteOnly);
  QMultiMap<quint32, quint32> places;
  for (auto at = texts.begin(); at != texts.end(); ++at) {
    places.insert(hashOf(at.key()), static_cast<quint32>(messages.size()));
    messageStream << kTranslation << static_cast<quint32>(at.value().size() * 2);
    for (const QChar c : at.value()) messageStream << c.unicode();
    messageStream << kSource << static_cast<quint32>(at.key().size());
    messageStream.writeRawData(at.key().constData(), static_cast<int>(at.key().size()));
    messageStream << kEnd;
  }
  QByteArray hashes;
  QDataStream hashStream(&hashes, QIODevice::WriteOnly);
  for (auto at = places.begin(); at != places.end(); ++at) hashStream << at.key() << at.value();

  QByteArray file = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
  QDataStream stream(&file, QIODevice::WriteOnly | QIODevice::Append);
  stream << kHashes << hashes << kMessages << messages;
  return file;
}
