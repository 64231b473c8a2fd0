#include "export/ExportCan.h"

#include "base/ByteOrder.h"
#include "base/Diagnostics.h"
#include "base/Numbers.h"
#include "base/OutputFile.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <cstring>
#include <vector>

namespace TARN {

namespace {

template <typename T>
void storeBig(T value, unsigned char* to)
{
    const T big = byteSwapped(value);
    std::memcpy(to, &big, sizeof big);
}

/// The header as it stands in the file: without a start time, its numbers in the order of the
/// samples.
RecordHeaderBytes excerptHeader(const RecordHeaderBytes& header, bool isBigEndian)
{
    RecordHeaderBytes out = header;
    std::fill_n(out.begin() + 20, 8, static_cast<unsigned char>(0));
    if (isBigEndian) {
        return out;
    }
    for (const std::size_t word16 : {0, 2, 4, 6, 12}) {
        std::reverse(&out[word16], &out[word16] + 2);
    }
    for (const std::size_t word32 : {8, 28, 32}) {
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

ExportResult ExportCan::write(const ExportInput& input, Progress& progress)
{
    OutputFile file(path());
    if (!file.open()) {
        diagnose("Could not open %s\n", qUtf8Printable(path()));
        return ExportResult::failure(
            QCoreApplication::translate("ExportCan", "\"%1\" can't be written: %2")
                .arg(path(), file.errorText()));
    }
    constexpr std::size_t Piece = 4096; // samples between two looks at the progress
    const RecordData& data = input.flight->samples();
    diagnose("ExportCan::exportData: %zu records to export\n", data.count());
    const Record& record = *input.flight->record();
    const auto header = excerptHeader(record.rawData(), record.rawDataIsBigEndian());
    file.write(asText(header.data(), header.size()));
    std::vector<unsigned char> piece(Piece * sizeof(RecordEntry));
    for (std::size_t begin = 0; begin < data.count() && !file.failed(); begin += Piece) {
        progress.report(begin, data.count());
        if (progress.stopRequested()) {
            return ExportResult::stopped();
        }
        const std::size_t end = std::min(begin + Piece, data.count());
        unsigned char* to = piece.data();
        for (std::size_t k = begin; k < end; ++k) {
            const RecordEntry& entry = data.inTimeOrder(k);
            if (mOptions.range().contains(entry.time())) {
                encode(entry, mOptions.startTime, to);
                to += sizeof(RecordEntry);
            }
        }
        file.write(asText(piece.data(), static_cast<std::size_t>(to - piece.data())));
    }
    if (!file.commit()) {
        return ExportResult::failure(
            QCoreApplication::translate("ExportCan", "\"%1\" could not be written: %2")
                .arg(path(), file.errorText()));
    }
    return ExportResult::success();
}

} // namespace TARN
