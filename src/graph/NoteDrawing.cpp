#include "graph/NoteDrawing.h"

#include "graph/GraphPalette.h"

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr double LeastWidth = 2.0; ///< pixels of what has a time without a length

GraphColor colorOf(const Episode& episode)
{
    if (episode.peak && episode.peak->color.isValid()) {
        return GraphColor::of(episode.peak->color);
    }
    return episode.state == StateLimit ? GraphColor{1.0F, 0.4F, 0.4F}
                                       : GraphColor{1.0F, 0.9F, 0.4F};
}

/// The name of a state without its number.
QString nameOf(const QString& words)
{
    const qsizetype colon = words.indexOf(": ");
    return colon < 0 ? words : words.mid(colon + 2);
}

} // namespace

NoteDrawing::NoteDrawing(const GraphModel& model, const GraphStyle& style, GraphCanvas& canvas,
                         TextLayout& texts)
    : mModel(model), mStyle(style), mCanvas(canvas), mTexts(texts), mView(model.layout().view()),
      mPlaces(model, style)
{}

/// Of the plot, where the time is out of sight its edge.
double NoteDrawing::column(double time) const
{
    return std::clamp(mView.xToViewport(time), mView.x0, mView.x0 + mView.width);
}

void NoteDrawing::drawThresholds(const ParStruct& curve)
{
    constexpr float NormalBand = 0.06F;
    constexpr float AlertBand = 0.16F;
    constexpr float NormalLine = 0.3F;
    constexpr float AlertLine = 0.8F;
    constexpr float OnLight = 2.5F; // pastel colours hardly show on white
    if (!mStyle.thresholdsOn || curve.facts == nullptr) {
        return;
    }
    const GraphStrip& strip = curve.strip;
    const double top = strip.y0 + strip.height;
    const double right = mView.x0 + mView.width;
    const auto& levels = curve.facts->levels();
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const CurveFacts::Level& level = levels[i];
        const double low = strip.toPixel(level.value);
        const double high = i + 1 < levels.size() ? strip.toPixel(levels[i + 1].value) : top;
        const double from = std::clamp(low, strip.y0, top);
        const double to = std::clamp(high, strip.y0, top);
        if (level.color && to > from) {
            const float alpha = level.state == StateOk ? NormalBand : AlertBand;
            mCanvas.fill(mView.x0, from, right, to, *level.color,
                         mStyle.isLight() ? alpha * OnLight : alpha);
        }
        if (low >= strip.y0 && low < top) {
            const GraphColor color = level.color.value_or(mStyle.fore);
            const double y = std::floor(low);
            mCanvas.fill(mView.x0, y, right, y + 1.0,
                         mStyle.isLight() ? legibleOn(mStyle.back, color) : color,
                         level.state == StateOk ? NormalLine : AlertLine);
        }
    }
}

void NoteDrawing::drawEpisodes(const ParStruct& curve)
{
    if (!mStyle.eventsOn || curve.facts == nullptr) {
        return;
    }
    const double bottom = mPlaces.barBottom(curve);
    double drawn = -1.0;
    double drawnWorst = -1.0; // of those at their limit
    for (const Episode* episode : mModel.hints().notes.episodesOf(curve.facts->parameter())) {
        if (episode->end < mView.xmin || episode->start > mView.xmax) {
            continue;
        }
        const double left = std::floor(column(episode->start));
        const double right = std::max(std::ceil(column(episode->end)), left + LeastWidth);
        // The worst of those that share a column is not hidden by the others.
        const bool isWorst = episode->state == StateLimit;
        if (right > (isWorst ? drawnWorst : drawn)) {
            mCanvas.fill(left, bottom, right, bottom + NotePlaces::BarHeight, colorOf(*episode));
            drawn = std::max(drawn, right);
            drawnWorst = isWorst ? right : drawnWorst;
        }
    }
}

/// The name of each state stands where it begins, where it lasts long enough.
void NoteDrawing::drawWords(const ParStruct& curve)
{
    constexpr double Gap = 3.0; // pixels
    if (!mStyle.wordsOn || curve.facts == nullptr || !curve.facts->hasWords()) {
        return;
    }
    const auto frames = curve.frames.frames();
    const double height = mTexts.lineHeight();
    const double lowest = curve.strip.y0 + height;
    const double highest = std::max(lowest, curve.strip.y0 + curve.strip.height);
    for (std::size_t i = 0; i < frames.size();) {
        const double value = frames[i].latest();
        std::size_t end = i + 1;
        const auto isSame = [&](const FrameType& frame) {
            return !frame.afterGap && frame.range().low == value && frame.range().high == value;
        };
        while (end < frames.size() && isSame(frames[end])) {
            ++end;
        }
        const bool isLast = end == frames.size();
        const bool isCut = isLast || frames[end].afterGap;
        const double left = column(frames[i].time);
        const double right = column(frames[isCut ? end - 1 : end].time);
        if (right - left <= 2.0 * Gap) {
            i = end;
            continue;
        }
        // Within a column only the last state goes on to the next.
        const double held = isCut ? frames[end - 1].time : std::nextafter(frames[end].time, 0.0);
        const QString name = nameOf(curve.facts->wordsAt(held));
        const double y = std::clamp(curve.strip.toPixel(value) + height + Gap, lowest, highest);
        mTexts.addBetween(name, topOf(y), left + Gap, right - Gap,
                          legibleOn(mStyle.back, curve.color), true);
        i = end;
    }
}

