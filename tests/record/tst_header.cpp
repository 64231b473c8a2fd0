#include "record/CardInfo.h"
#include "record/Record.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QDir>

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

    static void byteOrders()
    {
        QTest::addColumn<int>("order");
        QTest::addRow("little-endian") << int(RecordingBuilder::Little);
        QTest::addRow("big-endian") << int(RecordingBuilder::Big);
    }

private Q_SLOTS:
    void fields_data() { byteOrders(); }
    void fields()
    {
        QFETCH(const int, order);
        RecordingBuilder file = fullHeader(order);
        Record record;
        RecordInfo& info = record.recordInfo();
        info.stopTime = 77;
        QVERIFY(record.readRecordInfo(write("a.CAN", file.bytes())));
        QCOMPARE(info.startTime, 1000.5);
        QCOMPARE(info.stopTime, 77.0); // no sample, no stop
        QCOMPARE(info.busType, 0x01020304U);
        QCOMPARE(info.ecuSerialNumber, 0xFFFFFFFEU);
        QCOMPARE(QStringList({info.fileName, info.dateTimeText(), info.softwarePartA, info.ecuType,
                              info.engineSerialNr, info.engineType, info.softwarePartB,
                              info.emuSwVersion}),
                 QStringList({path("a.CAN"), "9.7.2021 14:51:13", "PartA-1234567", "Ecu", "Serial",
                              "Type", "B", "1.2.345"}));

        file.add({.ticks = 0x2'0000'0001}).add({.ticks = ticks(5)}).add({.ticks = ticks(3.25)});
        QVERIFY(record.readRecordInfo(write("a.CAN", file.append("tail!").bytes())));
        QCOMPARE(info.samples, 3);
        QVERIFY(info.startTime == 2 * 134.217728 + 31.25 * 1e-9);
        QCOMPARE(info.stopTime, 3.25); // of the last sample, not the largest

        // Any other magic means big-endian too.
        QVERIFY(record.readRecordInfo(write("a.CAN", file.setByte(0, 'x').bytes())));
        QCOMPARE(info.busType, order == RecordingBuilder::Big ? 0x01020304U : 0x04030201U);
        QVERIFY(!record.readRecordInfo(path("none.CAN")));
        QCOMPARE(diagnostics(), "Could not open " + path("none.CAN").toUtf8() + "\n");
        QCOMPARE(info.samples, 3);
    }

    void cutAnywhere_data() { byteOrders(); }
    void cutAnywhere()
    {
        QFETCH(const int, order);
        for (int size = 0; size <= 128; ++size) {
            const QByteArray bytes = fullHeader(order).cutAt(size).bytes();
            Record record;
            QVERIFY(record.readRecordInfo(write("a.CAN", bytes)));
            QVERIFY(record.readRecordData({path("a.CAN")}));
            const RecordInfo& info = record.recordInfo();
            QCOMPARE(info.samples, (size - 128) / 28);
            QVERIFY(record.recordData().empty());
            QCOMPARE(info.startTime, size >= 28 ? 1000.5 : size >= 24 ? 7 * 134.217728 : 0.0);
            QCOMPARE(info.busType, size >= 32 ? 0x01020304U : 0U);
            QCOMPARE(info.softwarePartA, QString(size >= 49 ? "PartA-1234567" : ""));
            QCOMPARE(info.emuSwVersion, QString(size >= 108 ? "1.2.345" : ""));
            QCOMPARE(info.dateTime.isValid(), size >= 16);
            const auto* raw = reinterpret_cast<const char*>(record.rawData().data());
            QCOMPARE(QByteArray(raw, 128), bytes.leftJustified(128, '\0'));
        }
    }

    void dates()
    {
        qputenv("TZ", "Europe/Berlin");
        const std::pair<RecordingBuilder, const char*> dates[] = {
            {RecordingBuilder(), ""},
            {RecordingBuilder().date(2021, 2, 30, 1, 2, 3), ""},
            {RecordingBuilder().date(2020, 2, 29, 1, 2, 3), "29.2.2020 1:02:03"},
            // An hour that summer time skips.
            {RecordingBuilder().date(2021, 3, 28, 2, 30, 0), "28.3.2021 2:30:00"}};
        for (const auto& [file, text] : dates) {
            Record record;
            record.readRecordInfo(write("a.CAN", file.bytes()));
            QCOMPARE(record.recordInfo().dateTimeText(), QString(text));
        }
    }

    void card()
    {
        const QByteArray file = fullHeader(RecordingBuilder::Big).bytes();
        for (const char* name : {"b.can", "A.CAN", "c.Can", "noteCAN", "A.CAN.bak", "z.CAN"}) {
            write(name, file);
        }
        QVERIFY(QDir(folder()).mkdir("folder.CAN"));
        write("folder.CAN/inside.CAN", file);
        QCOMPARE(mkfifo(qPrintable(path("pipe.CAN")), 0600), 0); // must not block
        const CardInfo card = readCard(folder());
        QStringList names;
        for (const auto& [key, info] : card.records) {
            QCOMPARE(info.fileName, key);
            names += key.section('/', -1);
            QCOMPARE(info.busType, names.last() == "pipe.CAN" ? 0U : 0x01020304U);
        }
        QCOMPARE(names, QStringList({"A.CAN", "b.can", "pipe.CAN", "z.CAN"}));
        QVERIFY(readCard(path("none")).records.empty());
    }

    void highFiles()
    {
        const auto isHigh = [this](const char* name) {
            Record record;
            record.readRecordData({write(name, RecordingBuilder().add({.id = 3}).bytes())});
            const RecordIdList* list = record.recordData().find(0, 3);
            return list->highFile && list->shift(2.5) == 2.5;
        };
        for (const char* name : {"REC_8000.CAN", "REC_FFFF.CAN", "REC_ffff", "12348a00x.can"}) {
            QVERIFY2(isHigh(name), name);
        }
        for (const char* name : {"REC_7FFF.CAN", "REC_800.CAN", "8000.CAN", "REC_G000.CAN", "x"}) {
            QVERIFY2(!isHigh(name), name);
        }
    }

    void offsetReading_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<double>("offset"); // 7 before
        const auto row = [](const char* name, const char* content, double offset) {
            QTest::addRow("%s", name) << "<r>" + QByteArray(content) + "</r>" << offset;
        };
        row("plain", "<Offset value='-2.5'/>", -2.5);
        row("the last of two", "<Offset value='1'/><x/><Offset value='2'/>", 2);
        row("no value", "<Offset/>", 0);
        row("no number", "<Offset value='2,5'/>", 0);
        row("not deeper", "<x><Offset value='3'/></x>", 7);
        row("no XML", "<Offset value='3'>", 7);
    }

    void offsetReading()
    {
        QFETCH(const QByteArray, xml);
        write("Offset.xml", xml);
        Record record;
        record.recordData().offset = 7;
        record.readRecordData({write("a.CAN", RecordingBuilder().bytes())});
        QTEST(record.recordData().offset, "offset");
    }

    void offsetIsAlwaysANumber()
    {
        for (const char* value : {"nan", "inf", "-inf"}) {
            write("Offset.xml", QByteArray("<r><Offset value='") + value + "'/></r>");
            Record record;
            record.readRecordData({write("a.CAN", RecordingBuilder().bytes())});
            QVERIFY2(std::isfinite(record.recordData().offset), value);
        }
    }

    void offsetWriting()
    {
        QVERIFY(QDir(folder()).mkdir("with") && QDir(folder()).mkdir("without"));
        Record record;
        record.readRecordData({write("with/a.CAN", RecordingBuilder().bytes())});
        diagnostics();
        QVERIFY(record.setOffset(2.5));
        QCOMPARE(diagnostics(), "Write Offset <" + path("with/Offset.xml").toUtf8() + ">\n");
        const QByteArray expected = "<TarnOffset>\n"
                                    "    <Offset value=\"2.500000000000\"/>\n"
                                    "</TarnOffset>\n";
        QCOMPARE(read("with/Offset.xml"), expected);
        Record other;
        other.readRecordData({path("with/a.CAN")});
        other.readRecordData({write("without/a.CAN", RecordingBuilder().bytes())});
        QCOMPARE(other.recordData().offset, 2.5); // kept where a folder has none
        QVERIFY(other.setOffset(3));
        QVERIFY(read("without/Offset.xml").contains("3.000000000000"));
        QCOMPARE(read("with/Offset.xml"), expected);
        QVERIFY(QDir(path("without")).removeRecursively());
        QVERIFY(!other.setOffset(4));
    }
};

QTEST_APPLESS_MAIN(TestHeader)
#include "tst_header.moc"
