#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace TARN::Demo {

/// One received message as the recording keeps it.
struct CanSample
{
    std::uint64_t ticks = 0; ///< of 31.25 ns since midnight
    std::uint32_t id = 0;
    std::uint16_t channel = 0;
    std::array<std::uint8_t, 8> data{};
};

/// What stands in the header of a recording file.
struct CanHeader
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::uint64_t startTicks = 0;
    std::uint32_t busType = 0;
    std::uint32_t ecuSerialNumber = 0;
    std::string softwarePartA; ///< texts of up to 13 characters
    std::string ecuType;
    std::string engineSerialNr;
    std::string engineType;
    std::string softwarePartB;
    std::string emuSwVersion; ///< up to 7 characters
};

/// Writes one recording file in pieces, under a working name beside the final one. The file gets
/// its name only by publish(), so a failure never leaves half a recording for a viewer to find.
class CanWriter
{
public:
    CanWriter(std::string path, bool littleEndian);
    ~CanWriter(); ///< removes the working file unless it was published
    CanWriter(const CanWriter&) = delete;
    CanWriter& operator=(const CanWriter&) = delete;

    // Each step returns false after a failure; error() then says what happened in one line.
    bool open(const CanHeader& header);
    bool add(const CanSample& sample);
    bool close();   ///< everything is on its way to the disk
    bool publish(); ///< after close(): gives the file its name, replacing an older one

    const std::string& error() const { return mError; }
    std::uint64_t samples() const { return mSamples; }

private:
    void put(std::uint64_t value, int width);
    void putText(const std::string& text, std::size_t width);
    bool flush();
    bool fail(const char* action);

    std::string mPath;
    std::string mWorkPath;
    std::string mError;
    std::FILE* mFile = nullptr;
    bool mLittleEndian;
    bool mExists = false; // a working file that has to be removed
    std::uint64_t mSamples = 0;
    std::vector<std::uint8_t> mBuffer;
};

} // namespace TARN::Demo
