#include "widgets/EmptyPlace.h"

namespace TARN {

EmptyPlace::EmptyPlace(QWidget* view) : QLabel(view)
{
    constexpr int TextSize = 15; // pixels
    QFont large = font();
    large.setPixelSize(TextSize);
    setFont(large);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setTextFormat(Qt::RichText);
    setForegroundRole(QPalette::PlaceholderText);
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setFocusPolicy(Qt::NoFocus);
    hide();
}

void EmptyPlace::setText(const QString& text)
{
    if (text == mText) {
        return; // a repaint for nothing
    }
    mText = text;
    QString rich = text;
    QLabel::setText(rich.replace('\n', "<br>"));
}

void EmptyPlace::setTextColor(const QColor& color)
{
    QPalette colors = palette();
    if (colors.color(QPalette::Link) == color) {
        return;
    }
    colors.setColor(QPalette::PlaceholderText, color);
    colors.setColor(QPalette::Link, color);
    setPalette(colors);
}

} // namespace TARN
