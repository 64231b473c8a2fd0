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

/// Describes every FLOAT message as a parameter with limits, and makes a lamp of one BLONG.
void describe(const std::vector<Message>& messages)
{
    ProfileInfo& profile = Profile::instance()->data();
    profile.clear();
    profile.enums[1].name = "WarningLamp";
    // The numbers wander up to 121: events are as rare as in a flight, some hundreds.
    constexpr std::pair<double, int> Steps[] = {
        {-1e9, StateOk}, {120.9, StateWarning}, {120.97, StateLimit}};
    for (const auto& [value, state] : Steps) {
        ProfileThrValue step;
        step.val = value;
        step.state = state;
        profile.thresholds[1].values.push_back(step);
    }
    for (const Message& message : messages) {
        ProfileParameter parameter;
        parameter.name = QString("P%1").arg(message.id);
        parameter.channel = static_cast<int>(message.channel);
        parameter.id = static_cast<int>(message.id);
        parameter.dataType = message.typeCode;
        parameter.startByte = 4;
        parameter.thresholdId = 1;
        // Its bits are random, so only a message that is seldom sent can stand for a lamp.
        const bool isLamp = message.typeCode == DataType::BLong && message.period >= 100;
        parameter.enumId = isLamp ? 1 : 0;
        parameter.endBit = 1;
        parameter.selected = true;
        profile.devices[1].parameters[parameter.uid] = parameter;
    }
}

void load(Record& record, const std::string& path)
{
    require(record.readRecordData({QString::fromStdString(path)}), "can't load " + path);
}

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
    describe(busMessages());
    Record record;
    load(record, suite.busRecording(100));
    detectEvents(record, *Profile::instance());
    require(record.recordData().limits.size() > 10, "no limits to find");
    require(!record.recordData().warnings.empty(), "no lamps to find");
    return ratioOf([&] { return secondsOf([&] { detectEvents(record, *Profile::instance()); }); },
                   [&] { return secondsOf([&] { keep(readAll(record.recordData())); }); });
}

CsvExportOptions optionsFor(const Record& record, const std::string& path, int resolution)
{
    CsvExportOptions options;
    options.directory = path.substr(0, path.rfind('/'));
    options.fileName = "out";
    options.startTime = record.recordInfo().startTime;
    options.stopTime = record.recordInfo().stopTime;
    options.resolution = resolution;
    return options;
}

Measurement csvOf(Record& record, const CsvExportOptions& options)
{
    return [&record, options] {
        return secondsOf([&] {
            ExportCsv exporter(*Profile::instance());
            require(exporter.exportData(record, options).done, "the table was not written");
        });
    };
}

/// Printing each cell once and throwing the text away.
Measurement printOf(const Record& record, int timesEach)
{
    return [&record, timesEach] {
        char buffer[64];
        const double seconds = secondsOf([&] {
            for (const RecordIdList& list : record.recordData().lists()) {
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

void checkTable(Record& record, const CsvExportOptions& options, std::size_t rows)
{
    csvOf(record, options)();
    std::ifstream file(options.path().toStdString());
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line); ++lines) {
        require(std::ranges::count(line, ';') == 50, "a row lacks a cell");
    }
    require(lines + 2 > rows && lines < rows + 4, "the table lacks rows");
}

double csvRatio(Suite& suite, int resolution)
{
    describe(csvMessages());
    const std::size_t rows = suite.csvRows();
    Record record;
    load(record, suite.csvRecording());
    const CsvExportOptions options = optionsFor(record, suite.csvRecording(), resolution);
    const int timesEach = 100 / resolution;
    if (resolution == 100) {
        checkTable(record, options, rows);
    }
    return ratioOf(csvOf(record, options), printOf(record, timesEach), 5);
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
        Record record;
        load(record, suite.csvRecording());
        const CsvExportOptions options = optionsFor(record, suite.csvRecording(), resolution);
        std::ofstream("/proc/self/clear_refs") << "5"; // the peak starts again from here
        const double before = statusBytes("VmRSS:");
        csvOf(record, options)();
        constexpr double WriteBuffer = 1 << 20; // less than that is noise of the allocator
        return std::max(statusBytes("VmHWM:") - before, WriteBuffer);
    };
}

double canRatio(Suite& suite)
{
    Record record;
    const std::string& path = suite.busRecording(100);
    load(record, path);
    const CsvExportOptions options = optionsFor(record, path, 100);
    const std::string out = options.path().toStdString();
    const auto excerpt = [&] {
        return secondsOf([&] {
            require(ExportCan().exportData(record, options).done, "the excerpt was not written");
        });
    };
    excerpt();
    const std::vector<unsigned char> bytes = readFile(out);
    Record again;
    load(again, out);
    require(again.recordData().count() == record.recordData().count(), "the excerpt lacks samples");
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
    suite.figure("events.scan", atMost(4.0), [&] { return scanRatio(suite); });
    suite.figure("csv.100ms", atMost(1.3), [&] { return csvRatio(suite, 100); });
    suite.figure("csv.10ms", atMost(0.45), [&] { return csvRatio(suite, 10); });
    suite.figure("csv.1ms", atMost(0.2), [&] { return csvRatio(suite, 1); });
    suite.figure("csv.memory", atMost(1.2), [&] {
        describe(csvMessages());
        return ratioOf(extraMemoryOf(suite, 1), extraMemoryOf(suite, 100), 5);
    });
    suite.figure("can.time", atMost(2.0), [&] { return canRatio(suite); });
}

} // namespace TARN::Bench
