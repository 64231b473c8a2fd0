#include "Traffic.h"

#include "Harness.h"
#include "base/ByteOrder.h"
#include "profile/ProfileTypes.h"

#include <algorithm>
#include <bit>
#include <cstdio>
#include <cstring>
#include <memory>
#include <numeric>
#include <unistd.h>

namespace TARN::Bench {

namespace {

template <typename Value>
void storeBig(Value value, unsigned char* to)
{
    value = byteSwapped(value);
    std::memcpy(to, &value, sizeof value);
}

/// A new file. It is on the disk when close() returns, so that nothing is written back while
/// something is timed.
class OutputFile
{
public:
    explicit OutputFile(const std::string& path) : mFile(std::fopen(path.c_str(), "wb"))
    {
        require(mFile != nullptr, "can't write " + path);
    }
    ~OutputFile() { std::fclose(mFile); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::span<const unsigned char> bytes)
    {
        require(std::fwrite(bytes.data(), 1, bytes.size(), mFile) == bytes.size(), "disk full");
    }
    void close() { require(std::fflush(mFile) == 0 && fsync(fileno(mFile)) == 0, "disk full"); }

private:
    std::FILE* mFile;
};

std::vector<unsigned char> recordingHeader()
{
    std::vector<unsigned char> header(HeaderSize);
    storeBig<std::uint16_t>(0xABBA, &header[0]);
    storeBig<std::uint16_t>(2016, &header[12]);
    header[14] = 5; // month
    header[15] = 9; // day
    return header;
}

void fillSample(const Message& message, std::uint64_t slot, std::uint64_t ticks, Random& random,
                unsigned char* to)
{
    fillPayload(message, slot, random, to);
    storeBig(static_cast<std::uint16_t>(message.channel), to + 10);
    storeBig(message.id, to + 12);
    storeBig(static_cast<std::uint32_t>(ticks >> 32), to + 20);
    storeBig(static_cast<std::uint32_t>(ticks), to + 24);
}

} // namespace

std::vector<Message> busMessages()
{
    constexpr int Periods[] = {1, 2, 2, 5, 5, 10, 10, 10, 100, 200};
    constexpr int Types[] = {DataType::Float,  DataType::Float, DataType::Float, DataType::Short2,
                             DataType::UChar4, DataType::BLong, DataType::Float, DataType::ULong};
    std::vector<Message> messages;
    for (unsigned i = 0; i < 118; ++i) {
        const int period = Periods[i * 7 % std::size(Periods)];
        const unsigned id = 301 + i * 10;
        messages.push_back({i % 4 == 3 ? 1U : 0U, id, Types[i % std::size(Types)], period,
                            static_cast<int>(i * 13) % period});
    }
    messages.push_back({0, 1200, DataType::UChar4, 100, 0}); // time of day
    messages.push_back({0, 1206, DataType::UChar4, 100, 0}); // date
    return messages;
}

namespace {

std::vector<Message> tenthlyMessages(unsigned count)
{
    std::vector<Message> messages;
    for (unsigned i = 0; i < count; ++i) {
        // Sent before the half of a tenth, so that all numbers of a tenth round to one row.
        messages.push_back({0, 500 + i, DataType::Float, 10, static_cast<int>(i % 5)});
    }
    return messages;
}

} // namespace

std::vector<Message> tableMessages()
{
    return tenthlyMessages(30);
}

std::vector<Message> csvMessages()
{
    return tenthlyMessages(50);
}

void fillPayload(const Message& message, std::uint64_t slot, Random& random, unsigned char* to)
{
    to[0] = static_cast<unsigned char>(message.id);
    to[1] = static_cast<unsigned char>(message.typeCode);
    to[2] = 0;
    to[3] = static_cast<unsigned char>(slot);
    std::uint32_t bits = random.next();
    if (message.typeCode == DataType::Float) {
        const auto wander = static_cast<double>((slot + message.id) % 6000) * 0.02;
        bits = std::bit_cast<std::uint32_t>(static_cast<float>(wander + bits * 0x1p-32));
    }
    storeBig(bits, to + 4);
}

void writeRecording(const std::string& path, const std::vector<Message>& messages,
                    std::size_t samples)
{
    constexpr std::uint64_t TicksPerSlot = 320'000; // of 31.25 ns
    constexpr std::uint64_t TicksPerFrame = 2'000;
    OutputFile file(path);
    file.write(recordingHeader());
    Random random;
    unsigned char sample[SampleSize] = {};
    std::size_t written = 0;
    for (std::uint64_t slot = 0; written < samples; ++slot) {
        std::uint64_t ticks = slot * TicksPerSlot;
        // Who comes first on the bus differs from slot to slot.
        const std::size_t first = random.below(static_cast<std::uint32_t>(messages.size()));
        for (std::size_t i = 0; i < messages.size() && written < samples; ++i) {
            const Message& message = messages[(first + i) % messages.size()];
            if (slot % message.period == static_cast<std::uint64_t>(message.phase)) {
                ticks += 1 + random.below(TicksPerFrame);
                fillSample(message, slot, ticks, random, sample);
                file.write(sample);
                ++written;
            }
        }
    }
    file.close();
}

void shuffleBlocks(const std::string& from, const std::string& to)
{
    constexpr std::size_t BlockSize = 256 * SampleSize;
    const std::vector<unsigned char> bytes = readFile(from);
    const std::span samples = std::span(bytes).subspan(HeaderSize);
    std::vector<std::size_t> blocks((samples.size() + BlockSize - 1) / BlockSize);
    std::iota(blocks.begin(), blocks.end(), 0U);
    Random random;
    for (std::size_t i = blocks.size(); i > 1; --i) {
        std::swap(blocks[i - 1], blocks[random.below(static_cast<std::uint32_t>(i))]);
    }
    OutputFile file(to);
    file.write(std::span(bytes).first(HeaderSize));
    for (const std::size_t block : blocks) {
        const std::size_t begin = block * BlockSize;
        file.write(samples.subspan(begin, std::min(BlockSize, samples.size() - begin)));
    }
    file.close();
}

std::vector<unsigned char> readFile(const std::string& path)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                               std::fclose);
    require(file != nullptr, "can't read " + path);
    std::fseek(file.get(), 0, SEEK_END);
    std::vector<unsigned char> bytes(static_cast<std::size_t>(std::ftell(file.get())));
    std::rewind(file.get());
    require(std::fread(bytes.data(), 1, bytes.size(), file.get()) == bytes.size(), "short read");
    return bytes;
}

} // namespace TARN::Bench
