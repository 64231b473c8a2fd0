#include "export/OutputFile.h"

namespace TARN {

OutputFile::OutputFile(const QString& path) : mFile(path) {}

bool OutputFile::open()
{
    mBuffer.reserve(BufferSize);
    return mFile.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void OutputFile::flush()
{
    const auto size = static_cast<qint64>(mBuffer.size());
    if (!mFailed && mFile.write(mBuffer.data(), size) != size) {
        mFailed = true;
        mFile.cancelWriting();
    }
    mBuffer.clear();
}

bool OutputFile::commit()
{
    flush();
    return mFile.commit() && !mFailed;
}

} // namespace TARN
