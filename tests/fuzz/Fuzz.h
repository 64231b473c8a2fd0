#pragma once

#include "base/Diagnostics.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <source_location>
#include <span>

/// What the fuzz targets share. Each target is one LLVMFuzzerTestOneInput, called by libFuzzer in
/// a build of the preset "fuzz" and by the replay of the kept inputs in any other.
namespace Fuzz {

using Bytes = std::span<const std::uint8_t>;

inline Bytes bytesOf(const QByteArray& text)
{
    return {reinterpret_cast<const std::uint8_t*>(text.data()),
            static_cast<std::size_t>(text.size())};
}

/// What is diagnosed of thousands of damaged inputs a second would only be in the way.
inline const bool IsSilent = [] {
    TARN::setDiagnosticStream(std::fopen("/dev/null", "w"));
    return true;
}();

/// Ends the process when a promise is broken; fuzzer and replay both notice.
inline void require(bool holds, std::source_location place = std::source_location::current())
{
    if (!holds) {
        std::fprintf(stderr, "%s:%u: broken\n", place.file_name(), place.line());
        std::abort();
    }
}

/// Path of a file of this process's own folder, which is new for each process.
inline QString path(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

inline QString write(const QString& name, Bytes content)
{
    QFile file(path(name));
    const auto size = static_cast<qint64>(content.size());
    require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
            file.write(reinterpret_cast<const char*>(content.data()), size) == size);
    return file.fileName();
}

inline QByteArray read(const QString& name)
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "(no file)";
}

/// Takes values off the front of an input; past its end all bytes are 0.
class Input
{
public:
    explicit Input(Bytes bytes) : mRest(bytes) {}

    template <typename T>
    T take()
    {
        T value{};
        std::ranges::copy(take(sizeof value), reinterpret_cast<std::uint8_t*>(&value));
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
