#include "graph/NotePlaces.h"

#include "base/ClockTime.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct NoteTexts
{
    Q_DECLARE_TR_FUNCTIONS(NotePlaces)
};

constexpr double Reach = 3.0; ///< pixels beside a note in which it is still pointed at

QString spanOf(double start, double stop)
{
    return NoteTexts::tr("%1 to %2, %3 s")
        .arg(clockTextWithMilliseconds(start), clockTextWithMilliseconds(stop))
        .arg(stop - start, 0, 'f', 1);
}

GraphNote noteOf(const Episode& episode)
{
    const QString what = episode.state == StateLimit ? NoteTexts::tr("%1 at its limit")
                                                     : NoteTexts::tr("%1 in warning");
    QString text = what.arg(episode.parameter->name) + ": " + spanOf(episode.start, episode.end);
    if (episode.peak) {
        text += NoteTexts::tr(", peak %1 %2 at %3")
                    .arg(QString::number(episode.peak->value, 'g', 6), episode.parameter->unit,
                         clockTextWithMilliseconds(episode.peak->time));
    }
    return {episode.start, episode.end, text};
}

} // namespace

NotePlaces::NotePlaces(const GraphModel& model, const GraphStyle& style)
    : mModel(model), mStyle(style), mView(model.layout().view())
{}

double NotePlaces::barBottom(const ParStruct& curve) const
{
    if (mModel.layout().displayMode() == DisplaySplit) {
        return curve.strip.y0 + curve.strip.height - BarHeight;
    }
    int row = 1;
    for (const unsigned k : mModel.curves().shown()) {
        const ParStruct& other = *mModel.curves().curve(k);
        if (&other == &curve) {
            break;
        }
        const bool hasBars = other.facts != nullptr &&
                             !mModel.hints().notes.episodesOf(other.facts->parameter()).empty();
        row += hasBars ? 1 : 0;
    }
    return mView.y0 + mView.height - row * BarHeight;
}

double NotePlaces::laneBottom(std::size_t lane) const
{
    return mView.y0 - static_cast<double>(lane + 1) * mModel.layout().lanes().height;
}

bool NotePlaces::covers(double start, double stop, double x) const
{
    return mView.xToViewport(start) - Reach <= x && x <= mView.xToViewport(stop) + Reach;
}

std::vector<GraphNote> NotePlaces::at(double x, double y) const
{
    if (x < mView.x0 - Reach || x > mView.x0 + mView.width + Reach) {
        return {};
    }
    const double top = mView.y0 + mView.height;
    if (mStyle.eventsOn && y >= top && y <= top + TickHeight) {
        return eventsAt(mView.viewportToX(x));
    }
    return y < mView.y0 ? faultsAt(x, y) : episodesAt(x, y);
}

std::vector<GraphNote> NotePlaces::eventsAt(double moment) const
{
    const double x = mView.xToViewport(moment);
    std::vector<GraphNote> found;
    const GraphNotes& notes = mModel.hints().notes;
    for (const EventMark& event : notes.events()) {
        const double time = notes.timeOf(event);
        if (covers(time, time, x)) {
            found.push_back(
                {time, time, clockTextWithMilliseconds(time) + "  " + event.text.trimmed()});
        }
    }
    return found;
}

std::vector<GraphNote> NotePlaces::episodesAt(double x, double y) const
{
    std::vector<GraphNote> found;
    for (const unsigned k : mModel.curves().shown()) {
        const ParStruct& curve = *mModel.curves().curve(k);
        const double bottom = barBottom(curve);
        if (!mStyle.eventsOn || curve.facts == nullptr || y < bottom - 1.0 ||
            y >= bottom + BarHeight) {
            continue;
        }
        for (const Episode* episode : mModel.hints().notes.episodesOf(curve.facts->parameter())) {
            if (covers(episode->start, episode->end, x)) {
                found.push_back(noteOf(*episode));
            }
        }
    }
    return found;
}

std::vector<GraphNote> NotePlaces::faultsAt(double x, double y) const
{
    std::vector<GraphNote> found;
    const GraphNotes& notes = mModel.hints().notes;
    for (std::size_t lane = 0; lane < mModel.layout().lanes().count; ++lane) {
        const double bottom = laneBottom(lane);
        if (y < bottom || y >= bottom + mModel.layout().lanes().height) {
            continue;
        }
        const FaultHistory& history = *notes.lanes()[lane];
        const double shift = notes.shiftOf(history);
        for (const FaultRun& run : history.runs()) {
            if (run.bits != 0 && covers(run.start + shift, run.stop + shift, x)) {
                found.push_back({run.start + shift, run.stop + shift,
                                 history.matrix().name + ": " + history.namesOf(run.bits) + "\n" +
                                     spanOf(run.start + shift, run.stop + shift)});
            }
        }
    }
    return found;
}

QString textOf(const std::vector<GraphNote>& notes)
{
    constexpr std::size_t Most = 8;
    QStringList lines;
    for (std::size_t i = 0; i < notes.size() && i < Most; ++i) {
        lines += notes[i].text;
    }
    if (notes.size() > Most) {
        lines += NoteTexts::tr("and %1 more").arg(notes.size() - Most);
    }
    return lines.join('\n');
}

} // namespace TARN
