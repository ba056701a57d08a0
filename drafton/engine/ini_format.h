// The text of a settings file.
#pragma once

#include "frame/string.h"

#include <QSettings>

#include <optional>

namespace drafton {

// Sections in brackets, lines `key=value` below them, comments behind `;` or `#` at the start of a
// line; UTF-8. Unlike in Qt's own format a value is the rest of the line whatever stands in it, so
// that lists of folders and Windows paths can be typed as they are. Only line breaks, and a per
// cent sign that would look like one, are written as %XX; a value with blanks at its ends stands in
// double quotes.

/// Reads a file; keys are "section/key", those of the section General have no section. False if a
/// line is no setting, or the bytes are no text; what could be read is in `map` all the same.
bool readIni(QIODevice& device, QSettings::SettingsMap& map);
bool writeIni(QIODevice& device, const QSettings::SettingsMap& map);

/// The format for QSettings, which merges and replaces the file safely.
QSettings::Format iniFormat();

/// A name that can stand in a key or section: signs with a meaning there are written as %XX.
OdString escapedIniName(const OdString& name);
OdString unescapedIniName(const OdString& name);

} // namespace drafton
