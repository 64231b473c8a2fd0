#pragma once

#include <QtCore/QVariant>
#include <QtGui/QBrush>
#include <QtGui/QColor>

namespace TARN {

/// Background of time cells.
inline const QColor TimeCellColor(230, 230, 230);

/// What was worst in a line that stands for much.
inline const QColor LimitColor(0xFF, 0x4A, 0x4A);
inline const QColor WarningColor(0xFF, 0xB8, 0x20);

/// Whether a cell of this colour takes the table's own colours instead: white means a normal
/// value and is right in a light theme only, an invalid colour is none.
inline bool isPlainCell(const QColor& color)
{
    return !color.isValid() || color == QColor(Qt::white);
}

/// Background role of a cell.
inline QVariant backgroundOf(const QColor& color)
{
    return isPlainCell(color) ? QVariant() : QVariant(QBrush(color));
}

/// Foreground role of a cell: black or white, whichever stands out from its colour.
inline QVariant foregroundOn(const QColor& color)
{
    constexpr int MidGrey = 128;
    if (isPlainCell(color)) {
        return {};
    }
    return QBrush(qGray(color.rgb()) < MidGrey ? Qt::white : Qt::black);
}

} // namespace TARN
