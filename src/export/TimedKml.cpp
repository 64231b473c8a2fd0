#include "export/TimedKml.h"

#include "base/ClockTime.h"
#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"
#include "base/XmlStream.h"
#include "export/KmlParts.h"
#include "export/TrackNote.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cmath>

namespace TARN {

namespace {

constexpr std::size_t RowsPerLook = 1024; // between two reports of progress
constexpr std::size_t RowsPerPoint = 3;   // apart from its values: in the line, when and where

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct TimedTexts
{
    Q_DECLARE_TR_FUNCTIONS(TimedKml)
};

/// A stretch has an altitude everywhere or nowhere.
const char* altitudeMode(const TrackPoint& point)
{
    return std::isnan(point.altitude) ? "clampToGround" : "absolute";
}

std::string coordinates(const TrackPoint& point, char separator)
{
    const double altitude = std::isnan(point.altitude) ? 0.0 : point.altitude;
    return fixedText(point.place.longitude, 8) + separator + fixedText(point.place.latitude, 8) +
           separator + fixedText(altitude, 1);
}

/// Its name is what tables of other programs call the column.
void addItem(XmlStream& xml, const std::string& name, const std::string& value)
{
    xml.begin("Data", {{"name", name}});
    addMarkItem(xml, name, value);
    xml.end();
}

std::string fieldName(std::size_t number)
{
    std::string name = "p";
    return name += std::to_string(number + 1);
}

} // namespace

TimedKml::TimedKml(const KmlExportOptions& options, const ExportInput& input)
    : mOptions(options), mInput(input), mClock(*input.flight->record()),
      mTrack(*input.flight, input.offset, options.slotWidth(), options.range())
{
    mTrack.fillAltitudes();
    mStretches = mTrack.stretches();
}

ExportResult TimedKml::write(Progress& progress)
{
    if (!mClock.isKnown()) {
        return ExportResult::failure(TimedTexts::tr(
            "The recording tells no date: no times can be given. Export the path without them."));
    }
    OutputFile file(mOptions.path());
    if (!file.open()) {
        return ExportResult::failure(notWrittenText(mOptions.path()));
    }
    mValues = trackValues(mInput, progress);
    XmlStream xml(file);
    addHead(xml);
    addPlaceMarks(xml, progress);
    if (mOptions.errorMarkOn && mOptions.showLimit) {
        addEvents(xml, "Limits", mInput.flight->events().limits);
    }
    if (mOptions.errorMarkOn && mOptions.showWarning) {
        addEvents(xml, "Warning lamps", mInput.flight->events().warnings);
    }
    addPath(xml, progress);
    addTracks(xml, progress);
    xml.end();
    xml.end();
    if (progress.stopRequested()) {
        return ExportResult::stopped();
    }
    diagnose("track: %zu positions in %zu stretches\n", mTrack.points().size(), mStretches.size());
    return file.commit() ? ExportResult::success(trackNote(mTrack, mClock, mEventsLeftOut))
                         : ExportResult::failure(notWrittenText(mOptions.path()));
}

void TimedKml::addHead(XmlStream& xml)
{
    xml.instruction("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    xml.begin("kml", {{"xmlns", "http://www.opengis.net/kml/2.2"},
                      {"xmlns:gx", "http://www.google.com/kml/ext/2.2"}});
    xml.begin("Document");
    xml.element("name", "ORNA Flightpath " + flightDate(*mInput.flight).toStdString());
    xml.element("description", trackOrigin(mTrack, mClock).toStdString());
    addMarkStyles(xml, mOptions);
    xml.begin("Schema", {{"id", "values"}});
    for (std::size_t i = 0; i < mValues.size(); ++i) {
        const std::string name = fieldName(i);
        xml.begin("gx:SimpleArrayField",
                  {{"name", name}, {"type", mValues[i].isNumber() ? "float" : "string"}});
        xml.element("displayName", mValues[i].title());
        xml.end();
    }
    xml.end();
}

void TimedKml::addPlaceMarks(XmlStream& xml, Progress& progress)
{
    if (!mOptions.placeMarkOn || mValues.empty() || mStretches.empty()) {
        return;
    }
    xml.begin("Folder");
    xml.element("name", "Values");
    const auto step = static_cast<std::size_t>(std::max(1, mOptions.placeMarkInterval));
    for (std::size_t k = 0; k < mTrack.points().size() && !progress.stopRequested(); k += step) {
        addPlaceMark(xml, mTrack.points()[k]);
    }
    xml.end();
}

void TimedKml::addPlaceMark(XmlStream& xml, const TrackPoint& point)
{
    beginMark(xml, point.time, "#normalPlacemark");
    for (TrackValues& values : mValues) {
        const std::string& value = values.at(point.time);
        if (!value.empty()) {
            addItem(xml, values.title(), value);
        }
    }
    endMark(xml, point);
}

