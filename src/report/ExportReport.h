#pragma once

#include "export/Exporter.h"
#include "report/ReportOptions.h"

namespace TARN {

/// Writes what happened in a flight on a few pages, as HTML or PDF by the name of the file. The
/// same input gives the same bytes of HTML on every machine. PDF needs a QGuiApplication.
class ExportReport : public Exporter
{
public:
    explicit ExportReport(const ReportOptions& options) : mOptions(options) {}

    QString path() const override { return mOptions.path(); }

protected:
    ExportResult write(const ExportInput& input, Progress& progress) override;

private:
    ReportOptions mOptions;
};

} // namespace TARN
