#include "graph/LegendDrawing.h"

#include "graph/CurveText.h"
#include "graph/GraphPalette.h"

#include <algorithm>

namespace TARN {

namespace {

constexpr double Gap = 5.0; // between a line and its text

} // namespace

LegendDrawing::LegendDrawing(const GraphModel& model, const GraphStyle& style,
                             const CompanionDrawing& companions, TextLayout& texts)
    : mModel(model), mStyle(style), mCompanions(companions), mTexts(texts),
      mHeight(model.layout().size().height())
{}

/// The plot area in pixels from the upper left corner, as text is painted.
QRectF LegendDrawing::plotBox() const
{
    const GraphView& view = mModel.layout().view();
    return {view.x0, mHeight - view.y0 - view.height, view.width, view.height};
}

QString LegendDrawing::legendOf(const ParStruct& curve, double room) const
{
    const QString name = mTexts.elided(curve.name, room);
    if (!mStyle.valuesOn) {
        return name;
    }
    QString value = shownText(curve, mModel.cursor(), mStyle, "%f");
    if (value.isEmpty()) {
        value = "---";
    } else if (!curve.unit.isEmpty()) {
        value += " " + curve.unit;
    }
    const QString other = mCompanions.referenceText(curve);
    return name + "   " + value + (other.isEmpty() ? QString() : "   " + other);
}

void LegendDrawing::addLegend(unsigned k, QPointF place, const QRectF& plot)
{
    const ParStruct& curve = *mModel.curves().curve(k);
    const QString text = legendOf(curve, plot.width() / 2.0);
    const auto alert = mStyle.thresholdsOn && mStyle.valuesOn && curve.facts != nullptr
                           ? curve.facts->alertAt(mModel.cursor())
                           : std::nullopt;
    mTexts.add({text, QRectF(place, mTexts.sizeOf(text)),
                legibleOn(alert.value_or(mStyle.back), curve.color), true, alert, k},
               plot);
}

void LegendDrawing::draw()
{
    constexpr double ColumnGap = 20.0;
    const QRectF plot = plotBox();
    const bool split = mModel.layout().displayMode() == DisplaySplit;
    const double lineHeight = mTexts.lineHeight();
    double left = plot.left() + Gap;
    double top = plot.top() + Gap;
    double widest = 0.0;
    for (const unsigned k : mModel.curves().shown()) {
        const ParStruct& curve = *mModel.curves().curve(k);
        if (split) {
            top = mHeight - curve.strip.y0 - curve.strip.height +
                  std::min(Gap, (curve.strip.height - lineHeight) / 2.0);
            top = std::clamp(top, plot.top(), std::max(plot.top(), plot.bottom() - lineHeight));
        } else if (top + lineHeight > plot.bottom()) {
            left += widest + ColumnGap; // another column
            top = plot.top() + Gap;
            widest = 0.0;
        }
        addLegend(k, {left, top}, plot);
        widest = std::max(widest, mTexts.sizeOf(legendOf(curve, plot.width() / 2.0)).width());
        top += lineHeight + Gap;
    }
    drawHiddenLabels();
}

/// The names of hidden curves, so that they can be shown again, along the plot's lower edge.
void LegendDrawing::drawHiddenLabels()
{
    constexpr double NameGap = 12.0;
    const QRectF plot = plotBox();
    const double top = plot.bottom() - Gap - mTexts.lineHeight();
    double right = plot.right() - Gap;
    for (const unsigned k : mModel.curves().order()) {
        const ParStruct& curve = *mModel.curves().curve(k);
        if (curve.active && curve.hidden) {
            const QString text = "(" + mTexts.elided(curve.name, plot.width() / 4.0) + ")";
            const QSizeF size = mTexts.sizeOf(text);
            right -= size.width();
            mTexts.add({text, QRectF(QPointF(right, top), size),
                        legibleOn(mStyle.back, mStyle.grid), true, std::nullopt, k},
                       plot);
            right -= NameGap;
        }
    }
}

} // namespace TARN
