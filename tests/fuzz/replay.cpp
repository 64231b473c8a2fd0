#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Gives a fuzz target every file of a folder. The name is printed first, for the input that
/// ends the process.
int main(int argc, char** argv)
{
    const QDir folder(argc == 2 ? QString(argv[1]) : QString());
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
        std::uint8_t* bytes = new std::uint8_t[static_cast<std::size_t>(content.size())];
        std::copy(content.begin(), content.end(), bytes);
        LLVMFuzzerTestOneInput(bytes, static_cast<std::size_t>(content.size()));
        delete[] bytes;
    }
    if (argc != 2 || names.isEmpty()) {
        std::fprintf(stderr, "usage: %s folder-with-inputs\n", argv[0]);
        return 1;
    }
    return 0;
}
