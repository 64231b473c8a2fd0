#pragma once

#include "export/CsvExportOptions.h"
#include "export/Exporter.h"

namespace TARN {

/// Writes the samples of a time range as a recording file, which can be opened again: the
/// header with its start time cleared, then the samples by time, times counted from the range's
/// start in ticks of 31.25 ns. Always big-endian. Times carry no offset.
class ExportCan : public Exporter
{
public:
    explicit ExportCan(const CsvExportOptions& options) : mOptions(options) {}

    QString path() const override { return mOptions.path(); }

protected:
    ExportResult write(const ExportInput& input, Progress& progress) override;

private:
    CsvExportOptions mOptions;
};

} // namespace TARN
