// Wide strings of the object frame.
#pragma once

#include <QString>
#include <QStringList>

/// UTF-16 text. The frame's string is Qt's, so that nothing is converted at the window's edge.
using OdString = QString;
/// The host's name for the same thing.
using CXStringW = QString;
