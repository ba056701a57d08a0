// Texts and code pages of files.
#pragma once

#include "frame/string.h"

#include <QByteArray>

#include <optional>
#include <string_view>

namespace oddxf {

/// The name under which the platform knows a code page of $DWGCODEPAGE ("ANSI_1252"); empty for one
/// that drawings do not have.
QByteArray encodingOf(std::string_view codePage);
/// Turns \U+XXXX, by which older files tell characters outside of their code page, into these.
OdString withoutEscapes(const OdString& text);
/// The text without the blanks around it.
std::string_view trimmed(std::string_view text);
/// The number that the text is, which may be none that is finite; nothing if it is no number.
std::optional<double> realOf(std::string_view text);
/// Control characters as ^J and the like, since a line break would end the value.
OdString oneLine(const OdString& text);
/// Adds a tag as the lines that the writer writes.
void addLines(QByteArray& lines, int code, std::string_view value);
/// A number as files have it: the shortest form that reads back as the same, with a point or an
/// exponent. The text stands in `buffer`.
constexpr std::size_t kRealDigits = 40;
std::string_view realText(char (&buffer)[kRealDigits], double value);
/// The same at `to`, where as many have to fit; gives the end.
char* putReal(char* to, double value);
/// Adds the line of a group code.
void addCode(QByteArray& lines, int code);

} // namespace oddxf
