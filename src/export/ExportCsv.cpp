#include "export/ExportCsv.h"

#include "base/ClockTime.h"
#include "base/Diagnostics.h"
#include "base/OutputFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <limits>

namespace TARN {

namespace {

constexpr double NoSample = 1e15;
constexpr std::size_t PrefetchDistance = 8; // samples
constexpr auto NoTick = std::numeric_limits<std::int64_t>::max();

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct CsvTexts
{
    Q_DECLARE_TR_FUNCTIONS(ExportCsv)
};

void appendPadded(std::int64_t value, int digits, std::string& out)
{
    char buffer[24];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
    for (auto length = end - buffer; length < digits; ++length) {
        out += '0';
    }
    out.append(buffer, end);
}

} // namespace

ExportCsv::ExportCsv(const CsvExportOptions& options)
    : mOptions(options), mStepsPerSecond(1.0 / (options.resolution * 0.001))
{}

ExportResult ExportCsv::write(const ExportInput& input, Progress& progress)
{
    mCells.clear();
    diagnose("Start %f Stop %f\n", mOptions.startTime, mOptions.stopTime);
    if (!addColumns(input, progress)) {
        return ExportResult::stopped();
    }
    const std::int64_t first = tick(mEarliest);
    // Without a sample there is no row, whatever the end of the range.
    const std::int64_t last = mEarliest == NoSample ? first - 1 : tick(mOptions.stopTime);
    diagnose("th0 %lld th1 %lld\n", static_cast<long long>(first), static_cast<long long>(last));
    const QString reason = refusal(first, last);
    if (!reason.isEmpty()) {
        diagnose("%s\n", qUtf8Printable(reason));
        return ExportResult::failure(reason);
    }
    return writeFile(first, last, progress);
}

std::int64_t ExportCsv::tick(double time) const
{
    return truncatedTo<std::int64_t>(time * mStepsPerSecond + 0.5);
}

void ExportCsv::findNextTick(Column& column) const
{
    column.nextTick = column.empty() ? NoTick : tick(column.series.time(column.next));
}

/// False when it was asked to stop.
bool ExportCsv::addColumns(const ExportInput& input, Progress& progress)
{
    mColumns.clear();
    mEarliest = NoSample;
    mLatest = -NoSample;
    for (const auto& [device, parameter] : input.flight->profile()->parameters()) {
        if (progress.stopRequested()) {
            return false;
        }
        if (mOptions.allParameters || input.selection.contains(*parameter)) {
            addColumn(input, *parameter);
        }
    }
    return true;
}

void ExportCsv::addColumn(const ExportInput& input, const ProfileParameter& parameter)
{
    Column column{.title = parameter.name.toStdString(), .series = input.series(parameter)};
    const Series& series = column.series;
    column.next = series.firstNotBefore(mOptions.startTime);
    column.end = std::max(column.next, series.firstAfter(mOptions.stopTime));
    if (!column.empty()) {
        mEarliest = std::min(mEarliest, series.time(column.next));
        mLatest = std::max(mLatest, series.time(column.end - 1));
    }
    findNextTick(column);
    mColumns.push_back(std::move(column));
}

/// Why the table should not be begun; empty when nothing speaks against it.
QString ExportCsv::refusal(std::int64_t first, std::int64_t last) const
{
    if (first > last) {
        return {}; // the title line alone
    }
    const auto times = [this] {
        return CsvTexts::tr(
                   "The first sample is at %1 s, the last at %2 s, the export ends at %3 s. "
                   "Choose a shorter time range or a coarser resolution.")
            .arg(mEarliest, 0, 'f', 3)
            .arg(mLatest, 0, 'f', 3)
            .arg(mOptions.stopTime, 0, 'f', 3);
    };
    if (first < std::numeric_limits<std::int32_t>::min() ||
        last > std::numeric_limits<std::int32_t>::max()) {
        return CsvTexts::tr("The table would have too many rows.") + " " + times();
    }
    constexpr std::size_t TimeWidth = 13;
    std::size_t rowSize = TimeWidth;
    for (const Column& column : mColumns) {
        std::string text;
        if (!column.empty()) {
            column.series.decoder().appendText(column.series.entry(column.next), text);
        }
        rowSize += text.size() + 1;
    }
    const auto size = static_cast<double>(rowSize) * static_cast<double>(last - first + 1);
    std::error_code unknown;
    const auto disk =
        std::filesystem::space(QFileInfo(path()).absolutePath().toStdString(), unknown);
    if (!unknown && size > static_cast<double>(disk.available)) {
        return CsvTexts::tr(
                   "The table would have %1 rows, about %2 MB, more than is free in \"%3\".")
                   .arg(last - first + 1)
                   .arg(size / 1e6, 0, 'f', 0)
                   .arg(QString::fromStdString(mOptions.directory)) +
               " " + times();
    }
    return {};
}

ExportResult ExportCsv::writeFile(std::int64_t first, std::int64_t last, Progress& progress)
{
    OutputFile file(path());
    if (!file.open()) {
        diagnose("could not open <%s> for write !\n", qUtf8Printable(path()));
        return ExportResult::failure(
            CsvTexts::tr("\"%1\" can't be written: %2").arg(path(), file.errorText()));
    }
    std::string title = "Time";
    for (const Column& column : mColumns) {
        title += mOptions.separator + column.title;
    }
    file.write(title + "\n");
    if (!writeRows(file, first, last, progress)) {
        return ExportResult::stopped();
    }
    if (!file.commit()) {
        return ExportResult::failure(
            CsvTexts::tr("\"%1\" could not be written: %2").arg(path(), file.errorText()));
    }
    return ExportResult::success(
        mColumns.empty() ? CsvTexts::tr("No parameter is selected, the file holds its title only.")
        : first > last   ? CsvTexts::tr("No sample lies in the time range, the file holds its "
                                          "titles only.")
                         : QString());
}

/// False when it was asked to stop.
bool ExportCsv::writeRows(OutputFile& file, std::int64_t first, std::int64_t last,
                          Progress& progress)
{
    constexpr std::int64_t Piece = 256; // rows between two looks at the progress
    std::int64_t nextChange = first;    // until then rows differ in their time alone
    std::string time;
    for (std::int64_t row = first; row <= last && !file.failed(); ++row) {
        if (row == nextChange || row == first + 1) {
            nextChange = advance(row, row == first);
        }
        time.clear();
        appendElapsed(row, time);
        file.write(time);
        file.write(mCells);
        if ((row - first) % Piece == 0) {
            progress.report(static_cast<std::size_t>(row - first),
                            static_cast<std::size_t>(last - first + 1));
            if (progress.stopRequested()) {
                return false;
            }
        }
    }
    return true;
}

/// The last sample of a row; null when the column has none in it.
const RecordEntry* ExportCsv::takeSample(Column& column, std::int64_t row) const
{
    const std::size_t begin = column.next;
    while (column.nextTick == row) {
        ++column.next;
        findNextTick(column);
        // A row visits every list: too many for the processor to foresee where each goes on.
        if (column.next + PrefetchDistance < column.end) {
            __builtin_prefetch(&column.series.entry(column.next + PrefetchDistance));
        }
    }
    return column.next > begin ? &column.series.lastInList(begin, column.next) : nullptr;
}

/// Makes the cells of a row from those of the row before and its samples; returns the next row
/// that has samples. In the first row the last column has no cell, not even an empty one, unless
/// it has a sample; readers of these files have learned to live with that.
std::int64_t ExportCsv::advance(std::int64_t row, bool isFirstRow)
{
    std::int64_t next = NoTick;
    mNewCells.clear();
    for (Column& column : mColumns) {
        const RecordEntry* entry = takeSample(column, row);
        next = std::min(next, column.nextTick);
        if (isFirstRow && entry == nullptr && &column == &mColumns.back()) {
            break;
        }
        mNewCells += mOptions.separator;
        const std::size_t begin = mNewCells.size();
        if (entry != nullptr) {
            column.series.decoder().appendText(*entry, mNewCells);
        } else {
            mNewCells.append(mCells, column.cellBegin, column.cellSize);
        }
        column.cellBegin = begin;
        column.cellSize = mNewCells.size() - begin;
    }
    mNewCells += '\n';
    mCells.swap(mNewCells);
    return next;
}

/// Time since the first sample. Ticks are rounded and the first sample's is truncated, so the
/// first row can read one step.
void ExportCsv::appendElapsed(std::int64_t row, std::string& out) const
{
    const double f = mStepsPerSecond;
    const auto steps =
        static_cast<double>(row - truncatedTo<std::int64_t>(mEarliest * mStepsPerSecond));
    const auto hours = static_cast<int>(steps / (f * 3600));
    double rest = steps - hours * f * 3600;
    const auto minutes = static_cast<int>(rest / (f * 60));
    rest = rest - minutes * f * 60;
    const auto seconds = static_cast<int>(rest / f);
    const auto milliseconds = static_cast<int>((rest - seconds * f) * mOptions.resolution);
    appendPadded(hours, 1, out);
    out += ':';
    appendPadded(minutes, 2, out);
    out += ':';
    appendPadded(seconds, 2, out);
    out += '.';
    appendPadded(milliseconds, 3, out);
}

} // namespace TARN
