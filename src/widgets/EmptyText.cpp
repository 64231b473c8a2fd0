#include "widgets/EmptyText.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QPainter>
#include <QtGui/QTextOption>

namespace TARN {

EmptyText::EmptyText(const QFont& font)
{
    constexpr int TextSize = 15; // pixels
    QFont large = font;
    large.setPixelSize(TextSize);
    mDocument.setDefaultFont(large);
    mDocument.setDefaultTextOption(QTextOption(Qt::AlignHCenter));
    mDocument.setDocumentMargin(0.0);
    mDocument.setUndoRedoEnabled(false);
}

void EmptyText::setText(const QString& text)
{
    if (text != mText) {
        mText = text;
        mColor = {};
    }
}

QString EmptyText::spokenText() const
{
    static const QRegularExpression Mark("</?a( [^>]*)?>");
    return QString(mText).remove(Mark);
}

void EmptyText::paint(QPainter& painter, const QRectF& room, const QColor& color,
                      const QColor& ground)
{
    constexpr double Around = 6.0; // pixels
    if (color != mColor) {
        mColor = color;
        mDocument.setHtml(withLinks(mText, color));
    }
    mDocument.setTextWidth(room.width());
    mCorner = room.topLeft() + QPointF(0.0, (room.height() - mDocument.size().height()) / 2.0);
    QRectF plate(QPointF(), QSizeF(mDocument.idealWidth(), mDocument.size().height()));
    plate.moveCenter(room.center());
    painter.fillRect(plate.adjusted(-Around, -Around, Around, Around), ground);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, color);
    painter.translate(mCorner);
    mDocument.documentLayout()->draw(&painter, context);
    painter.translate(-mCorner);
}

QString EmptyText::linkAt(QPointF place) const
{
    return mDocument.documentLayout()->anchorAt(place - mCorner);
}

QString withLinks(const QString& text, const QColor& color)
{
    static const QRegularExpression Link("&lt;a href=&quot;(\\w+)&quot;&gt;(.*?)&lt;/a&gt;");
    QString rich = text.toHtmlEscaped(); // names that it holds may look like markup
    return rich.replace('\n', "<br>")
        .replace(Link, QString("<a style=\"color:%1\" href=\"\\1\">\\2</a>").arg(color.name()));
}

} // namespace TARN
