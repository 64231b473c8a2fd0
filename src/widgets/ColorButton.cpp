#include "widgets/ColorButton.h"

#include <QtGui/QPainter>
#include <QtWidgets/QColorDialog>

namespace TARN {

ColorButton::ColorButton(const QString& title, QWidget* parent) : QPushButton(parent), mTitle(title)
{
    constexpr int Width = 60;
    setMinimumWidth(Width);
    setToolTip(title);
    setAccessibleName(title);
    connect(this, &QPushButton::clicked, this, &ColorButton::slotClicked);
}

void ColorButton::setColor(const std::string& digits)
{
    const QString name = "#" + QString::fromStdString(digits);
    mColor = QColor::isValidColor(name) ? QColor(name) : QColor();
    update();
}

void ColorButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    if (!mColor.isValid()) {
        return;
    }
    constexpr int Margin = 6; // leaves the button's frame and focus mark visible
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(isEnabled() ? mColor : QColor(Qt::transparent));
    painter.drawRect(rect().adjusted(Margin, Margin, -Margin - 1, -Margin - 1));
}

void ColorButton::slotClicked()
{
    const QColor color = QColorDialog::getColor(mColor, this, mTitle);
    if (color.isValid()) {
        mColor = color;
        update();
        Q_EMIT signalColor(color.name().mid(1));
    }
}

} // namespace TARN
