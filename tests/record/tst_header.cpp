#include "record/FlightGroups.h"
#include "record/OffsetFile.h"
#include "record/Record.h"
#include "record/RecordText.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>

#include <algorithm>
#include <climits>
#include <sys/stat.h>

using namespace TARN;

/// What the file's header, its name and its folder say about a recording.
class TestHeader : public CoreTest
{
    Q_OBJECT

    static RecordingBuilder fullHeader(int order)
    {
        RecordingBuilder file(order);
        file.date(2021, 7, 9, 14, 51, 13).startTicks(ticks(1000.5)).busType(0x01020304);
        file.ecuSerialNumber(0xFFFFFFFE).text(0, "PartA-1234567").text(1, "Ecu").text(2, "Serial");
        return file.text(3, "Type").text(4, QByteArray("B\0rest", 6)).text(5, "1.2.345");
    }

    static constexpr RecordingBuilder::Order Orders[] = {RecordingBuilder::Little,
                                                         RecordingBuilder::Big};

private Q_SLOTS:
    void fields()
    {
        for (const auto order : Orders) {
            RecordingBuilder file = fullHeader(order);
            const QByteArray bare = file.bytes();
            file.add({.ticks = 0x2'0000'0001}).add({.ticks = ticks(5)}).add({.ticks = ticks(3.25)});
            Record record;
            const RecordInfo& info = record.recordInfo();
            QVERIFY(record.readRecordInfo(write("a.CAN", file.append("tail!").bytes())));
            QCOMPARE(info.samples, 3);
            QVERIFY(info.startTime == 2 * 134.217728 + 31.25 * 1e-9);
            QCOMPARE(info.stopTime, 3.25); // of the last sample, not the largest
            QVERIFY(record.readRecordInfo(write("a.CAN", bare)));
            QStringList shown;
            for (const RecordField& field : recordFields(info)) {
                shown += field.value;
            }
            // Without samples there is no stop: it stays as it was.
            QCOMPARE(shown.join('|'),
                     QString("9.7.2021 14:51:13|00:16:40|00:00:03|16909060|4294967294|"
                             "PartA-1234567|B|Ecu|1.2.345|Serial|Type|0"));
            // Any other magic means big-endian too.
            QVERIFY(record.readRecordInfo(write("a.CAN", file.setByte(0, 'x').bytes())));
            QCOMPARE(info.busType, order == RecordingBuilder::Big ? 0x01020304U : 0x04030201U);
            QVERIFY(!record.readRecordInfo(path("none.CAN")));
            QCOMPARE(diagnostics(), "Could not open " + path("none.CAN").toUtf8() + "\n");
            QCOMPARE(info.samples, 3);
        }
    }

    void cutAnywhere()
    {
        for (const auto order : Orders) {
            const QByteArray whole = fullHeader(order).add({}).add({.ticks = 1}).add({}).bytes();
            for (int size = 0; size <= whole.size(); ++size) {
                const QByteArray bytes = whole.left(size);
                const QString file = write("a.CAN", bytes);
                const int samples = std::max(0, (size - 128) / 28);
                QStringList remarks;
                if (size < 128) {
                    remarks +=
                        QString("The header is cut short, bytes missing: %1").arg(128 - size);
                } else if ((size - 128) % 28 > 0) {
                    remarks += QString("Ignored at the end, bytes that are no whole sample: %1")
                                   .arg((size - 128) % 28);
                }
                Record header;
                QVERIFY(header.readRecordInfo(file));
                const RecordInfo& info = header.recordInfo();
                QCOMPARE(info.samples, (size - 128) / 28);
                QCOMPARE(recordFields(info).last().value, QString::number(samples));
                const double start = size >= 28 ? 1000.5 : size >= 24 ? 7 * 134.217728 : 0.0;
                QCOMPARE(info.startTime, samples > 0 ? 0.0 : start);
                QCOMPARE(info.busType, size >= 32 ? 0x01020304U : 0U);
                QCOMPARE(info.softwarePartA, QString(size >= 49 ? "PartA-1234567" : ""));
                QCOMPARE(info.emuSwVersion, QString(size >= 108 ? "1.2.345" : ""));
                QCOMPARE(info.dateTime.isValid(), size >= 16);
                QCOMPARE(recordRemarks(info), remarks);
                Record record;
                QVERIFY(record.readRecordData({file, file}));
                QCOMPARE(record.recordData().count(), 2U * unsigned(samples));
                QCOMPARE(record.integrity().files.back().samples, std::size_t(samples));
                QCOMPARE(recordRemarks(record.integrity()),
                         (remarks + remarks).replaceInStrings(QRegularExpression("^"), "a.CAN: "));
                const auto* raw = reinterpret_cast<const char*>(record.rawData().data());
                QCOMPARE(QByteArray(raw, 128), bytes.left(128).leftJustified(128, '\0'));
            }
        }
    }

