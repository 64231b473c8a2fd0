#include "export/Exporter.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <filesystem>
#include <new>
#include <system_error>

namespace TARN {

namespace {

/// Nothing brings a recording back that an export was written over. Names don't tell: links lead to
/// it, and a card's file system takes "log.can" for "LOG.CAN".
bool isSource(const Record& record, const QString& path)
{
    const auto target = QFileInfo(path).filesystemFilePath();
    return std::ranges::any_of(record.integrity().files, [&](const FileIntegrity& file) {
        std::error_code missing;
        const auto source = QFileInfo(file.info.fileName).filesystemFilePath();
        return std::filesystem::equivalent(source, target, missing);
    });
}

} // namespace

ExportResult Exporter::run(const ExportInput& input, Progress& progress)
{
    const auto& reference = input.reference;
    if (isSource(*input.flight->record(), path()) ||
        (reference && isSource(*reference->flight->record(), path()))) {
        return ExportResult::failure(
            QCoreApplication::translate(
                "Exporter", "\"%1\" is the recording itself. Choose another name or folder.")
                .arg(path()));
    }
    try {
        const ExportResult result = write(input, progress);
        return progress.stopRequested() && !result ? ExportResult::stopped() : result;
    } catch (const std::bad_alloc&) {
        return ExportResult::failure(QCoreApplication::translate(
            "Exporter",
            "There is not enough memory for this export; choose a shorter time range."));
    }
}

} // namespace TARN
