#include "Capture.h"

#include "Harness.h"
#include "base/ByteOrder.h"

#include <cstdint>
#include <fstream>
#include <initializer_list>

namespace TARN::Bench {

namespace {

void writeWord(std::ofstream& file, std::uint32_t word)
{
    file.write(reinterpret_cast<const char*>(&word), sizeof word);
}

/// A block is its type, its length in bytes, its body and the length again.
void writeBlock(std::ofstream& file, std::uint32_t type, std::initializer_list<std::uint32_t> body)
{
    const auto length = static_cast<std::uint32_t>((body.size() + 3) * sizeof type);
    writeWord(file, type);
    writeWord(file, length);
    for (const std::uint32_t word : body) {
        writeWord(file, word);
    }
    writeWord(file, length);
}

void writeFrame(std::ofstream& file, const RecordEntry& sample)
{
    constexpr std::uint32_t PayloadSize = sizeof sample.data;
    constexpr std::uint32_t FrameSize = 8 + PayloadSize;
    const std::uint64_t ticks = std::uint64_t(sample.timeHigh) << 32 | sample.timeLow;
    const std::uint64_t nanoseconds = ticks * 125 / 4;
    writeBlock(file, 6,
               {sample.channel, static_cast<std::uint32_t>(nanoseconds >> 32),
                static_cast<std::uint32_t>(nanoseconds), FrameSize, FrameSize,
                byteSwapped(sample.id), PayloadSize, loadLittle<std::uint32_t>(&sample.data[0]),
                loadLittle<std::uint32_t>(&sample.data[4])});
}

} // namespace

void writeCapture(const std::string& path, std::span<const RecordEntry> samples)
{
    constexpr std::uint32_t SocketCan = 227;
    constexpr std::uint32_t InNanoseconds[] = {1 << 16 | 9, 9}; // option 9 of one byte: 10^-9 s
    std::ofstream file(path, std::ios::binary);
    writeBlock(file, 0x0A0D0D0A, {0x1A2B3C4D, 1, UINT32_MAX, UINT32_MAX}); // of unknown length
    for (int channel = 0; channel < 2; ++channel) {
        writeBlock(file, 1, {SocketCan, 0, InNanoseconds[0], InNanoseconds[1], 0});
    }
    for (const RecordEntry& sample : samples) {
        writeFrame(file, sample);
    }
    require(file.flush().good(), "can't write " + path);
}

} // namespace TARN::Bench
