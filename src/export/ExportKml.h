#pragma once

#include "export/Exporter.h"
#include "export/KmlExportOptions.h"

namespace TARN {

class FlightPath;
class XmlStream;
struct KmlMark;

/// Writes the flight path as a KML document: a line, place marks with the values of the selected
/// parameters, and marks where something went wrong; or, when that is asked for, one with times,
/// see TimedKml. Marks are written as they are made: memory follows the positions. The result says
/// what had no position and was left out.
class ExportKml : public Exporter
{
public:
    explicit ExportKml(const KmlExportOptions& options) : mOptions(options) {}

    QString path() const override { return mOptions.path(); }

protected:
    ExportResult write(const ExportInput& input, Progress& progress) override;

private:
    /// What had no position in its slot.
    struct LeftOut
    {
        std::size_t values = 0;
        std::size_t events = 0;
    };

    bool addPlaceMarks(XmlStream& xml, const ExportInput& input, const FlightPath& path,
                       LeftOut& leftOut, Progress& progress) const;
    void addErrorMarks(XmlStream& xml, const std::vector<RecordEvent>& events,
                       const FlightPath& path, LeftOut& leftOut) const;
    void addMark(XmlStream& xml, const KmlMark& mark, const char* style) const;
    void addPath(XmlStream& xml, const FlightPath& path) const;
    QString noteOf(const FlightPath& path, const LeftOut& leftOut) const;

    KmlExportOptions mOptions;
};

} // namespace TARN
