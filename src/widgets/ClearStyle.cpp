#include "widgets/ClearStyle.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace TARN {

ClearStyle::ClearStyle() : QProxyStyle("Fusion") {}

void ClearStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const
{
    constexpr int Dark = 128;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isBox = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
    const QColor background = option->palette.color(QPalette::Base);
    if (isBox && background.lightness() < Dark) {
        painter->save();
        QColor outline = option->palette.color(QPalette::Text);
        outline.setAlphaF(0.45F);
        painter->setPen(outline);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        painter->restore();
    }
}

QPixmap ClearStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                        const QStyleOption* option) const
{
    if (mode != QIcon::Selected) {
        return QProxyStyle::generatedIconPixmap(mode, pixmap, option);
    }
    QPixmap selected = pixmap;
    QPainter painter(&selected);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF({}, pixmap.deviceIndependentSize()),
                     option->palette.color(QPalette::HighlightedText));
    return selected;
}

} // namespace TARN
