#include "base/OutputFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <fcntl.h>

namespace TARN {

OutputFile::OutputFile(const QString& path) : mFile(path) {}

bool OutputFile::open()
{
    const QFileInfo target(mFile.fileName());
    if (target.exists() && !target.isFile()) {
        mErrorText = QCoreApplication::translate("OutputFile", "it is no file");
        return false;
    }
    // Unbuffered, with a buffer of our own: the toolkit's flush at the end does not notice a
    // full disk and would replace the old file by a part of the new one.
    return mFile.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || fail();
}

void OutputFile::flush()
{
    // A disk that fills up takes a part first; only the next attempt says why.
    std::string_view rest = mBuffer;
    while (!mFailed && !rest.empty()) {
        const qint64 written = mFile.write(rest.data(), static_cast<qint64>(rest.size()));
        if (written <= 0) {
            fail();
            mFile.cancelWriting();
        } else {
            rest.remove_prefix(static_cast<std::size_t>(written));
        }
    }
    startWriting(static_cast<qint64>(mBuffer.size()));
    mBuffer.clear();
}

/// Has the disk begin with the last so many bytes, so that little is left to wait for at the end,
/// where no progress is shown. A wish: what is not written yet is written there all the same.
void OutputFile::startWriting([[maybe_unused]] qint64 bytes)
{
#ifdef __linux__
    if (!mFailed) {
        sync_file_range(mFile.handle(), mFile.pos() - bytes, bytes, SYNC_FILE_RANGE_WRITE);
    }
#endif
}

bool OutputFile::commit()
{
    flush();
    const bool committed = mFile.commit();
    return !mFailed && (committed || fail());
}

/// Keeps the reason, which the toolkit forgets when writing is given up.
bool OutputFile::fail()
{
    mErrorText = mFile.errorString();
    mFailed = true;
    return false;
}

} // namespace TARN
