#include "fuzz/Fuzz.h"

#include "base/Diagnostics.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace Fuzz {

namespace {

/// What is diagnosed of thousands of damaged inputs a second would only be in the way.
[[maybe_unused]] const bool IsSilent = [] {
    TARN::setDiagnosticStream(std::fopen("/dev/null", "w"));
    return true;
}();

} // namespace

void require(bool holds, const char* promise)
{
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", promise);
        std::abort();
    }
}

QString path(const QString& name)
{
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

QString write(const QString& name, Bytes content)
{
    QFile file(path(name));
    const auto size = static_cast<qint64>(content.size());
    require(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                file.write(reinterpret_cast<const char*>(content.data()), size) == size,
            "the folder of the fuzzer can be written to");
    return file.fileName();
}

QByteArray read(const QString& name)
{
    QFile file(path(name));
    require(file.open(QIODevice::ReadOnly), "a file that was written can be opened");
    return file.readAll();
}

} // namespace Fuzz
