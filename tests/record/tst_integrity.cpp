#include "record/Record.h"
#include "record/RecordText.h"
#include "support/FlightTest.h"
#include "support/ResourceLimit.h"

#include <algorithm>

using namespace TARN;

/// Recordings that are damaged or taken away: what is there is read, what is not is named.
class TestIntegrity : public FlightTest
{
    Q_OBJECT

    using Seconds = QList<double>;

    /// A recording of samples given by identifier, with 1, 2, 3 ... ticks.
    static QByteArray recordingOf(const QList<unsigned>& ids)
    {
        RecordingBuilder file;
        std::uint64_t time = 0;
        for (const unsigned id : ids) {
            file.add({.id = id, .ticks = ++time});
        }
        return file.bytes();
    }

private Q_SLOTS:
    /// Comes first: threads that have ended leave memory behind that others then find.
    void tooLittleMemory()
    {
        if (!ResourceLimit::isPossible()) {
            QSKIP("the sanitizers reserve terabytes, their processes can't be limited");
        }
        const QString file = write("large.CAN", "");
        QVERIFY(QFile::resize(file, 128 + 28 * 3000000)); // all of it a hole
        int failures = 0;
        for (bool loaded = false; !loaded; failures += loaded ? 0 : 1) {
            Record record;
            {
                const auto limit = ResourceLimit::shortMemory(rlim_t(failures + 1) << 22);
                loaded = record.readRecordData({file});
            }
            QCOMPARE(record.recordData().count(), loaded ? 3000000U : 0U);
            QCOMPARE(record.recordData().lists().empty(), !loaded);
            QCOMPARE(record.integrity().files.empty(), !loaded);
            QCOMPARE(record.errorText().startsWith("not enough memory"), !loaded);
            QVERIFY(failures < 200);
        }
        QVERIFY(failures > 5);
    }

    void times_data()
    {
        QTest::addColumn<Seconds>("seconds");
        QTest::addColumn<Seconds>("found"); // impossible, the first; gaps, the longest, its start
        constexpr double Day = 86400;
        const auto row = [](const char* name, const Seconds& seconds, const Seconds& found) {
            QTest::addRow("%s", name) << seconds << found;
        };
        row("no samples", {}, {0, 0, 0, 0, 0});
        row("any start", {9e8, 9e8}, {0, 0, 0, 0, 0});
        row("a second back, ten on", {5, 4, 14, 13}, {0, 0, 0, 0, 0});
        row("more than that", {5, 3.75, 5, 15.25}, {1, 2, 1, 10.25, 5});
        row("the longest gap", {0, 11, 41, 53}, {0, 0, 3, 30, 11});
        row("a day on, more", {1, Day + 1, 2 * Day + 2}, {1, 3, 1, Day, 1});
        row("one from years away", {1, 2, 9e8, 3, 4}, {1, 3, 0, 0, 0});
        row("one from the past", {100, 0, 101, 102}, {1, 2, 0, 0, 0});
        row("several, far apart", {1, 9e8, 2, 5e8, 9e8, 3}, {3, 2, 0, 0, 0});
        row("the clock is set", {100, 0, 1, 2, 3}, {1, 2, 0, 0, 0});
        row("and set again", {100, 0, 1, 9e8, 9e8 + 1}, {2, 2, 0, 0, 0});
        row("a gap after a wild one", {1, 9e8, 31}, {1, 2, 1, 30, 1});
    }

    void times()
    {
        QFETCH(Seconds, seconds);
        RecordingBuilder file;
        for (const double second : seconds) {
            file.add({.ticks = ticks(second)});
        }
        // The same twice: each file is judged for itself, however many threads read it.
        const QString name = write("a.CAN", file.bytes());
        const QString ahead = writeRecording("1@50", "b.CAN");
        std::ranges::sort(seconds);
        for (const unsigned threads : {1U, 2U, 3U, 7U}) {
            Progress none;
            Record record;
            QVERIFY(record.readRecordData({ahead, name, name}, 0.0, none, threads));
            for (const FileIntegrity& part : std::span(record.integrity().files).subspan(1)) {
                const auto& [impossible, first, gaps, longest, start] = part.found;
                const Seconds found = {double(impossible), double(first), double(gaps),
                                       std::round(longest * 100) / 100, std::round(start)};
                QTEST(found, "found");
                QCOMPARE(part.earliest, seconds.value(0)); // an impossible one is told, not hidden
                QCOMPARE(part.latest, seconds.value(seconds.size() - 1));
            }
        }
    }

