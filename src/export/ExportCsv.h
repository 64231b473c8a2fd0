#pragma once

#include "export/CsvExportOptions.h"
#include "export/ExportResult.h"
#include "profile/Decoder.h"
#include "record/Record.h"

#include <cstdint>
#include <string>
#include <vector>

namespace TARN {

class OutputFile;
class Profile;

/// Writes decoded values as a text table on a fixed time grid: a row for each grid step from the
/// first sample in the range to the range's end, a column for each parameter. A cell holds the
/// text of the last sample that rounds to its step; where there is none, the text above it.
///
/// Rows are written as they are made: memory follows the samples, not the rows.
class ExportCsv
{
public:
    explicit ExportCsv(const Profile& profile) : mProfile(profile) {}

    void setProgress(ExportProgress progress) { mProgress = std::move(progress); }

    /// Refused when the grid's steps don't fit 32 bits or its file the free space of the disk.
    ExportResult exportData(Record& record, const CsvExportOptions& options);

private:
    /// The samples of one parameter inside the range, on their way through the grid.
    struct Column
    {
        std::string title;
        Decoder decoder;
        std::span<const RecordEntry> entries = {};
        double shift = 0.0;
        /// The entries inside the range by tick, equal ticks in file order; empty where they
        /// are all inside and ascend already.
        std::vector<std::uint32_t> order = {};
        bool ordered = false;      ///< order is used
        std::size_t next = 0;      ///< the sample to come
        std::int64_t nextTick = 0; ///< its tick; beyond every row after the last sample
        /// The cell's text as it is now, in the current row; empty before the first sample.
        std::size_t cellBegin = 0;
        std::size_t cellSize = 0;

        std::size_t size() const { return ordered ? order.size() : entries.size(); }
        const RecordEntry& at(std::size_t k) const { return entries[ordered ? order[k] : k]; }
    };

    std::int64_t tick(double time) const;
    void findNextTick(Column& column) const;
    void addColumn(const Record& record, const ProfileParameter& parameter,
                   const CsvExportOptions& options);
    void scan(Column& column, const CsvExportOptions& options);
    QString refusal(std::int64_t first, std::int64_t last, const CsvExportOptions& options);
    ExportResult writeFile(const CsvExportOptions& options, std::int64_t first, std::int64_t last);
    void writeRows(OutputFile& file, const CsvExportOptions& options, std::int64_t first,
                   std::int64_t last);
    std::int64_t advance(std::int64_t row, char separator, bool isFirstRow);
    const RecordEntry* takeSample(Column& column, std::int64_t row) const;
    void appendElapsed(std::int64_t row, int resolution, std::string& out) const;

    const Profile& mProfile;
    ExportProgress mProgress;
    double mStepsPerSecond = 0.0;
    double mEarliest = 0.0; ///< time of the first sample exported
    double mLatest = 0.0;   ///< time of the last sample exported
    std::vector<Column> mColumns;
    std::string mCells;    ///< the current row without its time, to its line's end
    std::string mNewCells; ///< the same while it is made
};

} // namespace TARN
