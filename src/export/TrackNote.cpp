#include "export/TrackNote.h"

#include "base/CountText.h"
#include "export/PositionSource.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct NoteTexts
{
    Q_DECLARE_TR_FUNCTIONS(TrackNote)
};

/// Those of the KML export, which others share.
struct PathTexts
{
    Q_DECLARE_TR_FUNCTIONS(ExportKml)
};

QString doubtfulTimes(const TrackClock& clock)
{
    switch (clock.source()) {
    case RecordStart::Data:
        return {};
    case RecordStart::Header:
        return NoteTexts::tr("The recording tells no UTC: times are counted from the date of its "
                             "header, whose time zone is not known, as if that were UTC.");
    case RecordStart::Unknown:
        break;
    }
    return NoteTexts::tr("The recording tells no date: the track is without times.");
}

QString doubtfulAltitudes(const GeoTrack& track)
{
    const bool isTold = std::ranges::any_of(
        track.points(), [](const TrackPoint& point) { return !std::isnan(point.altitude); });
    return isTold && metresIn(track.altitudeUnit()) == 0.0
               ? NoteTexts::tr("The unit \"%1\" of the altitude is not known, its numbers were "
                               "taken for metres.")
                     .arg(track.altitudeUnit())
               : QString();
}

QString joined(QStringList sentences)
{
    sentences.removeAll(QString());
    return sentences.join(' ');
}

} // namespace

QString trackOrigin(const GeoTrack& track, const TrackClock& clock)
{
    const double metres = metresIn(track.altitudeUnit());
    return joined(
        {clock.source() == RecordStart::Data
             ? NoteTexts::tr("Times are UTC as the recording's own messages tell it.")
             : doubtfulTimes(clock),
         metres != 0.0 && metres != 1.0
             ? NoteTexts::tr("Altitudes are metres, converted from %1.").arg(track.altitudeUnit())
             : doubtfulAltitudes(track)});
}

QString trackNote(const GeoTrack& track, const TrackClock& clock, std::size_t eventsLeftOut)
{
    const auto& [nowhere, jumps] = track.leftOut();
    const auto count = [](std::size_t number) { return countText(static_cast<qint64>(number)); };
    return joined({track.points().empty() ? noPositionText() : doubtfulTimes(clock),
                   doubtfulAltitudes(track),
                   nowhere + jumps + eventsLeftOut == 0
                       ? QString()
                       : NoteTexts::tr("Left out: %1 positions at 0/0 or incomplete, %2 that "
                                       "nothing flies to, %3 events without a position.")
                             .arg(count(nowhere), count(jumps), count(eventsLeftOut))});
}

QString flightDate(const Flight& flight)
{
    const auto& files = flight.record()->integrity().files;
    return files.empty() ? flight.info().dateTimeText() : files.front().info.dateTimeText();
}

QString noPositionText()
{
    return PathTexts::tr("No position lies in the time range, the flight path is empty.");
}

QString notWrittenText(const QString& path)
{
    return PathTexts::tr("\"%1\" could not be written. Check that the folder exists, may be "
                         "written to and has room.")
        .arg(path);
}

} // namespace TARN