    void together_data()
    {
        QTest::addColumn<QString>("files"); // earliest-latest/header's date in seconds
        QTest::addColumn<QString>("overlap");
        QTest::addColumn<QString>("dates");
        const auto row = [](const char* files, const char* overlap, const char* dates) {
            QTest::addRow("%s", files) << files << overlap << dates;
        };
        row("0-100 99-200", "", ""); // a second is nothing
        row("0-100 98.5-200", "2, the first are 0 and 1", "");
        row("50-60 0-100", "2, the first are 1 and 0", "");
        row("0-0.5 0-100", "2, the first are 1 and 0", "");
        row("0-100 10-20 30-40 100-210", "3, the first are 0 and 1", "");
        row("300-400 0-100 50-120 350-420", "4, the first are 1 and 2", "");
        row("0-100/0 100-200/200", "", "");
        row("0-100/0 100-200/201 90-110", "3, the first are 0 and 2",
            "9.7.2021 14:00:00 to 9.7.2021 14:03:21, but the samples last 200");
        row("100-200/1000 0-100/0 200-300/500", "",
            "9.7.2021 14:00:00 to 9.7.2021 14:16:40, but the samples last 300");
        row("0-100/0 empty/999 100-200/50", "", "");
        row("0-100 100-200/0", "", "");
    }

    void together()
    {
        QFETCH(const QString, overlap);
        QFETCH(const QString, dates);
        RecordIntegrity integrity;
        std::vector<FileIntegrity>& files = integrity.files;
        for (const QString& text : QString(QTest::currentDataTag()).split(' ')) {
            FileIntegrity& file = files.emplace_back();
            file.info.fileName = QString("/card/%1").arg(files.size() - 1);
            file.samples = text.startsWith("empty") ? 0 : 1;
            file.earliest = text.section('-', 0, 0).toDouble();
            file.latest = text.section('/', 0, 0).section('-', 1).toDouble();
            const QDateTime start({2021, 7, 9}, {14, 0}, Qt::UTC);
            file.info.dateTime =
                text.contains('/') ? start.addSecs(text.section('/', 1).toInt()) : QDateTime();
        }
        QStringList expected;
        if (!overlap.isEmpty()) {
            expected +=
                "Files that overlap in time: " + overlap + ". Check that they belong together";
        }
        if (!dates.isEmpty()) {
            expected += "Header dates from " + dates + " s: the files are not of one flight";
        }
        QCOMPARE(togetherRemarks(integrity), expected);
    }

    void everyRemark()
    {
        RecordingBuilder file;
        add(file, "500@3600 500@1 500@3601 500/2@3661.5").append("tail");
        const auto record =
            load({write("a.CAN", file.bytes()), writeRecording("500@3000", "b.CAN")});
        const QStringList remarks = recordRemarks(record->integrity());
        const char* expected[] = {
            "Files that overlap in time: 2, the first are a.CAN and b.CAN. Check that they belong "
            "together",
            "a.CAN: Ignored at the end, bytes that are no whole sample: 4",
            "a.CAN: Samples with an impossible time: 1, the first is number 2",
            "a.CAN: Samples of channels other than 0 and 1: 1",
            "a.CAN: Gaps of more than 10 s: 1, the longest is 60.5 s from 01:00:01 on"};
        QCOMPARE(remarks, QStringList(std::begin(expected), std::end(expected)));
        const auto fields = recordSection(record->integrity(), {"more"}).fields;
        QCOMPARE(fields.size(), 2 + remarks.size() + 1);
        QVERIFY(fields[1].value == "5" && fields.last().value == "more");
        QCOMPARE(recordSection(record->integrity().files[1]).fields.last().value, QString("none"));
        RecordInfo large;
        large.samples = 1234567;
        QCOMPARE(recordFields(large).last().value, QString("1\u202F234\u202F567"));
    }

