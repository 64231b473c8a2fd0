#include "record/Record.h"
#include "record/RecordText.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"
#include "support/ResourceLimit.h"

#include <QtCore/QDir>

#include <limits>

using namespace TARN;

namespace {

constexpr const char* Ignored = "Ignored at the end, bytes that are no whole sample: ";
constexpr const char* CutHeader = "The header is cut short, bytes missing: ";

} // namespace

/// Recordings that are damaged or taken away: what is there is read, what is not is named.
class TestIntegrity : public CoreTest
{
    Q_OBJECT

    static QByteArray recordingOf(unsigned samples)
    {
        RecordingBuilder file;
        for (unsigned k = 0; k < samples; ++k) {
            file.add({.id = k % 50, .ticks = k});
        }
        return file.bytes();
    }

private Q_SLOTS:
    void newestFileCutAnywhere()
    {
        const QByteArray whole = recordingOf(3);
        const QString first = write("a.CAN", whole);
        for (int size = 0; size <= whole.size(); ++size) {
            const QString cut = write("b.CAN", whole.left(size));
            const auto samples = static_cast<std::size_t>(std::max(0, (size - 128) / 28));
            const int ignored = size > 128 ? (size - 128) % 28 : 0;
            QStringList remarks;
            if (size < 128) {
                remarks += CutHeader + QString::number(128 - size);
            } else if (ignored > 0) {
                remarks += Ignored + QString::number(ignored);
            }
            Record header;
            QVERIFY(header.readRecordInfo(cut));
            QCOMPARE(recordRemarks(header.recordInfo()), remarks);
            Record record;
            QVERIFY(record.readRecordData({first, cut}));
            QCOMPARE(record.recordData().count(), 3 + samples);
            QCOMPARE(record.integrity().files.back().samples, samples);
            QCOMPARE(recordRemarks(record.integrity()),
                     remarks.replaceInStrings(QRegularExpression("^"), "b.CAN: "));
        }
    }

    void times_data()
    {
        QTest::addColumn<QList<double>>("seconds");
        QTest::addColumn<QString>("remark"); // impossible, first; gaps, longest, its start
        using Seconds = QList<double>;
        constexpr double Day = 86400;
        QTest::addRow("no samples") << Seconds{} << "0 0; 0 0 0";
        QTest::addRow("any start") << Seconds{9e8, 9e8} << "0 0; 0 0 0";
        QTest::addRow("a second back, ten on") << Seconds{5, 4, 14, 13} << "0 0; 0 0 0";
        QTest::addRow("more than that") << Seconds{5, 3.75, 5, 15.25} << "1 2; 1 10.25 5";
        QTest::addRow("the longest gap") << Seconds{0, 11, 41, 53} << "0 0; 3 30 11";
        QTest::addRow("a day on, more") << Seconds{1, Day + 1, 2 * Day + 2} << "1 3; 1 86400 1";
        QTest::addRow("one from years away") << Seconds{1, 2, 9e8, 3, 4} << "1 3; 0 0 0";
        QTest::addRow("one from the past") << Seconds{100, 0, 101, 102} << "1 2; 0 0 0";
        QTest::addRow("several, far apart") << Seconds{1, 9e8, 2, 5e8, 9e8, 3} << "3 2; 0 0 0";
        QTest::addRow("the clock is set") << Seconds{100, 0, 1, 2, 3} << "1 2; 0 0 0";
        QTest::addRow("and set again") << Seconds{100, 0, 1, 9e8, 9e8 + 1} << "2 2; 0 0 0";
        QTest::addRow("a gap after a wild one") << Seconds{1, 9e8, 31} << "1 2; 1 30 1";
    }

