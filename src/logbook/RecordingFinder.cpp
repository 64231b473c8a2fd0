#include "logbook/RecordingFinder.h"

#include "logbook/ContentHash.h"
#include "logbook/FolderWalk.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

#include <algorithm>

namespace TARN {

namespace {

struct FinderTexts
{
    Q_DECLARE_TR_FUNCTIONS(RecordingFinder)
};

bool areThere(const QStringList& files)
{
    return !files.isEmpty() &&
           std::ranges::all_of(files, [](const QString& file) { return QFileInfo(file).isFile(); });
}

QString nameOf(const QString& path)
{
    return path.section('/', -1);
}

} // namespace

FoundRecordings findRecordings(const FlightEntry& entry, const QString& folder, Progress& progress)
{
    QStringList kept;
    std::ranges::transform(entry.recordings, std::back_inserter(kept), &KeptRecording::path);
    std::vector<QStringList> places = {kept};
    if (!folder.isEmpty()) {
        for (const QString& below : foldersBelow({folder}, progress)) {
            QStringList& files = places.emplace_back();
            std::ranges::transform(kept, std::back_inserter(files),
                                   [&](const QString& path) { return below + "/" + nameOf(path); });
        }
    }
    bool isOther = false;
    for (const QStringList& files : places) {
        if (progress.stopRequested()) {
            return {};
        }
        if (areThere(files)) {
            const auto hash = contentHash({files.begin(), files.end()}, progress);
            if (hash == entry.head.flight) {
                return {files, {}};
            }
            isOther = true;
        }
    }
    const QString names =
        nameOf(kept.value(0)) + (kept.size() > 1 ? " ... " + nameOf(kept.constLast()) : QString());
    return {
        {},
        isOther
            ? FinderTexts::tr("Files named %1 were found, but they hold another flight.").arg(names)
            : FinderTexts::tr("The files %1 were not found.").arg(names)};
}

} // namespace TARN
