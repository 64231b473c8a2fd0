#include "report/ReportCharts.h"

#include "base/ClockTime.h"
#include "faults/EventWords.h"
#include "graph/CurveFill.h"
#include "graph/GraphPalette.h"
#include "graph/GraphPicture.h"

#include <QtCore/QCoreApplication>

#include <algorithm>

namespace TARN {

namespace {

using Parameters = std::vector<const ProfileParameter*>;

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct ChartTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportCharts)
};

/// A chart of some parameters of the flight, at most as many as there are curves.
class Chart
{
public:
    Chart(const ReportMatter& matter, CurveWindows& windows, const Parameters& parameters,
          const TimeRange& range)
    {
        Progress none;
        const ExportInput& shown = matter.shown;
        mModel.curves() = CurveSet(CurveSet::MaxCurves);
        mModel.setDisplayMode(DisplaySplit);
        nameCurves(mModel.curves(), parameters);
        for (unsigned k = 0; k < parameters.size(); ++k) {
            fillCurve(mModel.curves(), k, windows.decode(*parameters[k], range, none));
        }
        // They live as long as the matter.
        const std::shared_ptr<const std::vector<Episode>> episodes(std::shared_ptr<void>(),
                                                                   &matter.troubles.limits);
        mModel.hints().notes = {shown.flight, shown.offset, episodes};
        mModel.window().setWhole(range.start, range.stop);
        mModel.window().set(range.start, range.stop);
        mModel.setCursorPosition(range.start, false);
        mModel.windowChanged();
        mStyle = themed({}, true);
        mStyle.cursorOn = false;
        mStyle.valuesOn = false;
    }

    /// Shows the values at a time.
    void point(double time)
    {
        mModel.setCursorPosition(time, false);
        mStyle.cursorOn = true;
        mStyle.valuesOn = true;
    }

    /// As one of two, whose plots stand one below the other.
    void pair()
    {
        constexpr double Margin = 190.0; // pixels, for two ends of a range
        mStyle.lanesOn = false;
        mStyle.leastMargin = Margin;
    }

    /// Puts the reference's curves behind those of the flight.
    void compare(const ExportReference& reference, const Parameters& parameters,
                 const TimeRange& range)
    {
        Progress none;
        CurveWindows windows(reference.flight, reference.offset);
        const TimeRange own{range.start - reference.shift, range.stop - reference.shift};
        for (unsigned k = 0; k < parameters.size(); ++k) {
            Companion& companion = mModel.curves().curve(k)->reference;
            const DecodedCurve decoded = windows.decode(*parameters[k], own, none);
            companion.samples = decoded.samples;
            companion.facts = decoded.facts;
        }
        mModel.layout().setReference({reference.shift, true});
        mModel.curvesChanged();
        mStyle.lanesOn = false;
    }

    /// It lives no longer.
    ReportFigure figure(int height, const QString& label)
    {
        const GraphPicture picture{mStyle, {}, {ReportPages::Width, height}, {}};
        return {picture.size,
                [this, picture, label](int number) { return picture.toSvg(mModel, label, number); },
                [this, picture](QPainter& painter) { picture.paint(painter, mModel); }};
    }

private:
    GraphModel mModel;
    GraphStyle mStyle;
};

/// Two minutes: about the middle of what lasts less, otherwise about its peak.
TimeRange windowAround(const Episode& episode)
{
    constexpr double Half = 60.0;
    const bool isShort = episode.duration() < 2.0 * Half;
    const double middle =
        isShort || !episode.peak ? (episode.start + episode.end) / 2.0 : episode.peak->time;
    const double start = std::max(0.0, middle - Half);
    return {start, start + 2.0 * Half};
}

/// Parameters of the device with a value inside the window, but for the one that is shown anyway.
Parameters othersOf(const ReportMatter& matter, const Episode& episode, const TimeRange& window)
{
    Parameters others;
    for (const auto& [uid, parameter] : episode.device->parameters) {
        const Series series = matter.shown.series(parameter);
        if (&parameter != episode.parameter && !series.empty() &&
            series.firstNotBefore(window.start) < series.firstAfter(window.stop)) {
            others.push_back(&parameter);
        }
    }
    return others;
}

QString captionOf(const Episode& episode)
{
    QString text =
        QString("%1, %2, %3")
            .arg(clockText(episode.start), durationWords(episode.duration()), episode.name);
    if (episode.peak) {
        text += ", " + ChartTexts::tr("peak %1 at %2, threshold %3")
                           .arg(valueWords(*episode.parameter, episode.peak->value),
                                clockTextWithMilliseconds(episode.peak->time),
                                thresholdWords(*episode.peak));
    }
    return text;
}

} // namespace