    void dates()
    {
        qputenv("TZ", "Europe/Berlin");
        // There is no first and no second date; the last is in an hour that summer time skips.
        for (const QString text :
             {"0.0.0 0:00:00", "30.2.2021 1:02:03", "29.2.2020 1:02:03", "28.3.2021 2:30:00"}) {
            const QStringList parts = text.split(QRegularExpression("[.: ]"));
            const auto part = [&](int i) { return parts[i].toInt(); };
            RecordingBuilder file;
            file.date(part(2), part(1), part(0), part(3), part(4), part(5));
            Record record;
            record.readRecordInfo(write("a.CAN", file.bytes()));
            QCOMPARE(record.recordInfo().dateTimeText(), text < "28" || text > "3" ? "" : text);
        }
    }

    void card()
    {
        const QByteArray file = fullHeader(RecordingBuilder::Big).bytes();
        QVERIFY(QDir(folder()).mkdir("folder.CAN"));
        for (const char* name :
             {"b.can", "A.CAN", "c.Can", "noteCAN", "A.CAN.bak", "z.CAN", "folder.CAN/in.CAN"}) {
            write(name, file);
        }
        QCOMPARE(mkfifo(qPrintable(path("pipe.CAN")), 0600), 0); // must not block
        QStringList names;
        for (const auto& [key, info] : readCard(folder()).records) {
            QCOMPARE(info.fileName, key);
            names += key.section('/', -1);
            QCOMPARE(info.busType, names.last() == "pipe.CAN" ? 0U : 0x01020304U);
        }
        QCOMPARE(names.join(' '), QString("A.CAN b.can pipe.CAN z.CAN"));
        std::stop_source stop;
        Progress progress([&](int percent, const QString&) { percent < 50 || stop.request_stop(); },
                          stop.get_token());
        QCOMPARE(readCard(folder(), progress).records.size(), 3U);
        QVERIFY(readCard(path("none")).records.empty());
    }

    void highFiles()
    {
        const QStringList names = {"REC_8000.CAN", "REC_FFFF.CAN", "REC_ffff", "12348a00x",   "x",
                                   "REC_7FFF.CAN", "REC_800.CAN",  "8000.CAN", "REC_G000.CAN"};
        for (qsizetype i = 0; i < names.size(); ++i) {
            const QString file = write(names[i], RecordingBuilder().add({}).bytes());
            Record record;
            record.readRecordData({file});
            const double shift = record.recordData().find(0, 500)->shift(2.5);
            QVERIFY2(shift == (i < 4 ? 2.5 : 0.0), qPrintable(names[i]));
        }
    }

    void offsetFiles()
    {
        const std::pair<QByteArray, double> files[] = {
            {"<r><Offset value='-2.5'/></r>", -2.5},
            {"<r><Offset value='1'/><x/><Offset value='2'/></r>", 2},
            {"<r><Offset value='2'/><Offset/></r>", 0},
            {"<r><Offset value='2,5'/></r>", 0},
            {"<r><Offset value='nan'/></r>", 0},
            {"<r><Offset value='-inf'/></r>", 0},
            {"<r><x><Offset value='3'/></x></r>", 7},
            {"<r><Offset value='3'>", 7},
            {"", 7}};
        const QString recording = write("a.CAN", RecordingBuilder().bytes());
        const OffsetFile file(folder());
        QVERIFY(file.load(7) == 7 && !file.isDamaged());
        for (const auto& [content, offset] : files) {
            write("Offset.xml", content);
            Record record;
            QVERIFY(record.readRecordData({recording}, 7));
            QVERIFY2(record.offset() == offset, content);
            const QString remark = recordRemarks(record.integrity()).join('\n');
            QCOMPARE(remark.contains(file.path() + "\" is damaged"), !content.endsWith("</r>"));
            QCOMPARE(read("Offset.xml"), content); // reading a card leaves it as it is
            diagnostics();
            QVERIFY(file.save(-2.5));
            QCOMPARE(diagnostics(), "Write Offset <" + file.path().toUtf8() + ">\n");
            QCOMPARE(read("Offset.xml"), QByteArray("<TarnOffset>\n"
                                                    "    <Offset value=\"-2.500000000000\"/>\n"
                                                    "</TarnOffset>\n"));
        }
        QCOMPARE(read("Offset.xml.damaged") + read("Offset.xml.damaged2"), files[7].first);
        QCOMPARE(QDir(folder(), "Offset*").count(), 3U);
        // A folder that has none goes on with what there was.
        QVERIFY(QDir(folder()).mkdir("without"));
        Record both;
        const QString other = write("without/b.CAN", RecordingBuilder().bytes());
        QVERIFY(both.readRecordData({recording, other}));
        QCOMPARE(both.offset(), -2.5);
        QCOMPARE(both.folder(), path("without"));
        QVERIFY(!OffsetFile(path("none")).save(4));
    }

