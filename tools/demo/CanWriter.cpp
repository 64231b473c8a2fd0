#include "CanWriter.h"

#include <cerrno>
#include <cstring>
#include <utility>

namespace TARN::Demo {

namespace {

constexpr std::size_t kBufferSize = 256 * 1024;
constexpr std::uint16_t kMagic = 0xABBA; // tells the reader the byte order
constexpr std::size_t kHeaderSize = 128;

} // namespace

CanWriter::CanWriter(std::string path, bool littleEndian)
    : mPath(std::move(path)), mWorkPath(mPath + ".part"), mLittleEndian(littleEndian)
{
    mBuffer.reserve(kBufferSize + kHeaderSize);
}

CanWriter::~CanWriter()
{
    if (mFile)
        std::fclose(mFile);
    if (mExists)
        std::remove(mWorkPath.c_str());
}

bool CanWriter::fail(const char* action)
{
    mError = std::string("cannot ") + action + " " + mPath + ": " + std::strerror(errno);
    return false;
}

void CanWriter::put(std::uint64_t value, int width)
{
    for (int i = 0; i < width; ++i) {
        int shift = 8 * (mLittleEndian ? i : width - 1 - i);
        mBuffer.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

void CanWriter::putText(const std::string& text, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        mBuffer.push_back(i < text.size() ? static_cast<std::uint8_t>(text[i]) : std::uint8_t{0});
}

bool CanWriter::open(const CanHeader& header)
{
    mFile = std::fopen(mWorkPath.c_str(), "wb");
    if (!mFile)
        return fail("create");
    mExists = true;
    put(kMagic, 2);
    putText("", 10);
    put(static_cast<std::uint64_t>(header.year), 2);
    for (int part : {header.month, header.day, header.hour, header.minute, header.second, 0})
        put(static_cast<std::uint64_t>(part), 1);
    put(header.startTicks >> 32, 4);
    put(header.startTicks & 0xFFFFFFFF, 4);
    put(header.busType, 4);
    put(header.ecuSerialNumber, 4);
    putText(header.softwarePartA, 13);
    putText(header.ecuType, 13);
    putText(header.engineSerialNr, 13);
    putText(header.engineType, 13);
    putText(header.softwarePartB, 13);
    putText(header.emuSwVersion, 7);
    putText("", kHeaderSize - mBuffer.size());
    return true;
}

bool CanWriter::add(const CanSample& sample)
{
    mBuffer.insert(mBuffer.end(), sample.data.begin(), sample.data.end());
    put(0, 2);
    put(sample.channel, 2);
    put(sample.id, 4);
    put(0, 4);
    put(sample.ticks >> 32, 4);
    put(sample.ticks & 0xFFFFFFFF, 4);
    ++mSamples;
    return mBuffer.size() < kBufferSize || flush();
}

bool CanWriter::flush()
{
    if (std::fwrite(mBuffer.data(), 1, mBuffer.size(), mFile) != mBuffer.size())
        return fail("write");
    mBuffer.clear();
    return true;
}

bool CanWriter::close()
{
    if (!flush())
        return false;
    mBuffer = {};
    std::FILE* file = std::exchange(mFile, nullptr);
    return std::fclose(file) == 0 || fail("write");
}

bool CanWriter::publish()
{
    if (std::rename(mWorkPath.c_str(), mPath.c_str()) != 0)
        return fail("replace");
    mExists = false;
    return true;
}

} // namespace TARN::Demo
