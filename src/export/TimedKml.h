#pragma once

#include "export/Exporter.h"
#include "export/KmlExportOptions.h"
#include "export/TrackClock.h"
#include "export/TrackEvents.h"
#include "export/TrackValues.h"

namespace TARN {

class XmlStream;

/// Writes the flight as a KML document that earth viewers can play: a track with times and the
/// values of the selected parameters at each of its points, marks with times, and the path as a
/// line, which stays while the flight is played and which viewers without tracks show too. Nothing
/// is drawn over gaps and jumps. Altitudes are metres, as viewers understand absolute ones.
///
/// Refused when the recording tells no date.
class TimedKml
{
public:
    /// Everything is referred to.
    TimedKml(const KmlExportOptions& options, const ExportInput& input);

    ExportResult write(Progress& progress);

private:
    void addHead(XmlStream& xml);
    void addPlaceMarks(XmlStream& xml, Progress& progress);
    void addPlaceMark(XmlStream& xml, const TrackPoint& point);
    void addEvents(XmlStream& xml, const char* folder, const std::vector<RecordEvent>& events);
    void beginMark(XmlStream& xml, double time, const char* style);
    void endMark(XmlStream& xml, const TrackPoint& point);
    void addPath(XmlStream& xml, Progress& progress);
    void addLine(XmlStream& xml, GeoTrack::Stretch stretch, Progress& progress);
    void addTracks(XmlStream& xml, Progress& progress);
    void addTrack(XmlStream& xml, GeoTrack::Stretch stretch, Progress& progress);
    bool goOn(Progress& progress);

    const KmlExportOptions& mOptions;
    const ExportInput& mInput;
    TrackClock mClock;
    GeoTrack mTrack;
    std::vector<GeoTrack::Stretch> mStretches;
    std::vector<TrackValues> mValues;
    std::size_t mEventsLeftOut = 0;
    std::size_t mDone = 0; ///< rows of path and tracks
};

} // namespace TARN
