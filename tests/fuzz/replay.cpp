#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdint>
#include <cstdio>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Gives a fuzz target every file of a folder. The name is printed first, for the input that
/// ends the process.
int main(int argc, char** argv)
{
    const QDir folder(argc == 2 ? QString(argv[1]) : "(none)");
    const QStringList names = folder.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        std::printf("%s\n", qUtf8Printable(name));
        std::fflush(stdout);
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly)) {
            return 1;
        }
        const QByteArray content = file.readAll();
        // A copy without room behind it, so that a sanitizer sees a read beyond the end.
        const auto size = static_cast<std::size_t>(content.size());
        const auto bytes = std::make_unique<std::uint8_t[]>(size);
        std::copy(content.begin(), content.end(), bytes.get());
        LLVMFuzzerTestOneInput(bytes.get(), size);
    }
    return names.isEmpty() ? 1 : 0;
}
