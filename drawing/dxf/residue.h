// Tags that are kept because nobody understands them.
#pragma once

#include <QByteArray>

#include <string_view>
#include <utility>
#include <vector>

/// What an object's file entry has beyond what its class understands, as lines that the writer can
/// put out again. Few objects have any.
struct OdDbDxfResidue {
  QByteArray groups; ///< reactors, extension dictionary and the like, in braces before the owner
  /// Tags by the subclass that they stand in; an empty name is before the first subclass.
  std::vector<std::pair<QByteArray, QByteArray>> known;
  QByteArray tail;  ///< subclasses that the class does not know, with their markers
  QByteArray xdata; ///< extended data

  /// Gives back room for further lines.
  void squeeze() {
    groups.squeeze();
    tail.squeeze();
    xdata.squeeze();
    known.shrink_to_fit();
    for (auto& [name, tags] : known) tags.squeeze();
  }
  /// The lines of one subclass; null if there are none.
  const QByteArray* of(std::string_view subclass) const {
    for (const auto& [name, tags] : known)
      if (std::string_view(name.constData(), static_cast<std::size_t>(name.size())) == subclass)
        return &tags;
    return nullptr;
  }
  QByteArray& edit(std::string_view subclass) {
    if (const QByteArray* found = of(subclass)) return const_cast<QByteArray&>(*found);
    known.emplace_back(QByteArray(subclass.data(), static_cast<qsizetype>(subclass.size())),
                       QByteArray());
    return known.back().second;
  }
};
