#pragma once

#include <QtCore/QSaveFile>
#include <QtCore/QString>

#include <string>
#include <string_view>

namespace TARN {

/// A file that is written piece by piece and takes its name only when it is complete: until
/// commit() the old file of that name stays.
class OutputFile
{
public:
    explicit OutputFile(const QString& path);

    bool open();

    void write(std::string_view bytes)
    {
        if (mBuffer.size() + bytes.size() > BufferSize) {
            flush();
        }
        mBuffer.append(bytes);
    }

    /// True after a write has failed; later writes are dropped.
    bool failed() const { return mFailed; }

    /// False when anything could not be written; the old file is then still there.
    bool commit();

    /// What the system said about the failure.
    QString errorText() const { return mFile.errorString(); }

private:
    static constexpr std::size_t BufferSize = 1 << 20;

    void flush();

    QSaveFile mFile;
    std::string mBuffer;
    bool mFailed = false;
};

} // namespace TARN
