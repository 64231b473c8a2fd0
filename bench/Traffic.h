#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace TARN::Bench {

constexpr std::size_t HeaderSize = 128;
constexpr std::size_t SampleSize = 28;

/// A message that a unit on the bus sends over and over.
struct Message
{
    unsigned channel;
    unsigned id;
    int typeCode; ///< payload byte 1
    int period;   ///< in slots of 10 ms
    int phase;    ///< below period
};

/// Random numbers that are the same in every run.
class Random
{
public:
    std::uint32_t next()
    {
        mState += 0x9E3779B97F4A7C15ULL;
        const std::uint64_t mixed = (mState ^ (mState >> 31)) * 0xBF58476D1CE4E5B9ULL;
        return static_cast<std::uint32_t>(mixed >> 32);
    }
    std::uint32_t below(std::uint32_t limit)
    {
        return static_cast<std::uint32_t>(std::uint64_t(next()) * limit >> 32);
    }

private:
    std::uint64_t mState = 0;
};

/// Some 120 messages on two channels, from 100 times a second to once in two seconds, as the
/// units of an engine, its air data and its navigation send them.
std::vector<Message> busMessages();

/// 30 numbers, each sent once in every tenth of a second.
std::vector<Message> tableMessages();

/// 50 of them.
std::vector<Message> csvMessages();

/// Bytes 0 to 7 of a sample: a number that wanders where the type is FLOAT, else any bits.
void fillPayload(const Message& message, std::uint64_t slot, Random& random, unsigned char* to);

/// Writes a big-endian recording of \p samples samples, in order of time.
void writeRecording(const std::string& path, const std::vector<Message>& messages,
                    std::size_t samples);

/// Copies a recording with its blocks of 256 samples in a random order.
void shuffleBlocks(const std::string& from, const std::string& to);

std::vector<unsigned char> readFile(const std::string& path);

} // namespace TARN::Bench
