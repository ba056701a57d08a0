// Tags that objects keep as lines, one by one. Not for use outside of the library.
#pragma once

#include <QByteArray>

#include <vector>

/// The tags of kept lines, to be looked at and changed. Unchanged, they give the same lines.
class OdDbKeptTags {
 public:
  struct Tag {
    int code;
    QByteArray value;
  };

  explicit OdDbKeptTags(const QByteArray& lines = {});
  QByteArray lines() const;

  /// The first value of a code; null if there is none.
  const QByteArray* find(int code) const;
  /// Replaces the first value of a code, or adds it at the end.
  void set(int code, const QByteArray& value);
  /// A number; `otherwise` if it is missing or no finite number.
  double real(int code, double otherwise) const;
  void setReal(int code, double value);

  std::vector<Tag> tags;
};
