#include "export/ExportKml.h"

#include "base/Numbers.h"
#include "export/ExportSource.h"
#include "profile/Profile.h"
#include "record/Record.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QColor>

#include <cstdio>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ExportKml)
};

/// Alpha, blue, green, red, each as two hexadecimal digits.
std::string kmlColor(const std::string& rgb, int alpha)
{
    const QString name = "#" + QString::fromStdString(rgb);
    const QColor color = QColor::isValidColor(name) ? QColor(name) : QColor();
    char text[40];
    std::snprintf(text, sizeof text, "%02x%02x%02x%02x", static_cast<unsigned>(alpha),
                  static_cast<unsigned>(color.blue()), static_cast<unsigned>(color.green()),
                  static_cast<unsigned>(color.red()));
    return text;
}

std::string coordinates(const PathPosition& position)
{
    return fixedText(position.longitude, 8) + "," + fixedText(position.latitude, 8) + "," +
           fixedText(position.altitude, 1);
}

constexpr int Opaque = 255;

} // namespace

ExportResult ExportKml::exportData(const Record& record, const KmlExportOptions& options)
{
    if (const QString refusal = sourceRefusal(record, options.path()); !refusal.isEmpty()) {
        return ExportResult::failure(refusal);
    }
    const RecordData& data = record.recordData();
    const FlightPath path(mProfile, data, options.timeStamp * 0.001, options.startTime,
                          options.stopTime);
    mDocument = QDomDocument();
    mDocument.appendChild(
        mDocument.createProcessingInstruction("xml", "version=\"1.0\" encoding=\"UTF-8\""));
    QDomElement kml = mXml.xmlCreateElement(mDocument, mDocument, "kml");
    QDomElement document = addElement(kml, "Document");
    addData(document, "name",
            "ORNA Flightpath " + record.recordInfo().dateTimeText().toStdString());
    addStyle(document, "normalPlacemark", options.placeMarkColor);
    addStyle(document, "errorPlacemark", options.errorMarkColor);
    const auto halfway = [this](int percent) { report(percent / 2); };
    addMarks(document, placeMarks(mProfile, data, path, options, halfway), "normalPlacemark");
    if (options.errorMarkOn && options.showLimit) {
        addMarks(document, errorMarks(data.limits, path), "errorPlacemark");
    }
    if (options.errorMarkOn && options.showWarning) {
        addMarks(document, errorMarks(data.warnings, path), "errorPlacemark");
    }
    addPath(document, path, options);
    const bool written = mXml.xmlWriteFile(mDocument, options.path());
    mDocument = QDomDocument();
    if (!written) {
        return ExportResult::failure(
            Texts::tr("\"%1\" could not be written. Check that the folder exists, may be written "
                      "to and has room.")
                .arg(options.path()));
    }
    return ExportResult::success(
        path.positions().empty()
            ? Texts::tr("No position lies in the time range, the flight path is empty.")
            : QString());
}

void ExportKml::report(int percent) const
{
    if (mProgress) {
        mProgress(percent);
    }
}

void ExportKml::addStyle(QDomElement& parent, const QString& id, const std::string& color)
{
    QDomElement style = addElement(parent, "Style");
    mXml.xmlCreateAttribute(mDocument, style, "id", id);
    QDomElement label = addElement(style, "LabelStyle");
    addData(label, "color", "ffffffff");
    QDomElement icon = addElement(style, "IconStyle");
    addData(icon, "color", kmlColor(color, Opaque));
}

void ExportKml::addMarks(QDomElement& parent, const KmlMarks& marks, const QString& style)
{
    constexpr std::size_t Collected = 50; // percent done before
    constexpr std::size_t Marked = 90;
    std::size_t done = 0;
    for (const auto& [number, mark] : marks) {
        if (done++ % 64 == 0) {
            report(static_cast<int>(Collected + (Marked - Collected) * done / marks.size()));
        }
        QDomElement placemark = addElement(parent, "Placemark");
        addData(placemark, "name", mark.time.toStdString());
        addData(placemark, "styleUrl", style.toStdString());
        QDomElement extended = addElement(placemark, "ExtendedData");
        for (const KmlMark::Item& item : mark.items) {
            QDomElement entry = addElement(extended, "Data");
            addData(entry, "displayName", "<b>" + item.name + "</b>");
            addData(entry, "value", item.value);
        }
        QDomElement point = addElement(placemark, "Point");
        addData(point, "altitudeMode", "absolute");
        addData(point, "coordinates", coordinates(mark.position));
    }
}

void ExportKml::addPath(QDomElement& parent, const FlightPath& path,
                        const KmlExportOptions& options)
{
    QDomElement placemark = addElement(parent, "Placemark");
    QDomElement style = addElement(placemark, "Style");
    QDomElement line = addElement(style, "LineStyle");
    addData(line, "color", kmlColor(options.lineColor, options.lineAlpha));
    addData(line, "width", std::to_string(options.lineWidth));
    QDomElement polygon = addElement(style, "PolyStyle");
    addData(polygon, "color", kmlColor(options.polygonColor, options.polygonAlpha));
    QDomElement string = addElement(placemark, "LineString");
    addData(string, "extrude", options.polygonOn ? "1" : "0");
    std::string text;
    for (const auto& [slot, position] : path.positions()) {
        text += coordinates(position) + "\n";
    }
    addData(string, "coordinates", text);
    addData(string, "altitudeMode", "absolute");
}

QDomElement ExportKml::addElement(QDomElement& parent, const QString& name)
{
    return mXml.xmlCreateElement(mDocument, parent, name);
}

void ExportKml::addData(QDomElement& parent, const QString& name, const std::string& text)
{
    QDomElement element = addElement(parent, name);
    mXml.xmlCreateTextElement(mDocument, element, QString::fromStdString(text));
}

} // namespace TARN
