#include "widgets/ElidedLabel.h"

#include "base/PlainTip.h"

namespace TARN {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedLabel::setFullText(const QString& text)
{
    mText = text;
    setAccessibleName(text);
    elide();
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide()
{
    const QString shown = fontMetrics().elidedText(mText, Qt::ElideMiddle, width());
    setText(shown);
    setToolTip(shown == mText ? QString() : plainTip(mText));
}

} // namespace TARN
