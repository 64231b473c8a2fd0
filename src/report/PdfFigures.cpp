#include "report/PdfFigures.h"

#include <QtGui/QPainter>

namespace TARN {

namespace {

constexpr int NumberProperty = QTextFormat::UserProperty + 1;

} // namespace

void PdfFigures::add(Figure figure, QTextCharFormat& format)
{
    format.setObjectType(Type);
    format.setProperty(NumberProperty, static_cast<int>(mFigures.size()));
    mFigures.push_back(std::move(figure));
}

PdfFigures::Figure& PdfFigures::figureOf(const QTextFormat& format)
{
    return mFigures[static_cast<std::size_t>(format.intProperty(NumberProperty))];
}

QSizeF PdfFigures::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    return figureOf(format).size;
}

void PdfFigures::drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                            const QTextFormat& format)
{
    if (!painter->clipBoundingRect().intersects(rect.adjusted(0.0, 1.0, 0.0, -1.0))) {
        return; // of another page, and what was painted has clips of its own
    }
    painter->save();
    painter->translate(rect.topLeft());
    QPicture& picture = figureOf(format).picture;
    // It would make up for the finer grid of the paper, which the painter does already.
    painter->scale(double(picture.logicalDpiX()) / painter->device()->logicalDpiX(),
                   double(picture.logicalDpiY()) / painter->device()->logicalDpiY());
    picture.play(painter);
    painter->restore();
}

} // namespace TARN
