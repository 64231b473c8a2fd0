#include "report/ReportHead.h"

#include "base/ClockTime.h"
#include "base/CountText.h"
#include "base/Revision.h"
#include "flight/StatisticsWords.h"
#include "flight/TimeScale.h"
#include "record/RecordText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFileInfo>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct HeadTexts
{
    Q_DECLARE_TR_FUNCTIONS(ReportHead)
};

using Row = std::vector<ReportText>;

QString fileNameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

/// As the window shows it.
QString utcText(const RecordInfo& info, double time)
{
    return info.utcTime == 0 ? HeadTexts::tr("not recorded") : dateText(info, time);
}

/// When, on both clocks.
void addTimes(const ReportMatter& matter, ReportTable& table)
{
    const TimeRange& range = matter.range;
    table.rows.push_back(Row{{HeadTexts::tr("From, on the recording's clock")},
                             {clockTextWithMilliseconds(range.start)}});
    table.rows.push_back(Row{{HeadTexts::tr("Until, on the recording's clock")},
                             {clockTextWithMilliseconds(range.stop)}});
    table.rows.push_back(
        Row{{HeadTexts::tr("From, in UTC")}, {utcText(matter.flight().info(), range.start)}});
    if (matter.shown.offset != 0.0) {
        constexpr int Digits = 12;
        table.rows.push_back(
            Row{{HeadTexts::tr("Time offset")}, {numberWords(matter.shown.offset, Digits) + " s"}});
    }
}

/// What the header says of the units; when and how much stands elsewhere.
void addUnits(const RecordInfo& info, ReportTable& table)
{
    const QList<RecordField> fields = recordFields(info);
    constexpr qsizetype First = 3; // behind date, start and stop
    for (qsizetype i = First; i + 1 < fields.size(); ++i) {
        table.rows.push_back(Row{{fields[i].label}, {fields[i].value}});
    }
}

void writeFiles(const Flight& flight, ReportPages& pages)
{
    ReportTable table;
    table.titles = {HeadTexts::tr("File"),
                    HeadTexts::tr("Date"),
                    HeadTexts::tr("From"),
                    HeadTexts::tr("Until"),
                    HeadTexts::tr("Samples"),
                    HeadTexts::tr("ECU Serial Number"),
                    HeadTexts::tr("Engine Serial Nr.")};
    table.shares = {19, 19, 10, 10, 10, 17, 15};
    for (const FileIntegrity& file : flight.record()->integrity().files) {
        const RecordInfo& info = file.info;
        table.rows.push_back(
            {{fileNameOf(info.fileName)},
             {info.dateTimeText()},
             {clockText(info.startTime)},
             {clockText(info.stopTime)},
             {countText(static_cast<qint64>(file.samples)), {}, double(file.samples)},
             {QString::number(info.ecuSerialNumber)},
             {info.engineSerialNr}});
    }
    pages.table(table);
}

} // namespace

QString reportTitle(const Flight& flight)
{
    const auto& files = flight.record()->integrity().files;
    QStringList parts;
    if (!files.empty()) {
        parts = {files.front().info.dateTimeText(), files.front().info.engineType,
                 files.front().info.engineSerialNr};
    }
    parts.removeAll(QString());
    return (QStringList(HeadTexts::tr("Flight Report")) + parts).join(", ");
}

QString reportLanguage()
{
    //: How pages name the language of these texts: "de" for German.
    return HeadTexts::tr("en");
}

void writeHead(const ReportMatter& matter, ReportPages& pages)
{
    const auto& files = matter.flight().record()->integrity().files;
    ReportTable table;
    table.shares = {30, 70};
    addTimes(matter, table);
    if (!files.empty()) {
        addUnits(files.front().info, table);
    }
    const Profile& profile = matter.profile();
    table.rows.push_back(
        Row{{HeadTexts::tr("Profile")},
            {profile.isLoaded() ? fileNameOf(profile.fileName()) : HeadTexts::tr("none")}});
    if (profile.isLoaded()) {
        table.rows.push_back(Row{{HeadTexts::tr("Profile's SHA-256")},
                                 {QString::fromLatin1(profile.fileHash().toHex())}});
    }
    table.rows.push_back(
        Row{{HeadTexts::tr("Program")}, {QString::fromStdString(Revision::getRevisionString())}});
    pages.table(table);
    if (files.empty()) {
        pages.say(HeadTexts::tr("No recording was read."));
    } else {
        writeFiles(matter.flight(), pages);
    }
}

void writeAnswer(const ReportMatter& matter, ReportPages& pages)
{
    pages.heading(HeadTexts::tr("What happened"));
    std::vector<ReportText> pieces;
    for (const FlightSummary::Part& part : matter.summary.parts()) {
        pieces.push_back({part.text, part.color});
    }
    pages.line(pieces);
    if (matter.flight().samples().empty()) {
        pages.say(HeadTexts::tr("The recording holds no samples, so nothing was checked."));
    }
}

void writeRemarks(const ReportMatter& matter, ReportPages& pages)
{
    pages.heading(HeadTexts::tr("Remarks on the recording"));
    const RecordIntegrity& integrity = matter.flight().record()->integrity();
    QStringList remarks = matter.flight().remarks();
    if (!integrity.damagedOffset.isEmpty()) { // where the card lay is not told
        remarks.replaceInStrings(integrity.damagedOffset, fileNameOf(integrity.damagedOffset));
    }
    const QString unknown = matter.flight().unknown().remark();
    if (!unknown.isEmpty() && matter.profile().isLoaded()) {
        remarks += unknown;
    }
    if (remarks.isEmpty()) {
        pages.say(HeadTexts::tr("none"));
    }
    for (const QString& remark : remarks) {
        pages.say(remark);
    }
}

} // namespace TARN
