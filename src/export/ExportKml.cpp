#include "export/ExportKml.h"

#include "base/CountText.h"
#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"
#include "base/XmlStream.h"
#include "export/FlightPath.h"
#include "export/KmlParts.h"
#include "export/PlaceMarks.h"
#include "export/TimedKml.h"
#include "export/TrackNote.h"

#include <QtCore/QCoreApplication>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct KmlTexts
{
    Q_DECLARE_TR_FUNCTIONS(ExportKml)
};

std::string coordinates(const PathPosition& position)
{
    return fixedText(position.longitude, 8) + "," + fixedText(position.latitude, 8) + "," +
           fixedText(position.altitude, 1);
}

} // namespace

ExportResult ExportKml::write(const ExportInput& input, Progress& progress)
{
    if (mOptions.isTimed) {
        return TimedKml(mOptions, input).write(progress);
    }
    const FlightPath path(*input.flight, input.offset, mOptions.slotWidth(), mOptions.range());
    OutputFile file(this->path());
    if (!file.open()) {
        return ExportResult::failure(notWrittenText(this->path()));
    }
    XmlStream xml(file);
    xml.instruction("xml", "version=\"1.0\" encoding=\"UTF-8\"");
    xml.begin("kml");
    xml.begin("Document");
    xml.element("name", "ORNA Flightpath " + input.flight->info().dateTimeText().toStdString());
    addMarkStyles(xml, mOptions);
    LeftOut leftOut;
    if (!addPlaceMarks(xml, input, path, leftOut, progress)) {
        return ExportResult::stopped();
    }
    if (mOptions.errorMarkOn && mOptions.showLimit) {
        addErrorMarks(xml, input.flight->events().limits, path, leftOut);
    }
    if (mOptions.errorMarkOn && mOptions.showWarning) {
        addErrorMarks(xml, input.flight->events().warnings, path, leftOut);
    }
    addPath(xml, path);
    xml.end();
    xml.end();
    return file.commit() ? ExportResult::success(noteOf(path, leftOut))
                         : ExportResult::failure(notWrittenText(this->path()));
}

QString ExportKml::noteOf(const FlightPath& path, const LeftOut& leftOut) const
{
    if (path.points().empty()) {
        return noPositionText();
    }
    if (leftOut.values + leftOut.events == 0) {
        return {};
    }
    return KmlTexts::tr(
               "Left out, because no position lies in their time slot: %1 values, %2 events. "
               "A longer \"Timestamp every\" keeps them.")
        .arg(countText(static_cast<qint64>(leftOut.values)),
             countText(static_cast<qint64>(leftOut.events)));
}

/// False when it was asked to stop.
bool ExportKml::addPlaceMarks(XmlStream& xml, const ExportInput& input, const FlightPath& path,
                              LeftOut& leftOut, Progress& progress) const
{
    PlaceMarks marks(input, path, mOptions);
    KmlMark mark;
    std::size_t count = 0;
    while (marks.next(mark, progress)) {
        addMark(xml, mark, "normalPlacemark");
        ++count;
    }
    if (progress.stopRequested()) {
        return false;
    }
    leftOut.values = marks.leftOut();
    if (mOptions.placeMarkOn) {
        diagnose("mExportPlacemark size %zu step %d\n", count, mOptions.placeMarkInterval);
    }
    return true;
}

void ExportKml::addErrorMarks(XmlStream& xml, const std::vector<RecordEvent>& events,
                              const FlightPath& path, LeftOut& leftOut) const
{
    for (const KmlMark& mark : errorMarks(events, path, mOptions.range(), leftOut.events)) {
        addMark(xml, mark, "errorPlacemark");
    }
}

void ExportKml::addMark(XmlStream& xml, const KmlMark& mark, const char* style) const
{
    xml.begin("Placemark");
    xml.element("name", mark.time.toStdString());
    xml.element("styleUrl", style);
    xml.begin("ExtendedData");
    for (const KmlMark::Item& item : mark.items) {
        xml.begin("Data");
        addMarkItem(xml, item.name, item.value);
        xml.end();
    }
    xml.end();
    xml.begin("Point");
    xml.element("altitudeMode", "absolute");
    xml.element("coordinates", coordinates(mark.position));
    xml.end();
    xml.end();
}

void ExportKml::addPath(XmlStream& xml, const FlightPath& path) const
{
    xml.begin("Placemark");
    addPathStyle(xml, mOptions);
    xml.begin("LineString");
    xml.element("extrude", mOptions.polygonOn ? "1" : "0");
    xml.beginText("coordinates");
    for (const FlightPath::Point& point : path.points()) {
        xml.text(coordinates(point.position) + "\n");
    }
    xml.endText();
    xml.element("altitudeMode", "absolute");
    xml.end();
    xml.end();
}

} // namespace TARN
