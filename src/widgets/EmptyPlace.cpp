#include "widgets/EmptyPlace.h"

#include "widgets/EmptyText.h"

namespace TARN {

EmptyPlace::EmptyPlace(QWidget* view) : QLabel(view)
{
    constexpr int TextSize = 15; // pixels
    QFont large = font();
    large.setPixelSize(TextSize);
    setFont(large);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
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
    layText();
}

/// A text without links is a plain one, as a rich one is painted twice each time that it is laid
/// out.
void EmptyPlace::layText()
{
    const bool hasLinks = mText.contains("<a ");
    setTextFormat(hasLinks ? Qt::RichText : Qt::PlainText);
    QLabel::setText(hasLinks ? withLinks(mText, palette().color(QPalette::Link)) : mText);
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
    layText();
}

} // namespace TARN
