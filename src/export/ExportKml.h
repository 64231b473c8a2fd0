#pragma once

#include "base/XmlHandler.h"
#include "export/ExportResult.h"
#include "export/KmlExportOptions.h"
#include "export/KmlMarks.h"

namespace TARN {

class Profile;
class Record;

/// Writes the flight path as a KML document: a line, place marks with the values of the selected
/// parameters, and marks where something went wrong, as the recording's event lists have it.
class ExportKml
{
public:
    explicit ExportKml(const Profile& profile) : mProfile(profile) {}

    void setProgress(ExportProgress progress) { mProgress = std::move(progress); }

    ExportResult exportData(const Record& record, const KmlExportOptions& options);

private:
    void report(int percent) const;
    void addStyle(QDomElement& parent, const QString& id, const std::string& color);
    void addMarks(QDomElement& parent, const KmlMarks& marks, const QString& style);
    void addPath(QDomElement& parent, const FlightPath& path, const KmlExportOptions& options);
    QDomElement addElement(QDomElement& parent, const QString& name);
    void addData(QDomElement& parent, const QString& name, const std::string& text);

    const Profile& mProfile;
    XmlHandler mXml;
    QDomDocument mDocument;
    ExportProgress mProgress;
};

} // namespace TARN
