#include "export/ExportCsv.h"

#include "base/ClockTime.h"
#include "base/Diagnostics.h"
#include "base/OutputFile.h"
#include "export/ExportSource.h"
#include "profile/Profile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <limits>
#include <numeric>

namespace TARN {

namespace {

constexpr double NoSample = 1e15;
constexpr std::size_t PrefetchDistance = 8; // samples
constexpr auto NoTick = std::numeric_limits<std::int64_t>::max();

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct Texts
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

ExportResult ExportCsv::exportData(Record& record, const CsvExportOptions& options)
{
    if (const QString source = sourceRefusal(record, options.path()); !source.isEmpty()) {
        return ExportResult::failure(source);
    }
    mColumns.clear();
    mCells.clear();
    mEarliest = NoSample;
    mLatest = -NoSample;
    mStepsPerSecond = 1.0 / (options.resolution * 0.001);
    diagnose("Start %f Stop %f\n", options.startTime, options.stopTime);
    for (const auto& [id, device] : mProfile.data().devices) {
        for (const auto& [uid, parameter] : device.parameters) {
            if (parameter.selected || options.allParameters) {
                addColumn(record, parameter, options);
                if (mProgress) {
                    mProgress(0); // each looks at all its samples; the window stays painted
                }
            }
        }
    }
    const std::int64_t first = tick(mEarliest);
    // Without a sample there is no row, whatever the end of the range.
    const std::int64_t last = mEarliest == NoSample ? first - 1 : tick(options.stopTime);
    diagnose("th0 %lld th1 %lld\n", static_cast<long long>(first), static_cast<long long>(last));
    const QString reason = refusal(first, last, options);
    if (!reason.isEmpty()) {
        diagnose("%s\n", qUtf8Printable(reason));
        return ExportResult::failure(reason);
    }
    return writeFile(options, first, last);
}

std::int64_t ExportCsv::tick(double time) const
{
    return truncatedTo<std::int64_t>(time * mStepsPerSecond + 0.5);
}

void ExportCsv::findNextTick(Column& column) const
{
    column.nextTick =
        column.next < column.size() ? tick(column.at(column.next).time() + column.shift) : NoTick;
}

void ExportCsv::addColumn(const Record& record, const ProfileParameter& parameter,
                          const CsvExportOptions& options)
{
    Column column{.title = parameter.name.toStdString(),
                  .decoder = Decoder(mProfile.data(), parameter)};
    const RecordIdList* list = record.recordData().find(static_cast<unsigned>(parameter.channel),
                                                        static_cast<unsigned>(parameter.id));
    if (list != nullptr) {
        column.entries = list->entries;
        column.shift = list->shift(record.recordData().offset);
        scan(column, options);
    }
    findNextTick(column);
    mColumns.push_back(std::move(column));
}

/// Keeps the samples inside the range and sees to it that their ticks ascend.
void ExportCsv::scan(Column& column, const CsvExportOptions& options)
{
    std::size_t begin = column.entries.size();
    std::size_t end = 0;
    std::size_t inside = 0;
    double lastTime = -NoSample;
    bool ascending = true; // where times ascend, so do their ticks
    const auto isInside = [&](double time) {
        return options.startTime <= time && time <= options.stopTime;
    };
    for (std::size_t i = 0; i < column.entries.size(); ++i) {
        const double time = column.entries[i].time() + column.shift;
        if (!isInside(time)) {
            continue;
        }
        begin = std::min(begin, i);
        end = i + 1;
        ++inside;
        mEarliest = std::min(mEarliest, time);
        mLatest = std::max(mLatest, time);
        ascending = ascending && time >= lastTime;
        lastTime = time;
    }
    column.entries =
        inside == 0 ? column.entries.first(0) : column.entries.subspan(begin, end - begin);
    if (ascending && inside == column.entries.size()) {
        return;
    }
    for (std::size_t i = 0; i < column.entries.size(); ++i) {
        if (isInside(column.entries[i].time() + column.shift)) {
            column.order.push_back(static_cast<std::uint32_t>(i));
        }
    }
    std::ranges::stable_sort(column.order, {}, [&](std::uint32_t i) {
        return tick(column.entries[i].time() + column.shift);
    });
    column.ordered = true;
}

/// Why the table should not be begun; empty when nothing speaks against it.
QString ExportCsv::refusal(std::int64_t first, std::int64_t last, const CsvExportOptions& options)
{
    if (first > last) {
        return {}; // the title line alone
    }
    const auto times = [this, &options] {
        return Texts::tr("The first sample is at %1 s, the last at %2 s, the export ends at %3 s. "
                         "Choose a shorter time range or a coarser resolution.")
            .arg(mEarliest, 0, 'f', 3)
            .arg(mLatest, 0, 'f', 3)
            .arg(options.stopTime, 0, 'f', 3);
    };
    if (first < std::numeric_limits<std::int32_t>::min() ||
        last > std::numeric_limits<std::int32_t>::max()) {
        return Texts::tr("The table would have too many rows.") + " " + times();
    }
    constexpr std::size_t TimeWidth = 13;
    std::size_t rowSize = TimeWidth;
    for (const Column& column : mColumns) {
        std::string text;
        if (column.size() > 0) {
            column.decoder.appendText(column.at(0), text);
        }
        rowSize += text.size() + 1;
    }
    const auto size = static_cast<double>(rowSize) * static_cast<double>(last - first + 1);
    std::error_code unknown;
    const auto disk =
        std::filesystem::space(QFileInfo(options.path()).absolutePath().toStdString(), unknown);
    if (!unknown && size > static_cast<double>(disk.available)) {
        return Texts::tr("The table would have %1 rows, about %2 MB, more than is free in \"%3\".")
                   .arg(last - first + 1)
                   .arg(size / 1e6, 0, 'f', 0)
                   .arg(QString::fromStdString(options.directory)) +
               " " + times();
    }
    return {};
}

ExportResult ExportCsv::writeFile(const CsvExportOptions& options, std::int64_t first,
                                  std::int64_t last)
{
    OutputFile file(options.path());
    if (!file.open()) {
        diagnose("could not open <%s> for write !\n", qUtf8Printable(options.path()));
        return ExportResult::failure(
            Texts::tr("\"%1\" can't be written: %2").arg(options.path(), file.errorText()));
    }
    std::string title = "Time";
    for (const Column& column : mColumns) {
        title += options.separator + column.title;
    }
    file.write(title + "\n");
    writeRows(file, options, first, last);
    if (!file.commit()) {
        return ExportResult::failure(
            Texts::tr("\"%1\" could not be written: %2").arg(options.path(), file.errorText()));
    }
    return ExportResult::success(
        mColumns.empty() ? Texts::tr("No parameter is selected, the file holds its title only.")
        : first > last   ? Texts::tr("No sample lies in the time range, the file holds its "
                                       "titles only.")
                         : QString());
}

void ExportCsv::writeRows(OutputFile& file, const CsvExportOptions& options, std::int64_t first,
                          std::int64_t last)
{
    std::int64_t nextChange = first; // until then rows differ in their time alone
    std::string time;
    int percent = -1;
    for (std::int64_t row = first; row <= last && !file.failed(); ++row) {
        if (row == nextChange || row == first + 1) {
            nextChange = advance(row, options.separator, row == first);
        }
        time.clear();
        appendElapsed(row, options.resolution, time);
        file.write(time);
        file.write(mCells);
        const auto now = static_cast<int>(100 * (row - first) / (last - first + 1));
        if (now != percent && mProgress) {
            mProgress(now);
        }
        percent = now;
    }
}

/// The last sample of a row; null when the column has none in it.
const RecordEntry* ExportCsv::takeSample(Column& column, std::int64_t row) const
{
    const RecordEntry* entry = nullptr;
    while (column.nextTick == row) {
        entry = &column.at(column.next++);
        findNextTick(column);
        // A row visits every list: too many for the processor to foresee where each goes on.
        if (column.next + PrefetchDistance < column.size()) {
            __builtin_prefetch(&column.at(column.next + PrefetchDistance));
        }
    }
    return entry;
}

/// Makes the cells of a row from those of the row before and its samples; returns the next row
/// that has samples. In the first row the last column has no cell, not even an empty one, unless
/// it has a sample; readers of these files have learned to live with that.
std::int64_t ExportCsv::advance(std::int64_t row, char separator, bool isFirstRow)
{
    std::int64_t next = NoTick;
    mNewCells.clear();
    for (Column& column : mColumns) {
        const RecordEntry* entry = takeSample(column, row);
        next = std::min(next, column.nextTick);
        if (isFirstRow && entry == nullptr && &column == &mColumns.back()) {
            break;
        }
        mNewCells += separator;
        const std::size_t begin = mNewCells.size();
        if (entry != nullptr) {
            column.decoder.appendText(*entry, mNewCells);
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
void ExportCsv::appendElapsed(std::int64_t row, int resolution, std::string& out) const
{
    const double f = mStepsPerSecond;
    const auto steps =
        static_cast<double>(row - truncatedTo<std::int64_t>(mEarliest * mStepsPerSecond));
    const auto hours = static_cast<int>(steps / (f * 3600));
    double rest = steps - hours * f * 3600;
    const auto minutes = static_cast<int>(rest / (f * 60));
    rest = rest - minutes * f * 60;
    const auto seconds = static_cast<int>(rest / f);
    const auto milliseconds = static_cast<int>((rest - seconds * f) * resolution);
    appendPadded(hours, 1, out);
    out += ':';
    appendPadded(minutes, 2, out);
    out += ':';
    appendPadded(seconds, 2, out);
    out += '.';
    appendPadded(milliseconds, 3, out);
}

} // namespace TARN