void NoteDrawing::drawEvents()
{
    constexpr double Half = 2.0; // pixels beside the middle of a tick
    if (!mStyle.eventsOn) {
        return;
    }
    const double bottom = mView.y0 + mView.height;
    // One tick of a colour in a pixel column, however many events fall into it.
    double pixel = 0.0;
    std::vector<QRgb> drawn;
    for (const EventMark& event : mModel.hints().notes.events()) {
        const double time = mModel.hints().notes.timeOf(event);
        if (time < mView.xmin || time > mView.xmax) {
            continue;
        }
        const double x = std::floor(mView.xToViewport(time));
        const QColor color = event.color.isValid() ? event.color : QColor(Qt::white);
        if (x != pixel) {
            pixel = x;
            drawn.clear();
        }
        if (std::ranges::find(drawn, color.rgb()) != drawn.end()) {
            continue;
        }
        drawn.push_back(color.rgb());
        mCanvas.fill(x - Half, bottom, x + Half + 1.0, bottom + NotePlaces::TickHeight,
                     mStyle.label);
        mCanvas.fill(x - Half + 1.0, bottom, x + Half, bottom + NotePlaces::TickHeight - 1.0,
                     GraphColor::of(color));
    }
}

void NoteDrawing::drawLanes()
{
    for (std::size_t lane = 0; lane < mModel.layout().lanes().count; ++lane) {
        drawLane(*mModel.hints().notes.lanes()[lane], mPlaces.laneBottom(lane));
    }
}

void NoteDrawing::drawLane(const FaultHistory& history, double bottom)
{
    constexpr double Gap = 5.0; // pixels
    const double shift = mModel.hints().notes.shiftOf(history);
    const double height = mModel.layout().lanes().height;
    mCanvas.fill(mView.x0, bottom, mView.x0 + mView.width, bottom + height, mStyle.back);
    const QRectF place(mView.x0, topOf(bottom + height), mView.width, height);
    mTexts.add(mTexts.elided(history.matrix().name, mView.width / 4.0),
               {mView.x0 + Gap, place.top()}, mStyle.fore, place, true);
    const auto& runs = history.runs();
    for (std::size_t i = 0; i < runs.size();) {
        FaultRun run = {runs[i].start + shift, runs[i].stop + shift, runs[i].bits};
        ++i;
        if (run.stop < mView.xmin || run.start > mView.xmax) {
            continue;
        }
        const double left = std::floor(column(run.start));
        // All that was active in one column stands there, under the colour of the worst.
        while (i < runs.size() && column(run.stop) < left + LeastWidth &&
               column(runs[i].stop + shift) < left + LeastWidth) {
            run.stop = runs[i].stop + shift;
            run.bits |= runs[i].bits;
            ++i;
        }
        if (run.bits == 0) {
            continue;
        }
        const double right = std::max(column(run.stop), left + LeastWidth);
        const QColor color = errorColor(history.worstOf(run.bits));
        mCanvas.fill(left, bottom + 1.0, right, bottom + height - 1.0, GraphColor::of(color));
        addLaneText(run, history, bottom);
    }
}

/// As many names of a list as have room, the number of the others behind them.
QString NoteDrawing::namesIn(const QString& list, double room) const
{
    const QStringList names = list.split(", ");
    for (qsizetype count = names.size(); count > 0; --count) {
        QString text = names.first(count).join(", ");
        if (count < names.size()) {
            text += QString(" +%1").arg(names.size() - count);
        }
        if (mTexts.widthOf(text) <= room) {
            return text;
        }
    }
    return mTexts.elided(names.front(), room, Qt::ElideRight);
}

void NoteDrawing::addLaneText(const FaultRun& run, const FaultHistory& history, double bottom)
{
    constexpr double Gap = 4.0;    // pixels
    constexpr double Least = 50.0; // that are worth a word
    const double left = column(run.start) + Gap;
    const double right = column(run.stop) - Gap;
    if (right - left < Least) {
        return;
    }
    const GraphColor back = GraphColor::of(errorColor(history.worstOf(run.bits)));
    const double top = topOf(bottom + mModel.layout().lanes().height);
    const double from = mTexts.freeFrom(top, left, Least);
    mTexts.addBetween(namesIn(history.namesOf(run.bits), right - from), top, from, right,
                      legibleOn(back, {0.0F, 0.0F, 0.0F}), false);
}

} // namespace TARN
