#pragma once

#include "export/CsvExportOptions.h"
#include "export/Exporter.h"

#include <cstdint>
#include <string>
#include <vector>

namespace TARN {

class OutputFile;

/// Writes decoded values as a text table on a fixed time grid: a row for each grid step from the
/// first sample in the range to the range's end, a column for each parameter. A cell holds the
/// text of the last sample that rounds to its step; where there is none, the text above it.
///
/// Rows are written as they are made: memory follows the samples, not the rows. Refused when the
/// grid's steps don't fit 32 bits or its file the free space of the disk.
class ExportCsv : public Exporter
{
public:
    explicit ExportCsv(const CsvExportOptions& options);

    QString path() const override { return mOptions.path(); }

protected:
    ExportResult write(const ExportInput& input, Progress& progress) override;

private:
    /// The samples of one parameter inside the range, on their way through the grid.
    struct Column
    {
        std::string title;
        Series series;
        std::size_t next = 0;      ///< the sample to come, in time order
        std::size_t end = 0;       ///< of those inside the range
        std::int64_t nextTick = 0; ///< its tick; beyond every row after the last sample
        /// The cell's text as it is now, in the current row; empty before the first sample.
        std::size_t cellBegin = 0;
        std::size_t cellSize = 0;

        bool empty() const { return next == end; }
    };

    std::int64_t tick(double time) const;
    void findNextTick(Column& column) const;
    bool addColumns(const ExportInput& input, Progress& progress);
    void addColumn(const ExportInput& input, const ProfileParameter& parameter);
    QString refusal(std::int64_t first, std::int64_t last) const;
    ExportResult writeFile(std::int64_t first, std::int64_t last, Progress& progress);
    bool writeRows(OutputFile& file, std::int64_t first, std::int64_t last, Progress& progress);
    std::int64_t advance(std::int64_t row, bool isFirstRow);
    const RecordEntry* takeSample(Column& column, std::int64_t row) const;
    void appendElapsed(std::int64_t row, std::string& out) const;

    CsvExportOptions mOptions;
    double mStepsPerSecond;
    double mEarliest = 0.0; ///< time of the first sample exported
    double mLatest = 0.0;   ///< time of the last sample exported
    std::vector<Column> mColumns;
    std::string mCells;    ///< the current row without its time, to its line's end
    std::string mNewCells; ///< the same while it is made
};

} // namespace TARN
