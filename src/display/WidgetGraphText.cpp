#include "base/ClockTime.h"
#include "display/WidgetGraph.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>

#include <algorithm>

using namespace TARN;

namespace {

constexpr GraphColor White{1.0F, 1.0F, 1.0F};
constexpr double Gap = 5.0; // pixels between a line and its text

QColor toColor(const GraphColor& color)
{
    return QColor::fromRgbF(color.red, color.green, color.blue);
}

} // namespace

/// The plot area in pixels from the upper left corner, as text is painted.
QRectF WidgetGraph::plotBox() const
{
    const GraphView& view = mModel.view();
    return {view.x0, height() - view.y0 - view.height, view.width, view.height};
}

const ParStruct* WidgetGraph::keyCurve() const
{
    const ParStruct* curve = mModel.curve(mKeyCurve);
    return curve != nullptr && curve->active ? curve : nullptr;
}

/// Pixel row of the cursor's value.
double WidgetGraph::keyCursorY() const
{
    const GraphView& view = mModel.view();
    const ParStruct* curve = mModel.displayMode() == DisplaySplit ? keyCurve() : nullptr;
    return curve != nullptr ? view.yToViewport(*curve, mKeyCursor) : view.yToViewport(mKeyCursor);
}

void WidgetGraph::drawCursor()
{
    constexpr double Overhang = 10.0;
    const GraphView& view = mModel.view();
    const double right = view.x0 + view.width;
    const double top = view.y0 + view.height;
    const double x = view.xToViewport(mModel.cursor());
    const double y = keyCursorY();
    const bool inside = x >= view.x0 && x <= right;
    std::vector<float> points;
    if (inside) {
        const auto sharp = static_cast<float>(mCanvas.sharp(x));
        points = {sharp, static_cast<float>(view.y0 - Overhang), sharp, static_cast<float>(top)};
    }
    if (mKeyCursorShown && y >= view.y0 && y <= top) {
        const auto sharp = static_cast<float>(mCanvas.sharp(y));
        points.insert(points.end(), {static_cast<float>(view.x0 - Overhang), sharp,
                                     static_cast<float>(right), sharp});
    }
    mCanvas.lines(points, White);
    if (mKeyCursorShown && inside) {
        drawCursorValues(x, y);
    }
}

void WidgetGraph::drawCursorValues(double x, double y)
{
    const QRectF plot = plotBox();
    const auto add = [&](const QString& text, double top, const GraphColor& color) {
        const double width = mTexts.sizeOf(text).width();
        const bool fits = x + Gap + width <= plot.right();
        mTexts.addNear(text, {fits ? x + Gap : x - Gap - width, top}, color, plot);
    };
    const double lineHeight = mTexts.sizeOf("0").height();
    const QTime time = clockTime(millisecondsOf(mModel.cursor()));
    add(time.toString("hh:mm:ss.zzz") + QString::asprintf("/%.2f", mKeyCursor),
        height() - y - Gap - lineHeight, White);
    for (unsigned i = 0; i < mModel.count(); ++i) {
        const ParStruct& curve = *mModel.curve(i);
        double value = 0.0;
        if (curve.active && mModel.getValue(i, mModel.cursor(), value)) {
            const double row = height() - mModel.view().yToViewport(curve, value);
            add(QString::asprintf("%.2f", value), row - lineHeight / 2.0, curve.color);
        }
    }
}

void WidgetGraph::drawLabels()
{
    constexpr double ColumnGap = 20.0;
    const QRectF plot = plotBox();
    const bool split = mModel.displayMode() == DisplaySplit;
    const double lineHeight = mTexts.sizeOf("0").height();
    const QFontMetrics metrics = fontMetrics();
    double left = plot.left() + Gap;
    double top = plot.top() + Gap;
    double widest = 0.0;
    for (unsigned i = 0; i < mModel.count(); ++i) {
        const ParStruct& curve = *mModel.curve(i);
        if (!curve.active) {
            continue;
        }
        if (split) {
            top = height() - curve.viewportY - curve.viewportHeight +
                  std::min(Gap, (curve.viewportHeight - lineHeight) / 2.0);
            top = std::clamp(top, plot.top(), std::max(plot.top(), plot.bottom() - lineHeight));
        } else if (top + lineHeight > plot.bottom()) {
            left += widest + ColumnGap; // another column
            top = plot.top() + Gap;
            widest = 0.0;
        }
        double value = 0.0;
        const bool known = mModel.getValue(i, mModel.cursor(), value);
        const int longest = static_cast<int>(plot.width() / 2.0);
        const QString text = metrics.elidedText(curve.name, Qt::ElideMiddle, longest) + "   " +
                             (known ? QString::asprintf("%f", value) : QString("---"));
        mTexts.add(text, {left, top}, curve.color, plot, true);
        widest = std::max(widest, mTexts.sizeOf(text).width());
        top += lineHeight + Gap;
    }
}

void WidgetGraph::paintTexts(QPainter& painter) const
{
    painter.setFont(font());
    const double ascent = QFontMetricsF(font()).ascent();
    QColor shade = toColor(mBackColor);
    shade.setAlpha(120);
    for (const GraphTexts::Text& text : mTexts.texts()) {
        if (text.backed) {
            painter.fillRect(text.box, shade);
        }
        painter.setPen(toColor(text.color));
        painter.drawText(text.box.topLeft() + QPointF(0.0, ascent), text.text);
    }
    if (!mModel.hasSamples()) {
        constexpr double Margin = 24.0;
        constexpr int TextSize = 15; // pixels
        QFont large = QGuiApplication::font();
        large.setPixelSize(TextSize);
        painter.setFont(large);
        painter.setPen(toColor(mBackColor).lightness() < 128 ? Qt::lightGray : Qt::darkGray);
        painter.drawText(plotBox().adjusted(Margin, Margin, -Margin, -Margin),
                         Qt::AlignCenter | Qt::TextWordWrap, mEmptyText);
    }
}
