#include "graph/CompanionDrawing.h"

#include "graph/CurveText.h"
#include "graph/GraphPalette.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

struct CompanionTexts
{
    Q_DECLARE_TR_FUNCTIONS(CompanionDrawing)
};

GraphColor mixed(const GraphColor& color, const GraphColor& back)
{
    constexpr float Part = 0.45F;
    const auto mix = [](float a, float b) { return a * Part + b * (1.0F - Part); };
    return {mix(color.red, back.red), mix(color.green, back.green), mix(color.blue, back.blue)};
}

} // namespace

CompanionDrawing::CompanionDrawing(const GraphModel& model, const GraphStyle& style,
                                   GraphCanvas& canvas, TextLayout& texts)
    : mModel(model), mStyle(style), mCanvas(canvas), mTexts(texts), mView(model.layout().view())
{}

/// A faint line between the dashes: no spike is lost there.
void CompanionDrawing::drawReference(const ParStruct& curve, const GraphColor& color)
{
    constexpr float DotSize = 2.0F;
    if (curve.reference.samples == nullptr) {
        return;
    }
    const GraphColor faint = mixed(color, mStyle.back);
    mCanvas.clip(mView.x0, curve.strip.y0, mView.width, curve.strip.height);
    mLine.buildLine(curve.reference.frames.frames(), curve.strip,
                    mModel.layout().reference().viewOf(mView), false);
    for (const GraphLine::Strip& strip : mLine.strips()) {
        const float* points = mLine.points().data() + std::ptrdiff_t(strip.first) * 2;
        if (strip.count > 1) {
            mCanvas.dashed(points, strip.count, color, faint);
        } else {
            mCanvas.dots(points, 1, color, DotSize); // a line needs two
        }
    }
    mCanvas.clipNone();
}

void CompanionDrawing::drawDifference(const ParStruct& curve, const GraphColor& color)
{
    constexpr float Tint = 0.08F;
    const GraphStrip& place = curve.differenceStrip;
    if (curve.difference.samples == nullptr || place.height <= 0.0) {
        return;
    }
    const double right = mView.x0 + mView.width;
    const bool isOfAll = mModel.layout().displayMode() == DisplaySingle;
    if (!isOfAll) {
        mCanvas.fill(mView.x0, place.y0, right, place.y0 + place.height, mStyle.fore, Tint);
    }
    mCanvas.clip(mView.x0, place.y0, mView.width, place.height);
    const auto zero = static_cast<float>(mCanvas.sharp(place.toPixel(0.0)));
    mCanvas.dotted({static_cast<float>(mView.x0), zero, static_cast<float>(right), zero},
                   mStyle.fore);
    drawLine(curve.difference.frames.frames(), place, color);
    mCanvas.clipNone();
    if (!isOfAll) {
        addLegend(differenceText(curve), place, color);
    }
}

void CompanionDrawing::drawLine(std::span<const FrameType> frames, const GraphStrip& place,
                                const GraphColor& color)
{
    constexpr float DotSize = 3.0F;
    mLine.buildLine(frames, place, mView);
    for (const GraphLine::Strip& strip : mLine.strips()) {
        const float* points = mLine.points().data() + std::ptrdiff_t(strip.first) * 2;
        if (strip.count > 1) {
            mCanvas.strip(points, strip.count, color);
        } else {
            mCanvas.dots(points, 1, color, DotSize);
        }
    }
    mCanvas.lines(mLine.fillings(), color);
}

void CompanionDrawing::drawTitle(const GraphStrip& place)
{
    addLegend(CompanionTexts::tr("\u0394 flight minus reference"), place, mStyle.fore);
}

void CompanionDrawing::addLegend(const QString& text, const GraphStrip& place,
                                 const GraphColor& color)
{
    constexpr double Gap = 5.0;
    const double line = mTexts.lineHeight();
    const double top = mModel.layout().size().height() - place.y0 - place.height +
                       std::max(0.0, std::min(Gap, (place.height - line) / 2.0));
    const double bottom = std::min(mView.y0, place.y0);
    const double height = mView.y0 + mView.height - bottom;
    const QRectF plot(mView.x0, mModel.layout().size().height() - bottom - height, mView.width,
                      height);
    mTexts.addNear(text, {mView.x0 + Gap, top}, legibleOn(mStyle.back, color), plot);
}

QString CompanionDrawing::differenceText(const ParStruct& curve) const
{
    const QString text = "\u0394 " + mTexts.elided(curve.name, mView.width / 2.0);
    if (!mStyle.valuesOn) {
        return text;
    }
    const QString value = differenceTextOf(curve, mModel.cursor());
    return text + "   " + (value.isEmpty() ? "---" : (value + " " + curve.unit).trimmed());
}

QString CompanionDrawing::referenceText(const ParStruct& curve) const
{
    if (curve.reference.samples == nullptr || !mModel.layout().reference().isShown) {
        return {};
    }
    const QString value =
        referenceTextOf(curve, mModel.cursor() - mModel.layout().reference().shift, mStyle);
    return CompanionTexts::tr("ref. %1").arg(value.isEmpty() ? "---" : value);
}

} // namespace TARN
