#include "Flights.h"
#include "Suite.h"
#include "base/ByteOrder.h"
#include "export/ExportCan.h"
#include "export/ExportCsv.h"
#include "faults/EventDetector.h"
#include "profile/Profile.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdio>
#include <fcntl.h>
#include <fstream>
#include <unistd.h>

namespace TARN::Bench {

namespace {

/// One look at each sample, list by list.
std::uint32_t readAll(const RecordData& data)
{
    std::uint32_t sum = 0;
    for (const RecordIdList& list : data.lists()) {
        for (const RecordEntry& entry : list.entries) {
            sum += entry.timeLow ^ entry.data[7];
        }
    }
    return sum;
}

double scanRatio(Suite& suite)
{
    const auto flight = flightOf(suite.busRecording(100), busMessages());
    require(flight->events().limits.size() > 10, "no limits to find");
    require(!flight->events().warnings.empty(), "no lamps to find");
    const auto detect = [&] {
        return secondsOf([&] { keep(detectEvents(flight->samples(), *flight->profile())); });
    };
    return ratioOf(detect, [&] { return secondsOf([&] { keep(readAll(flight->samples())); }); });
}

CsvExportOptions optionsFor(const Flight& flight, const std::string& path, int resolution)
{
    CsvExportOptions options;
    options.directory = path.substr(0, path.rfind('/'));
    options.fileName = "out";
    options.startTime = flight.info().startTime;
    options.stopTime = flight.info().stopTime;
    options.resolution = resolution;
    return options;
}

Measurement exportOf(const std::shared_ptr<const Flight>& flight, Exporter& exporter)
{
    return [flight, &exporter] {
        const ExportInput input{flight, Selection::all(*flight->profile()), 0.0};
        Progress none;
        return secondsOf([&] { require(exporter.run(input, none).done, "nothing was written"); });
    };
}

Measurement csvOf(const std::shared_ptr<const Flight>& flight, const CsvExportOptions& options)
{
    return [flight, options] {
        ExportCsv exporter(options);
        return exportOf(flight, exporter)();
    };
}

/// Printing each cell once and throwing the text away.
Measurement printOf(const std::shared_ptr<const Flight>& flight, int timesEach)
{
    return [flight, timesEach] {
        char buffer[64];
        const double seconds = secondsOf([&] {
            for (const RecordIdList& list : flight->samples().lists()) {
                for (const RecordEntry& entry : list.entries) {
                    const auto value = std::bit_cast<float>(loadBig<std::uint32_t>(entry.data + 4));
                    keep(std::to_chars(buffer, std::end(buffer), double(value),
                                       std::chars_format::general, 12)
                             .ptr);
                }
            }
        });
        return seconds * timesEach; // filled-down cells print the same values again
    };
}

void checkTable(const std::shared_ptr<const Flight>& flight, const CsvExportOptions& options,
                std::size_t rows)
{
    csvOf(flight, options)();
    std::ifstream file(options.path().toStdString());
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line); ++lines) {
        require(std::ranges::count(line, ';') == 50, "a row lacks a cell");
    }
    require(lines + 2 > rows && lines < rows + 4, "the table lacks rows");
}

double csvRatio(Suite& suite, int resolution)
{
    const std::size_t rows = suite.csvRows();
    const auto flight = flightOf(suite.csvRecording(), csvMessages());
    CsvExportOptions options = optionsFor(*flight, suite.csvRecording(), resolution);
    // The disk has no part in it: its rival throws the text away. The old table is there until
    // the new one is whole.
    constexpr std::uintmax_t TwoTables = 6'000'000'000; // in steps of 1 ms
    const auto& folder = suite.memoryFolder(TwoTables / static_cast<unsigned>(resolution));
    options.directory = folder.string();
    const int timesEach = 100 / resolution;
    if (resolution == 100) {
        checkTable(flight, options, rows);
    }
    return ratioOf(csvOf(flight, options), printOf(flight, timesEach), 5);
}

double statusBytes(const char* field)
{
    std::ifstream status("/proc/self/status");
    std::string word;
    double kilobytes = 0.0;
    while (status >> word) {
        if (word == field) {
            status >> kilobytes;
            break;
        }
    }
    return kilobytes * 1024.0;
}

/// Most memory at any moment of an export, less what the recording held before.
Measurement extraMemoryOf(Suite& suite, int resolution)
{
    return [&suite, resolution] {
        const auto flight = flightOf(suite.csvRecording(), csvMessages());
        const CsvExportOptions options = optionsFor(*flight, suite.csvRecording(), resolution);
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts again from here
        const double before = statusBytes("VmRSS:");
        csvOf(flight, options)();
        constexpr double WriteBuffer = 1 << 20; // less than that is noise of the allocator
        return std::max(statusBytes("VmHWM:") - before, WriteBuffer);
    };
}

double canRatio(Suite& suite)
{
    const std::string& path = suite.busRecording(100);
    const auto flight = flightOf(path, busMessages());
    const CsvExportOptions options = optionsFor(*flight, path, 100);
    const std::string out = options.path().toStdString();
    ExportCan exporter(options);
    const auto excerpt = exportOf(flight, exporter);
    excerpt();
    const std::vector<unsigned char> bytes = readFile(out);
    require(loadRecord(out)->recordData().count() == flight->samples().count(),
            "the excerpt lacks samples");
    const auto plainWrite = [&] {
        return secondsOf([&] {
            const std::string part = out + ".part"; // our files appear whole, so does this one
            const int file = open(part.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
            std::size_t done = 0;
            for (ssize_t put = 1; put > 0 && done < bytes.size();
                 done += static_cast<std::size_t>(put)) {
                put = write(file, bytes.data() + done,
                            std::min<std::size_t>(bytes.size() - done, 1 << 20));
            }
            require(done == bytes.size() && fsync(file) == 0, "short write");
            close(file);
            std::rename(part.c_str(), out.c_str());
        });
    };
    return ratioOf(excerpt, plainWrite);
}

} // namespace

void exportFigures(Suite& suite)
{
    suite.figure("events.scan", 4.0, [&] { return scanRatio(suite); });
    suite.figure("csv.100ms", 1.3, [&] { return csvRatio(suite, 100); });
    suite.figure("csv.10ms", 0.45, [&] { return csvRatio(suite, 10); });
    suite.figure("csv.1ms", 0.16, [&] { return csvRatio(suite, 1); });
    suite.figure("csv.memory", 1.2,
                 [&] { return ratioOf(extraMemoryOf(suite, 1), extraMemoryOf(suite, 100), 5); });
    suite.figure("can.time", 2.0, [&] { return canRatio(suite); });
}

} // namespace TARN::Bench
