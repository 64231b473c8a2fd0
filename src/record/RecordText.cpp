#include "record/RecordText.h"

#include "base/ClockTime.h"
#include "base/CountText.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <limits>
#include <set>
#include <utility>

namespace TARN {

namespace {

struct RecordText
{
    Q_DECLARE_TR_FUNCTIONS(RecordText)
};

/// "%1" of \p text replaced by \p count; nothing when there is none.
void addCount(QStringList& lines, const QString& text, std::size_t count)
{
    if (count > 0) {
        lines += text.arg(count);
    }
}

RecordSection sectionOf(const QString& title, QList<RecordField> fields, const QStringList& remarks)
{
    if (remarks.isEmpty()) {
        fields += {RecordText::tr("Remarks"), RecordText::tr("none")};
    }
    for (const QString& remark : remarks) {
        fields += {RecordText::tr("Remark"), remark};
    }
    return {title, fields};
}

QString nameOf(const FileIntegrity& file)
{
    return file.info.fileName.section('/', -1);
}

/// Files that run on while an earlier one still does.
QStringList overlapRemark(const std::vector<FileIntegrity>& files)
{
    constexpr double Allowed = 1.0; // seconds; buses are buffered apart
    std::vector<const FileIntegrity*> sorted;
    for (const FileIntegrity& file : files) {
        if (file.samples > 0) {
            sorted.push_back(&file);
        }
    }
    std::ranges::stable_sort(sorted, {}, [](const FileIntegrity* file) {
        return std::pair(file->earliest, -file->latest);
    });
    std::set<const FileIntegrity*> overlapping;
    QString pair;
    const FileIntegrity* running = nullptr; // of those before, the one that lasts longest
    for (const FileIntegrity* file : sorted) {
        if (running != nullptr && file->earliest < running->latest - Allowed) {
            overlapping.insert({running, file});
            pair = pair.isEmpty() ? RecordText::tr("%1 and %2").arg(nameOf(*running), nameOf(*file))
                                  : pair;
        }
        running = running != nullptr && running->latest > file->latest ? running : file;
    }
    return overlapping.empty()
               ? QStringList()
               : QStringList(RecordText::tr("Files that overlap in time: %1, the first "
                                            "are %2. Check that they belong together")
                                 .arg(overlapping.size())
                                 .arg(pair));
}

QStringList dateRemark(const std::vector<FileIntegrity>& files)
{
    double start = std::numeric_limits<double>::infinity();
    double stop = -start;
    const FileIntegrity* first = nullptr;
    const FileIntegrity* last = nullptr;
    for (const FileIntegrity& file : files) {
        if (file.samples == 0) {
            continue;
        }
        start = std::min(start, file.earliest);
        stop = std::max(stop, file.latest);
        if (file.info.dateTime.isValid()) {
            first = first != nullptr && first->info.dateTime <= file.info.dateTime ? first : &file;
            last = last != nullptr && last->info.dateTime >= file.info.dateTime ? last : &file;
        }
    }
    if (first == nullptr ||
        static_cast<double>(first->info.dateTime.secsTo(last->info.dateTime)) <= stop - start) {
        return {};
    }
    return {RecordText::tr("Header dates from %1 to %2, but the samples last %3 s: the files are "
                           "not of one flight")
                .arg(first->info.dateTimeText(), last->info.dateTimeText())
                .arg(stop - start, 0, 'f', 0)};
}

} // namespace

QList<RecordField> recordFields(const RecordInfo& info)
{
    return {{RecordText::tr("Date"), info.dateTimeText()},
            {RecordText::tr("Start Time"), clockText(info.startTime)},
            {RecordText::tr("Stop Time"), clockText(info.stopTime)},
            {RecordText::tr("Bus Type"), QString::number(info.busType)},
            {RecordText::tr("ECU Serial Number"), QString::number(info.ecuSerialNumber)},
            {RecordText::tr("Software Part Nr. A"), info.softwarePartA},
            {RecordText::tr("Software Part Nr. B"), info.softwarePartB},
            {RecordText::tr("ECU Type"), info.ecuType},
            {RecordText::tr("EMU SW Version"), info.emuSwVersion},
            {RecordText::tr("Engine Serial Nr."), info.engineSerialNr},
            {RecordText::tr("Engine Type"), info.engineType},
            {RecordText::tr("Samples Total"), countText(std::max<qint64>(0, info.samples))}};
}

QStringList recordRemarks(const RecordInfo& info)
{
    if (info.unreadable) {
        return {RecordText::tr("The file could not be opened")};
    }
    QStringList lines;
    addCount(lines, RecordText::tr("The header is cut short, bytes missing: %1"),
             static_cast<std::size_t>(info.missingHeaderBytes));
    addCount(lines, RecordText::tr("Ignored at the end, bytes that are no whole sample: %1"),
             static_cast<std::size_t>(info.ignoredBytes));
    return lines;
}

QStringList recordRemarks(const FileIntegrity& file)
{
    const TimeFindings& found = file.found;
    QStringList lines = recordRemarks(file.info);
    addCount(lines, RecordText::tr("Samples that could not be read: %1"), file.unread);
    if (found.impossibleTimes > 0) {
        lines += RecordText::tr("Samples with an impossible time: %1, the first is number %2")
                     .arg(found.impossibleTimes)
                     .arg(found.firstImpossible);
    }
    addCount(lines, RecordText::tr("Samples of channels other than 0 and 1: %1"),
             file.otherChannels);
    if (found.gaps > 0) {
        lines += RecordText::tr("Gaps of more than 10 s: %1, the longest is %2 s from %3 on")
                     .arg(found.gaps)
                     .arg(found.longestGap, 0, 'f', 1)
                     .arg(clockText(found.longestGapStart));
    }
    return lines;
}

QStringList togetherRemarks(const RecordIntegrity& integrity)
{
    QStringList lines = overlapRemark(integrity.files);
    lines += dateRemark(integrity.files);
    if (!integrity.damagedOffset.isEmpty()) {
        lines += RecordText::tr("The time offset could not be read: \"%1\" is damaged. Setting "
                                "another offset keeps that file aside")
                     .arg(integrity.damagedOffset);
    }
    return lines;
}

QStringList recordRemarks(const RecordIntegrity& integrity)
{
    QStringList lines = togetherRemarks(integrity);
    for (const FileIntegrity& file : integrity.files) {
        const QString name = nameOf(file);
        for (const QString& line : recordRemarks(file)) {
            lines += name + ": " + line;
        }
    }
    return lines;
}

RecordSection recordSection(const RecordInfo& info)
{
    return sectionOf(info.fileName, recordFields(info), recordRemarks(info));
}

RecordSection recordSection(const FileIntegrity& file)
{
    QList<RecordField> fields = recordFields(file.info);
    fields += {RecordText::tr("Samples Read"), countText(static_cast<qint64>(file.samples))};
    return sectionOf(file.info.fileName, fields, recordRemarks(file));
}

RecordSection recordSection(const RecordIntegrity& integrity, const QStringList& more)
{
    std::size_t samples = 0;
    for (const FileIntegrity& file : integrity.files) {
        samples += file.samples;
    }
    QStringList remarks = recordRemarks(integrity) + more;
    remarks.removeAll(QString());
    return sectionOf(RecordText::tr("Recording"),
                     {{RecordText::tr("Files"), QString::number(integrity.files.size())},
                      {RecordText::tr("Samples Read"), countText(static_cast<qint64>(samples))}},
                     remarks);
}

} // namespace TARN