    /// A damaged file whose path is too long to take an ending stays where it is.
    void offsetFileThatCantBeMoved()
    {
        const int room =
            PATH_MAX - 1 - 18 - int(folder().size()); // "/Offset.xml" and 7 to write it
        const QString part = "/" + QString(99, 'x');
        const QString deep =
            folder() + part.repeated(room / 100 - 1) + "/" + QString(99 + room % 100, 'x');
        QVERIFY(QDir().mkpath(deep));
        const OffsetFile file(deep);
        QVERIFY(file.save(1)); // it can be written
        const QString name = file.path().mid(folder().size() + 1);
        write(name, "damaged");
        QTest::ignoreMessage(QtCriticalMsg, QRegularExpression("stat\\(\\) failed"));
        QVERIFY(!file.save(2));
        QCOMPARE(read(name), "damaged");
    }

    void flightGroups_data()
    {
        QTest::addColumn<QString>("listed"); // name start-stop, date after "@", unit after "#"
        QTest::addColumn<QString>("groups");
        QTest::newRow("go on")
            << "LOG_0001 0-9@100 LOG_0002 9.5-20@109 LOG_0003 79-85@179 LOG_0004 146-150@246"
            << "0001 0002 0003|0004";
        QTest::newRow("another day") << "LOG_0001 0-9@100 LOG_0002 9-20@86509"
                                     << "0001|0002";
        QTest::newRow("no dates") << "LOG_0002 9-20 LOG_0001 0-9"
                                  << "0001 0002";
        QTest::newRow("one date") << "LOG_0001 0-9@100 LOG_0002 9-20"
                                  << "0001|0002";
        QTest::newRow("another unit") << "LOG_0001 0-9#1 LOG_0002 9-20#2"
                                      << "0001|0002";
        QTest::newRow("overlap") << "LOG_0001 0-9@0 LOG_0002 7.9-20@8"
                                 << "0001|0002";
        QTest::newRow("the other side")
            << "LOG_0001 0-9@100 LOG_0002 9-20@109 LOG_8001 3-19@103 LOG_8002 500-501@600"
            << "0001 0002 8001|8002";
        QTest::newRow("the other side lasts longer") << "LOG_0001 0-9@100 LOG_8001 8-60@150"
                                                     << "0001 8001";
        QString many; // of which only their names tell the order
        QString apart;
        for (int i = 1001; i <= 1018; ++i) {
            many += QString("LOG_%1 0-0 ").arg(i);
            apart += QString("%1|").arg(i);
        }
        QTest::newRow("many at once")
            << many + "LOG_1019 0-0.5 LOG_1020 0-9" << apart + "1019 1020";
        QTest::newRow("empty") << "LOG_0001 0-0 LOG_0002 0-0"
                               << "0001|0002";
    }

    void flightGroups()
    {
        QFETCH(QString, listed);
        CardInfo card;
        const QStringList words = listed.split(' ');
        for (qsizetype i = 0; i + 1 < words.size(); i += 2) {
            const QString text = words[i + 1];
            RecordInfo& info = card.records["/card/" + words[i] + ".CAN"];
            info.startTime = text.section('-', 0, 0).toDouble();
            info.stopTime = text.section('-', 1).section('@', 0, 0).section('#', 0, 0).toDouble();
            info.samples = info.stopTime > 0.0 ? 5 : 0;
            info.ecuSerialNumber = text.section('#', 1).toUInt();
            if (text.contains('@')) {
                info.dateTime = QDateTime::fromSecsSinceEpoch(1'000'000'000 +
                                                              text.section('@', 1).toLongLong());
            }
        }
        QStringList groups;
        for (const FlightGroup& group : TARN::flightGroups(card)) {
            QStringList names;
            for (const QString& path : group) {
                names += path.mid(10, 4);
            }
            groups += names.join(' ');
            QVERIFY(belongTogether({group.begin(), group.end()}, card));
        }
        QTEST(groups.join('|'), "groups");
        std::list<QString> all = {"/elsewhere.CAN"};
        for (const auto& [path, info] : card.records) {
            all.push_back(path);
        }
        QCOMPARE(belongTogether(all, card), groups.size() == 1);
    }
};

QTEST_APPLESS_MAIN(TestHeader)
#include "tst_header.moc"