ReportCharts::ReportCharts(const ReportMatter& matter, ReportPages& pages, Progress& progress)
    : mMatter(matter), mPages(pages), mProgress(progress),
      mWindows(matter.shown.flight, matter.shown.offset)
{}

/// The parameter itself, and below it the others, all on a page.
void ReportCharts::writeEpisode(const Episode& episode)
{
    constexpr int Own = 190;    // pixels
    constexpr int Axis = 62;    // for the time below the strips and what lies above them
    constexpr int Tallest = 52; // a strip
    const TimeRange window = windowAround(episode);
    const double moment = episode.peak ? episode.peak->time : episode.start;
    const QString words = captionOf(episode);
    Chart own(mMatter, mWindows, {episode.parameter}, window);
    own.point(moment);
    own.pair();
    Parameters others = othersOf(mMatter, episode, window);
    others.resize(std::min<std::size_t>(others.size(), CurveSet::MaxCurves));
    if (others.empty()) {
        mPages.figure(words, {own.figure(Own, words)});
        return;
    }
    Chart rest(mMatter, mWindows, others, window);
    rest.point(moment);
    rest.pair();
    const auto strips = static_cast<int>(others.size());
    const int strip = std::min(Tallest, (ReportPages::Height - Own - Axis) / strips);
    mPages.figure(
        words,
        {own.figure(Own, words),
         rest.figure(
             Axis + strip * strips,
             ChartTexts::tr("The other parameters of %1 meanwhile").arg(episode.device->name))});
}

void ReportCharts::writeWorst()
{
    constexpr std::size_t Most = 10;
    std::vector<const Episode*> worst;
    for (const Episode* episode :
         worstOf(mMatter.troubles.limits, mMatter.troubles.limits.size())) {
        if (episode->touches(mMatter.range) && worst.size() < Most) {
            worst.push_back(episode);
        }
    }
    if (worst.empty()) {
        return;
    }
    mPages.heading(ChartTexts::tr("The worst, in two minutes each"));
    for (const Episode* episode : worst) {
        if (!mProgress.stopRequested()) {
            writeEpisode(*episode);
        }
    }
}

void ReportCharts::writeWhole()
{
    constexpr std::size_t Strips = 14; // on a page
    constexpr int Axis = 62;
    constexpr int Lanes = 40;
    constexpr int Strip = (ReportPages::Height - Axis - Lanes) / int(Strips); // pixels
    const TimeRange whole = mMatter.flight().range(mMatter.shown.offset);
    const bool isWhole = mMatter.range.start <= whole.start && mMatter.range.stop >= whole.stop;
    mPages.heading(isWhole ? ChartTexts::tr("The whole flight")
                           : ChartTexts::tr("The reported range"));
    const Parameters all = mMatter.parameters();
    if (all.empty()) {
        mPages.say(ChartTexts::tr("No parameter is selected."));
    }
    if (!mMatter.range.hasExtent()) {
        return; // no time to draw
    }
    const QString words = ChartTexts::tr("%1 to %2 on the recording's clock")
                              .arg(clockText(mMatter.range.start), clockText(mMatter.range.stop));
    for (std::size_t begin = 0; begin < all.size() && !mProgress.stopRequested(); begin += Strips) {
        const std::size_t end = std::min(begin + Strips, all.size());
        Chart chart(
            mMatter, mWindows,
            Parameters(all.begin() + std::ptrdiff_t(begin), all.begin() + std::ptrdiff_t(end)),
            mMatter.range);
        mPages.figure(words,
                      {chart.figure(Axis + Lanes + Strip * static_cast<int>(end - begin), words)});
        mProgress.report(end, all.size());
    }
}

void ReportCharts::writeCompared(const Parameters& parameters, const TimeRange& range)
{
    constexpr int Axis = 62;   // pixels
    constexpr int Strip = 130; // as high as two lines can be told from each other
    const QString words = ChartTexts::tr("%1 to %2 on the recording's clock; dashed: the reference")
                              .arg(clockText(range.start), clockText(range.stop));
    Chart chart(mMatter, mWindows, parameters, range);
    chart.compare(*mMatter.shown.reference, parameters, range);
    mPages.figure(words, {chart.figure(Axis + Strip * static_cast<int>(parameters.size()), words)});
}

} // namespace TARN
