#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>

/// What the fuzz targets share. Each target is one LLVMFuzzerTestOneInput, called by libFuzzer in
/// a build of the preset "fuzz" and by the replay of the kept inputs in any other.
namespace Fuzz {

using Bytes = std::span<const std::uint8_t>;

/// Ends the process with a message when a promise is broken; fuzzer and replay both notice.
void require(bool holds, const char* promise);

/// Path of a file of this process's own folder, which is new for each process.
QString path(const QString& name);
QString write(const QString& name, Bytes content);
QByteArray read(const QString& name);

/// Takes values off the front of an input; past its end all bytes are 0.
class Input
{
public:
    explicit Input(Bytes bytes) : mRest(bytes) {}

    template <typename T>
    T take()
    {
        T value{};
        const Bytes bytes = take(sizeof value);
        if (!bytes.empty()) {
            std::memcpy(&value, bytes.data(), bytes.size());
        }
        return value;
    }

    /// The next bytes, fewer at the end.
    Bytes take(std::size_t count)
    {
        const Bytes taken = mRest.first(std::min(count, mRest.size()));
        mRest = mRest.subspan(taken.size());
        return taken;
    }

    Bytes rest() const { return mRest; }

private:
    Bytes mRest;
};

} // namespace Fuzz
