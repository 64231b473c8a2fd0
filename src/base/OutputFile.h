#pragma once

#include <QtCore/QSaveFile>
#include <QtCore/QString>

#include <string>
#include <string_view>

namespace TARN {

/// A file that is written piece by piece and takes its name only when it is complete: until
/// commit() the old file of that name stays, and where anything fails it stays for good.
class OutputFile
{
public:
    explicit OutputFile(const QString& path);

    /// False when the file can't be made, or when the name belongs to something that is no
    /// file: replacing a pipe or a device by one would be a surprise.
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

    /// False when anything could not be written.
    bool commit();

    /// What the system said about the failure.
    const QString& errorText() const { return mErrorText; }

private:
    static constexpr std::size_t BufferSize = 1 << 20;

    void flush();
    void startWriting(qint64 bytes);
    bool fail();

    QSaveFile mFile;
    std::string mBuffer;
    QString mErrorText;
    bool mFailed = false;
};

} // namespace TARN
