#include "widgets/TextLine.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace TARN {

TextLine::TextLine(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void TextLine::setText(const QString& text)
{
    if (text != mText) {
        mText = text;
        setAccessibleName(text);
        update();
    }
}

QSize TextLine::sizeHint() const
{
    return {0, fontMetrics().height()};
}

void TextLine::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                          isEnabled(), fontMetrics().elidedText(mText, Qt::ElideRight, width()),
                          foregroundRole());
}

} // namespace TARN
