#include "widgets/EmptyPlace.h"

#include <QtCore/QRegularExpression>

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

/// Links are colored in the text itself: rich text takes their color from the application. A text
/// without links is a plain one, as a rich one is painted twice each time that it is laid out.
void EmptyPlace::layText()
{
    if (!mText.contains("<a ")) {
        setTextFormat(Qt::PlainText);
        QLabel::setText(mText);
        return;
    }
    setTextFormat(Qt::RichText);
    static const QRegularExpression Link("&lt;a href=&quot;(\\w+)&quot;&gt;(.*?)&lt;/a&gt;");
    const QString color = palette().color(QPalette::Link).name();
    QString rich = mText.toHtmlEscaped(); // names that it holds may look like markup
    QLabel::setText(
        rich.replace('\n', "<br>")
            .replace(Link, QString("<a style=\"color:%1\" href=\"\\1\">\\2</a>").arg(color)));
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