    void times()
    {
        QFETCH(const QList<double>, seconds);
        RecordingBuilder file;
        for (const double second : seconds) {
            file.add({.ticks = ticks(second)});
        }
        Record record;
        // The same twice: each file is judged for itself.
        write("a.CAN", file.bytes());
        QVERIFY(record.readRecordData({path("a.CAN"), path("a.CAN")}));
        for (const FileIntegrity& part : record.integrity().files) {
            const TimeFindings& found = part.found;
            QTEST(QString("%1 %2; %3 %4 %5")
                      .arg(found.impossibleTimes)
                      .arg(found.firstImpossible)
                      .arg(found.gaps)
                      .arg(found.longestGap)
                      .arg(found.longestGapStart),
                  "remark");
        }
    }

    void everyRemark()
    {
        RecordingBuilder file;
        file.add({.ticks = ticks(3600)}).add({.ticks = ticks(1)}).add({.ticks = ticks(3601)});
        file.add({.ticks = ticks(3661.5), .channel = 2}).append("tail");
        Record record;
        QVERIFY(record.readRecordData({write("a.CAN", file.bytes())}));
        QCOMPARE(
            recordRemarks(record.integrity().files[0]),
            QStringList({Ignored + QString("4"),
                         "Samples with an impossible time: 1, the first is number 2",
                         "Samples of channels other than 0 and 1: 1",
                         "Gaps of more than 10 s: 1, the longest is 60.5 s from 01:00:01 on"}));
        // An impossible time is told, not hidden: it still widens the recording.
        QCOMPARE(record.recordInfo().startTime, 1.0);
    }

    void fileChangesWhileBeingRead_data()
    {
        QTest::addColumn<int>("percent");  // of loading, when it happens
        QTest::addColumn<int>("newCount"); // samples of the new file
        QTest::addColumn<int>("unread");
        QTest::addRow("cut while counting") << 20 << 5000 << 15000;
        QTest::addRow("emptied between the passes") << 50 << 0 << 20000;
        QTest::addRow("cut between the passes") << 50 << 19999 << 1;
        QTest::addRow("cut while storing") << 60 << 5000 << 20000 - 9362; // a piece was there
        QTest::addRow("goes on growing") << 50 << 20003 << 3;
        QTest::addRow("stays") << 101 << 0 << 0;
    }

    void fileChangesWhileBeingRead()
    {
        QFETCH(const int, percent);
        QFETCH(const int, newCount);
        QFETCH(const int, unread);
        write("a.CAN", recordingOf(20000));
        const QString other = write("b.CAN", recordingOf(7));
        bool isChanged = false;
        Record record;
        record.setProgressListener([&](int done) {
            if (done >= percent && !isChanged) {
                isChanged = true;
                write("a.CAN", recordingOf(static_cast<unsigned>(newCount)));
            }
        });
        QVERIFY(record.readRecordData({path("a.CAN"), other}));
        const FileIntegrity& file = record.integrity().files[0];
        QCOMPARE(file.unread, static_cast<std::size_t>(unread));
        QCOMPARE(file.samples + file.unread, static_cast<std::size_t>(std::max(20000, newCount)));
        QCOMPARE(record.recordData().count(), file.samples + 7);
        const QString remark = QString("a.CAN: Samples that could not be read: %1").arg(unread);
        QCOMPARE(recordRemarks(record.integrity()),
                 unread > 0 ? QStringList(remark) : QStringList());
    }

    void vanishingFile()
    {
        const QString a = write("a.CAN", recordingOf(5));
        const QString b = write("b.CAN", recordingOf(5));
        Record record;
        record.setProgressListener([&](int done) {
            if (done == 50) {
                QFile::remove(b);
            }
        });
        QVERIFY(!record.readRecordData({a, b}));
        QCOMPARE(record.recordData().count(), 5U);
        QCOMPARE(record.integrity().files.size(), 1U);
        QVERIFY2(record.errorText().contains(b), qUtf8Printable(record.errorText()));
    }

