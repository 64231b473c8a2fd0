#pragma once

#include <QtCore/QStringList>

#include <iosfwd>

namespace TARN {

/// Prints rows in columns as wide as their widest text; numbers stand to the right. What would
/// break a line or steer a terminal is left out.
void printTable(const QList<QStringList>& rows, std::ostream& out);

/// The same for a text of its own.
QString onOneLine(const QString& text);

} // namespace TARN
