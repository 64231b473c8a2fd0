#include "export/ExportCan.h"

#include "base/ByteOrder.h"
#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"
#include "export/ExportSource.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstring>

namespace TARN {

namespace {

template <typename T>
void storeBig(T value, unsigned char* to)
{
    const T big = byteSwapped(value);
    std::memcpy(to, &big, sizeof big);
}

/// The header as it stands in the file: its numbers in the order of the samples.
RecordHeaderBytes bigEndianHeader(const RecordHeaderBytes& header, bool isBigEndian)
{
    RecordHeaderBytes out = header;
    if (isBigEndian) {
        return out;
    }
    for (const std::size_t word16 : {0, 2, 4, 6, 12}) {
        std::reverse(&out[word16], &out[word16] + 2);
    }
    for (const std::size_t word32 : {8, 20, 24, 28, 32}) {
        std::reverse(&out[word32], &out[word32] + 4);
    }
    return out;
}

void encode(const RecordEntry& entry, double start, unsigned char* to)
{
    constexpr double TurnOfLowWord = 134.217728; // seconds
    // A hair above 31.25 ns: the low word of a time just before a turn must not overflow.
    constexpr double Tick = 3.1250000000000005e-8;
    const double time = entry.time() - start;
    const auto high = truncatedTo<std::int32_t>(time / TurnOfLowWord);
    const auto low = truncatedTo<std::uint32_t>((time - high * TurnOfLowWord) / Tick);
    std::memcpy(to, &entry, 10);
    storeBig(entry.channel, to + 10);
    storeBig(entry.id, to + 12);
    storeBig(entry.w16, to + 16);
    storeBig(entry.w18, to + 18);
    storeBig(static_cast<std::uint32_t>(high), to + 20);
    storeBig(low, to + 24);
}

std::string_view asText(const unsigned char* bytes, std::size_t size)
{
    return {reinterpret_cast<const char*>(bytes), size};
}

} // namespace

ExportResult ExportCan::exportData(Record& record, const CsvExportOptions& options)
{
    if (const QString refusal = sourceRefusal(record, options.path()); !refusal.isEmpty()) {
        return ExportResult::failure(refusal);
    }
    const QString path = options.path();
    OutputFile file(path);
    if (!file.open()) {
        diagnose("Could not open %s\n", qUtf8Printable(path));
        return ExportResult::failure(
            QCoreApplication::translate("ExportCan", "\"%1\" can't be written: %2")
                .arg(path, file.errorText()));
    }
    const RecordData& data = record.recordData();
    diagnose("ExportCan::exportData: %zu records to export\n", data.count());
    std::fill_n(record.rawData().begin() + 20, 8, static_cast<unsigned char>(0));
    const auto header = bigEndianHeader(record.rawData(), record.rawDataIsBigEndian());
    file.write(asText(header.data(), header.size()));
    unsigned char sample[sizeof(RecordEntry)];
    int percent = -1;
    for (std::size_t k = 0; k < data.count() && !file.failed(); ++k) {
        const RecordEntry& entry = data.inTimeOrder(k);
        if (options.startTime <= entry.time() && entry.time() <= options.stopTime) {
            encode(entry, options.startTime, sample);
            file.write(asText(sample, sizeof sample));
        }
        const auto now = static_cast<int>(100 * k / data.count());
        if (now != percent && mProgress) {
            mProgress(now);
        }
        percent = now;
    }
    if (!file.commit()) {
        return ExportResult::failure(
            QCoreApplication::translate("ExportCan", "\"%1\" could not be written: %2")
                .arg(path, file.errorText()));
    }
    return ExportResult::success();
}

} // namespace TARN