    void filesThatAreNone_data()
    {
        QTest::addColumn<QString>("target");
        QTest::addColumn<bool>("opens");
        QTest::addRow("a link to nothing") << "none" << false;
        QTest::addRow("a link to itself") << "x.CAN" << false;
        QTest::addRow("a folder") << "/" << false;
        QTest::addRow("a device") << "/dev/zero" << false;
        QTest::addRow("a file whose reading fails") << "/proc/self/mem" << true;
    }

    void filesThatAreNone()
    {
        QFETCH(const QString, target);
        QFETCH(const bool, opens);
        const QString file = path("x.CAN");
        QVERIFY(QFile::link(target, file));
        Record record;
        QCOMPARE(record.readRecordInfo(file), opens);
        QCOMPARE(recordRemarks(record.recordInfo()),
                 QStringList(opens ? QString(CutHeader) + "128" : "The file could not be opened"));
        QCOMPARE(record.readRecordData({file}), opens);
        QVERIFY(record.recordData().empty());
        QCOMPARE(record.errorText().contains(file), !opens);
    }

    void tooLittleMemory()
    {
#ifdef __SANITIZE_ADDRESS__
        QSKIP("the address sanitizer reserves terabytes, its process can't be limited");
#endif
        constexpr unsigned Samples = 400000;
        const QString large = write("large.CAN", recordingOf(Samples));
        const QString small = write("small.CAN", recordingOf(3));
        int failures = 0;
        bool loaded = false;
        for (rlim_t megabytes = 1; !loaded && megabytes < 200; ++megabytes) {
            Record record;
            QVERIFY(record.readRecordData({small}));
            {
                const ResourceLimit limit = ResourceLimit::shortMemory(megabytes << 20);
                loaded = record.readRecordData({large});
            }
            QCOMPARE(record.recordData().count(), loaded ? Samples : 0U);
            QCOMPARE(record.recordData().lists().empty(), !loaded);
            QCOMPARE(record.integrity().files.empty(), !loaded);
            QCOMPARE(record.errorText().startsWith("not enough memory"), !loaded);
            QVERIFY(record.readRecordData({small})); // all works again
            QCOMPARE(record.recordData().count(), 3U);
            failures += loaded ? 0 : 1;
        }
        QVERIFY(loaded && failures > 5);
    }

    void moreSamplesThanCanBeNumbered()
    {
        QFile file(write("huge.CAN", ""));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.resize(qint64(28) << 32 | 1 << 10)); // all of it a hole
        Record record;
        QVERIFY(record.readRecordData({write("a.CAN", recordingOf(3))}));
        QVERIFY(!record.readRecordData({file.fileName()}));
        QVERIFY(record.recordData().empty() && record.integrity().files.empty());
        QVERIFY2(record.errorText().startsWith("not enough memory for 42949"),
                 qUtf8Printable(record.errorText()));
    }

    void damagedOffset()
    {
        const QString file = write("a.CAN", recordingOf(1));
        Record record;
        for (const QByteArray& damage : {QByteArray("<TarnOffset><Off"), QByteArray("")}) {
            write("Offset.xml", damage);
            QVERIFY(record.readRecordData({file}));
            const QStringList remarks = recordRemarks(record.integrity());
            QVERIFY(remarks.size() == 1 && remarks[0].contains(path("Offset.xml")));
            QCOMPARE(read("Offset.xml"), damage); // reading a card leaves it as it is
            QVERIFY(record.setOffset(2.5));
            QVERIFY(read("Offset.xml").contains("2.5"));
            QVERIFY(recordRemarks(record.integrity()).isEmpty());
        }
        QCOMPARE(read("Offset.xml.damaged"), "<TarnOffset><Off");
        QCOMPARE(read("Offset.xml.damaged2"), "");
        QVERIFY(record.setOffset(3)); // a sound file is replaced
        QCOMPARE(QDir(folder(), "Offset*").entryList().size(), 3);
    }
};

QTEST_APPLESS_MAIN(TestIntegrity)
#include "tst_integrity.moc"
