// What files of patterns and of line types have in common.
#pragma once

#include "frame/string.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace odpattern {

/// A line of a file that says something.
struct FileLine {
  int number = 0; ///< from 1
  OdString text;  ///< without blanks around it and without a comment line
};

/// The lines that are neither empty nor comments (`;` and `;;` in front). The bytes are UTF-8, with
/// or without a mark, or Latin-1 where they are no UTF-8.
std::vector<FileLine> fileLines(const QByteArray& bytes);
/// The bytes of a file by its stored path. Raises OdFileError.
QByteArray fileBytes(const OdString& path);
/// The numbers between the commas of a text; nothing if one is no finite number. Texts behind `;`
/// are comments.
std::optional<std::vector<double>> numbers(const OdString& text);
/// "*NAME,description" in its parts; nothing for another line or an empty name.
std::optional<std::pair<OdString, OdString>> headLine(const OdString& text);
/// A message about a line.
OdString lineError(const FileLine& line, const OdString& reason);

} // namespace odpattern
