#pragma once

#include <QtGui/QTextDocument>

class QPainter;

namespace TARN {

/// Stands in the middle of a view that has nothing to show and says why, and what to do; the view
/// paints it itself. Its text may hold links.
class EmptyText
{
public:
    explicit EmptyText(const QFont& font);

    /// Plain text but for its links; lines end at line feeds.
    void setText(const QString& text);
    const QString& text() const { return mText; }
    QString spokenText() const; ///< without the marks of links

    /// In the middle of a room, in a color on a ground.
    void paint(QPainter& painter, const QRectF& room, const QColor& color, const QColor& ground);

    /// The link at a place of the view, as it was painted last; empty where there is none.
    QString linkAt(QPointF place) const;

private:
    QString mText;
    QColor mColor;
    QPointF mCorner;
    QTextDocument mDocument; ///< laid out when it is painted
};

/// A text whose links are to be seen as links. They are colored in the text itself: rich text takes
/// their color from the application.
QString withLinks(const QString& text, const QColor& color);

} // namespace TARN
