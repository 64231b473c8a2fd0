#include "graph/GraphCaption.h"

#include "base/ClockTime.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>
#include <QtCore/QStringList>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct CaptionTexts
{
    Q_DECLARE_TR_FUNCTIONS(GraphCaption)
};

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

/// Three names at most.
QString recordingOf(const Flight& flight)
{
    constexpr qsizetype Most = 3;
    QStringList names;
    for (const FileIntegrity& file : flight.record()->integrity().files) {
        names += nameOf(file.info.fileName);
    }
    if (names.size() > Most) {
        return CaptionTexts::tr("%1 to %2 (%3 recordings)")
            .arg(names.front(), names.back())
            .arg(names.size());
    }
    return names.join(", ");
}

} // namespace

QString captionOf(const Flight& flight, const TimeRange& range)
{
    const auto& files = flight.record()->integrity().files;
    QStringList parts = {
        recordingOf(flight), files.empty() ? QString() : files.front().info.dateTimeText(),
        CaptionTexts::tr("%1 to %2 on the recording's clock")
            .arg(clockTextWithMilliseconds(range.start), clockTextWithMilliseconds(range.stop)),
        nameOf(flight.profile()->fileName())};
    parts.removeAll(QString());
    return parts.join("  |  ");
}

} // namespace TARN
