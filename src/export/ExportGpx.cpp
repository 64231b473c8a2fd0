#include "export/ExportGpx.h"

#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"
#include "base/XmlStream.h"
#include "export/TrackNote.h"

#include <QtCore/QFileInfo>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr std::size_t PointsPerLook = 1024; // between two looks at the progress

std::string degrees(double value)
{
    return fixedText(value, 8);
}

/// The format ends before 180.
std::string longitudeText(double longitude)
{
    const std::string text = degrees(longitude);
    return text == "180.00000000" ? "-" + text : text;
}

void beginPoint(XmlStream& xml, const char* name, const TrackPoint& point, double time,
                const TrackClock& clock)
{
    const std::string latitude = degrees(point.place.latitude);
    const std::string longitude = longitudeText(point.place.longitude);
    xml.begin(name, {{"lat", latitude}, {"lon", longitude}});
    if (!std::isnan(point.altitude)) {
        xml.element("ele", fixedText(point.altitude, 1));
    }
    if (clock.isKnown()) {
        xml.element("time", clock.text(time));
    }
}

void addBounds(XmlStream& xml, const std::vector<TrackPoint>& points)
{
    if (points.empty()) {
        return;
    }
    const auto latitude = [](const TrackPoint& point) { return point.place.latitude; };
    const auto longitude = [](const TrackPoint& point) {
        return leadingDouble(longitudeText(point.place.longitude)); // as it stands in the file
    };
    const auto [south, north] = std::ranges::minmax(points, {}, latitude);
    const auto [west, east] = std::ranges::minmax(points, {}, longitude);
    const std::string edges[] = {degrees(south.place.latitude), longitudeText(west.place.longitude),
                                 degrees(north.place.latitude),
                                 longitudeText(east.place.longitude)};
    xml.begin(
        "bounds",
        {{"minlat", edges[0]}, {"minlon", edges[1]}, {"maxlat", edges[2]}, {"maxlon", edges[3]}});
    xml.end();
}

/// Of the flight: that of its first file.
std::string nameOf(const Flight& flight)
{
    const auto& files = flight.record()->integrity().files;
    const QString file =
        files.empty() ? QString() : QFileInfo(files.front().info.fileName).completeBaseName();
    return ("ORNA " + file + " " + flightDate(flight)).simplified().toStdString();
}

} // namespace

ExportResult ExportGpx::write(const ExportInput& input, Progress& progress)
{
    const GeoTrack track(*input.flight, input.offset, mOptions.slotWidth(), mOptions.range());
    const TrackClock clock(*input.flight->record());
    OutputFile file(path());
    if (!file.open()) {
        return ExportResult::failure(notWrittenText(path()));
    }
    XmlStream xml(file);
    addHead(xml, input, track, clock);
    const std::size_t leftOut = mOptions.waypoints ? addWaypoints(xml, input, track, clock) : 0;
    xml.begin("trk");
    xml.element("name", nameOf(*input.flight));
    addTrack(xml, track, clock, progress);
    xml.end();
    xml.end();
    if (progress.stopRequested()) {
        return ExportResult::stopped();
    }
    diagnose("track: %zu positions in %zu stretches\n", track.points().size(),
             track.stretches().size());
    return file.commit() ? ExportResult::success(trackNote(track, clock, leftOut))
                         : ExportResult::failure(notWrittenText(path()));
}

void ExportGpx::addHead(XmlStream& xml, const ExportInput& input, const GeoTrack& track,
                        const TrackClock& clock) const
{
    xml.instruction("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    xml.begin("gpx", {{"version", "1.1"},
                      {"creator", "ORNA"},
                      {"xmlns", "http://www.topografix.com/GPX/1/1"},
                      {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                      {"xsi:schemaLocation", "http://www.topografix.com/GPX/1/1 "
                                             "http://www.topografix.com/GPX/1/1/gpx.xsd"}});
    xml.begin("metadata");
    xml.element("name", nameOf(*input.flight));
    xml.element("desc", trackOrigin(track, clock).toStdString());
    if (clock.isKnown()) {
        // That of the flight and not of the export: the same flight gives the same file.
        xml.element("time", clock.text(input.flight->info().startTime));
    }
    addBounds(xml, track.points());
    xml.end();
}

/// How many events had no position.
std::size_t ExportGpx::addWaypoints(XmlStream& xml, const ExportInput& input, const GeoTrack& track,
                                    const TrackClock& clock) const
{
    std::size_t leftOut = 0;
    const Events& events = input.flight->events();
    for (const auto* list : {&events.limits, &events.warnings}) {
        for (const TrackEvents& one :
             trackEvents(*list, *input.flight, input.offset, track, mOptions.range(), leftOut)) {
            QStringList names;
            QStringList texts;
            for (const RecordEvent* event : one.events) {
                names += QString::fromStdString(event->name);
                texts += event->shortText.trimmed();
            }
            beginPoint(xml, "wpt", *one.point, one.time, clock);
            names.removeDuplicates();
            xml.element("name", names.join(", ").toStdString());
            xml.element("desc", texts.join(", ").toStdString());
            xml.element("type", list == &events.limits ? "limit" : "warning lamp");
            xml.end();
        }
    }
    return leftOut;
}

void ExportGpx::addTrack(XmlStream& xml, const GeoTrack& track, const TrackClock& clock,
                         Progress& progress) const
{
    std::size_t done = 0;
    for (const GeoTrack::Stretch& stretch : track.stretches()) {
        xml.begin("trkseg");
        for (const TrackPoint& point : stretch) {
            if (done++ % PointsPerLook == 0) {
                progress.report(done, track.points().size());
                if (progress.stopRequested()) {
                    break;
                }
            }
            beginPoint(xml, "trkpt", point, point.time, clock);
            xml.end();
        }
        xml.end();
    }
}

} // namespace TARN
