#pragma once

#include <QtCore/QString>

namespace TARN {

/// A whole number in groups of three digits, set apart by narrow blanks that no line breaks at:
/// no language of ours reads them as a decimal mark.
inline QString countText(qint64 count)
{
    constexpr QChar Blank(0x202F);
    QString text = QString::number(count);
    const qsizetype sign = text.startsWith('-') ? 1 : 0;
    for (qsizetype at = text.size() - 3; at > sign; at -= 3) {
        text.insert(at, Blank);
    }
    return text;
}

} // namespace TARN