    void fileChangesWhileBeingRead_data()
    {
        QTest::addColumn<int>("percent"); // of loading, when it happens
        QTest::addColumn<QList<unsigned>>("before");
        QTest::addColumn<QList<unsigned>>("after");
        QTest::addColumn<QString>("samples"); // ? where it depends on how far reading was
        using Ids = QList<unsigned>;
        const auto row = [](const char* name, int percent, const Ids& before, const Ids& after,
                            const QString& samples) {
            QTest::addRow("%s", name) << percent << before << after << samples;
        };
        row("stays", 101, {1, 2}, {}, "1@1 2@2");
        // At 50 % all is counted and nothing stored.
        row("shrinks", 50, {1, 2, 1}, {1}, "1@1");
        row("is emptied", 50, {1, 2}, {}, "");
        row("grows", 50, {1, 2}, {1, 2, 1, 1, 2, 2, 1}, "1@1 2@2");
        row("others", 50, {1, 2, 1}, {3, 2, 4}, "2@2");
        row("another order", 50, {1, 2, 2}, {2, 2, 1}, "2@2");
        // Each of three threads has more to read then.
        const Ids many(60000, 5);
        row("cut while counting", 5, many, Ids(5000, 5), "?");
        row("emptied while counting", 5, many, {}, "?");
        row("cut while storing", 51, many, Ids(5000, 5), "?");
        row("changed while storing", 51, many, Ids(60000, 6), "?");
    }

    /// With several threads nobody knows how far each of them is, but the sum must be right.
    void fileChangesWhileBeingRead()
    {
        QFETCH(const int, percent);
        QFETCH(const QList<unsigned>, before);
        QFETCH(const QList<unsigned>, after);
        QFETCH(const QString, samples);
        for (const unsigned threads : {1U, 3U}) {
            const QString a = write("a.CAN", recordingOf(before));
            const QString b = write("b.CAN", recordingOf({1, 1, 2}));
            bool isChanged = false;
            Progress progress([&](int done, const QString&) {
                if (done >= percent && !isChanged) {
                    isChanged = true;
                    write("a.CAN", recordingOf(after));
                }
            });
            Record record;
            QVERIFY(record.readRecordData({a, b}, 0.0, progress, threads));
            const FileIntegrity& file = record.integrity().files[0];
            const RecordData& data = record.recordData();
            QCOMPARE(data.count(), file.samples + 3);
            const auto all = qsizetype(file.samples + file.unread);
            QVERIFY(all == std::max(before.size(), after.size()) ||
                    (threads > 1 && all == before.size()));
            QStringList read;
            for (std::size_t k = 0; k < file.samples; ++k) {
                const RecordEntry& entry = data.inFileOrder(k);
                const qsizetype number = entry.timeLow - 1;
                read += QString("%1@%2").arg(entry.id).arg(entry.timeLow);
                QVERIFY(entry.id == before.value(number) || entry.id == after.value(number));
                QVERIFY(k == 0 || data.inFileOrder(k - 1).timeLow < entry.timeLow);
            }
            QVERIFY(threads > 1 || samples == "?" || samples == read.join(' '));
            std::size_t listed = 0;
            for (const RecordIdList& list : data.lists()) {
                listed += list.entries.size();
            }
            QCOMPARE(listed, data.count());
            const QString remark = "a.CAN: Samples that could not be read: %1";
            QCOMPARE(recordRemarks(record.integrity()).join('|'),
                     file.unread > 0 ? remark.arg(file.unread) : QString());
        }
    }

    void filesThatAreNone()
    {
        // Links to nothing, to itself, to a folder, to a device and to a file that can't be read.
        for (const QString target : {"none", "x.CAN", "/", "/dev/zero", "/proc/self/mem"}) {
            const bool opens = target.startsWith("/proc");
            const QString file = path("x.CAN");
            QFile::remove(file);
            QVERIFY(QFile::link(target, file));
            Record header;
            QCOMPARE(header.readRecordInfo(file), opens);
            QCOMPARE(recordRemarks(header.recordInfo()).join('|'),
                     QString(opens ? "The header is cut short, bytes missing: 128"
                                   : "The file could not be opened"));
            Record record;
            QCOMPARE(record.readRecordData({file}), opens);
            QVERIFY(record.recordData().empty());
            QCOMPARE(record.errorText().contains(file), !opens);
        }
    }

    void moreSamplesThanCanBeNumbered()
    {
        const QString file = write("huge.CAN", "");
        QVERIFY(QFile::resize(file, qint64(28) << 32 | 1 << 10));
        Record record;
        QVERIFY(!record.readRecordData({file}) && record.integrity().files.empty());
        QVERIFY(record.errorText().startsWith("not enough memory for 42949"));
    }
};

QTEST_APPLESS_MAIN(TestIntegrity)
#include "tst_integrity.moc"