void TimedKml::addEvents(XmlStream& xml, const char* folder, const std::vector<RecordEvent>& events)
{
    const auto list = trackEvents(events, *mInput.flight, mInput.offset, mTrack, mOptions.range(),
                                  mEventsLeftOut);
    if (list.empty()) {
        return;
    }
    xml.begin("Folder");
    xml.element("name", folder);
    for (const TrackEvents& one : list) {
        beginMark(xml, one.time, "#errorPlacemark");
        for (const RecordEvent* event : one.events) {
            addItem(xml, event->name, event->value);
        }
        endMark(xml, *one.point);
    }
    xml.end();
}

void TimedKml::beginMark(XmlStream& xml, double time, const char* style)
{
    xml.begin("Placemark");
    xml.element("name", clockText(time).toStdString());
    xml.begin("TimeStamp");
    xml.element("when", mClock.text(time));
    xml.end();
    xml.element("styleUrl", style);
    xml.begin("ExtendedData");
}

void TimedKml::endMark(XmlStream& xml, const TrackPoint& point)
{
    xml.end();
    xml.begin("Point");
    xml.element("altitudeMode", altitudeMode(point));
    xml.element("coordinates", coordinates(point, ','));
    xml.end();
    xml.end();
}

void TimedKml::addPath(XmlStream& xml, Progress& progress)
{
    const auto isLine = [](const GeoTrack::Stretch& stretch) { return stretch.size() > 1; };
    if (std::ranges::none_of(mStretches, isLine)) {
        return;
    }
    xml.begin("Placemark");
    xml.element("name", "Path");
    addPathStyle(xml, mOptions);
    xml.begin("MultiGeometry");
    for (const GeoTrack::Stretch& stretch : mStretches) {
        if (isLine(stretch)) {
            addLine(xml, stretch, progress);
        }
    }
    xml.end();
    xml.end();
}

void TimedKml::addLine(XmlStream& xml, GeoTrack::Stretch stretch, Progress& progress)
{
    xml.begin("LineString");
    xml.element("extrude", mOptions.polygonOn ? "1" : "0");
    xml.element("altitudeMode", altitudeMode(stretch.front()));
    xml.beginText("coordinates");
    for (const TrackPoint& point : stretch) {
        if (!goOn(progress)) {
            break;
        }
        xml.text(coordinates(point, ',') + "\n");
    }
    xml.endText();
    xml.end();
}

void TimedKml::addTracks(XmlStream& xml, Progress& progress)
{
    if (mStretches.empty()) {
        return;
    }
    for (TrackValues& values : mValues) {
        values.restart();
    }
    xml.begin("Placemark");
    xml.element("name", "Track");
    addPathStyle(xml, mOptions);
    const bool isMulti = mStretches.size() > 1;
    if (isMulti) {
        xml.begin("gx:MultiTrack");
        xml.element("gx:interpolate", "0");
    }
    for (const GeoTrack::Stretch& stretch : mStretches) {
        addTrack(xml, stretch, progress);
    }
    if (isMulti) {
        xml.end();
    }
    xml.end();
}

void TimedKml::addTrack(XmlStream& xml, GeoTrack::Stretch stretch, Progress& progress)
{
    xml.begin("gx:Track");
    xml.element("altitudeMode", altitudeMode(stretch.front()));
    const auto rows = [&](const char* name, const auto& textOf) {
        for (const TrackPoint& point : stretch) {
            if (!goOn(progress)) {
                break;
            }
            xml.row(name, textOf(point));
        }
    };
    rows("when", [this](const TrackPoint& point) { return mClock.text(point.time); });
    rows("gx:coord", [](const TrackPoint& point) { return coordinates(point, ' '); });
    if (!mValues.empty()) {
        xml.begin("ExtendedData");
        xml.begin("SchemaData", {{"schemaUrl", "#values"}});
        for (std::size_t i = 0; i < mValues.size(); ++i) {
            const std::string field = fieldName(i);
            xml.begin("gx:SimpleArrayData", {{"name", field}});
            rows("gx:value", [&](const TrackPoint& point) -> const std::string& {
                return mValues[i].at(point.time);
            });
            xml.end();
        }
        xml.end();
        xml.end();
    }
    xml.end();
}

/// Before each of the rows, of which there are very many: false when it was asked to stop.
bool TimedKml::goOn(Progress& progress)
{
    if (mDone++ % RowsPerLook == 0) {
        progress.report(mDone, mTrack.points().size() * (RowsPerPoint + mValues.size()));
    }
    return !progress.stopRequested();
}

} // namespace TARN
