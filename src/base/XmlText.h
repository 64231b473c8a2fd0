#pragma once

#include <QtCore/QString>
#include <QtXml/QDomDocument>

namespace TARN {

/// The text form of a document of elements, texts and processing instructions, four blanks a
/// level, as the toolkit lays it out, with two differences: attributes stand in the order of their
/// names (the toolkit keeps them in a hash, so the same document would give other bytes in the next
/// run), and characters that XML can't carry become U+FFFD (the file could not be read back
/// otherwise).
QString xmlText(const QDomDocument& document);

/// A text as it stands in an element, or between the quotation marks of an attribute.
QString xmlEscaped(const QString& text, bool inAttribute);

} // namespace TARN
