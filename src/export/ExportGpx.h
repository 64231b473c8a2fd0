#pragma once

#include "export/Exporter.h"
#include "export/GpxExportOptions.h"
#include "export/TrackClock.h"
#include "export/TrackEvents.h"

namespace TARN {

class XmlStream;

/// Writes the track as GPX 1.1: where, how high and when, in segments that the aircraft can have
/// flown, and what went wrong as waypoints. Altitudes are metres; points of which altitude or date
/// is not known are without.
class ExportGpx : public Exporter
{
public:
    explicit ExportGpx(const GpxExportOptions& options) : mOptions(options) {}

    QString path() const override { return mOptions.path(); }

protected:
    ExportResult write(const ExportInput& input, Progress& progress) override;

private:
    void addHead(XmlStream& xml, const ExportInput& input, const GeoTrack& track,
                 const TrackClock& clock) const;
    std::size_t addWaypoints(XmlStream& xml, const ExportInput& input, const GeoTrack& track,
                             const TrackClock& clock) const;
    void addTrack(XmlStream& xml, const GeoTrack& track, const TrackClock& clock,
                  Progress& progress) const;

    GpxExportOptions mOptions;
};

} // namespace TARN
