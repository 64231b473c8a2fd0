#include "record/Record.h"
#include "record/SampleGrouper.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <algorithm>
#include <random>

using namespace TARN;

class TestRecord : public CoreTest
{
    Q_OBJECT

    /// "identifier@ticks" of all samples in an order.
    template <typename Order>
    static QString samplesOf(const RecordData& data, Order order)
    {
        QStringList samples;
        for (std::size_t k = 0; k < data.count(); ++k) {
            const RecordEntry& entry = (data.*order)(k);
            samples += QString("%1@%2").arg(entry.id).arg(entry.timeLow);
        }
        return samples.join(' ');
    }

    /// A recording of samples given by identifier, with 1, 2, 3 ... ticks.
    static RecordingBuilder recordingOf(const QList<unsigned>& ids)
    {
        RecordingBuilder file;
        std::uint64_t time = 0;
        for (const unsigned id : ids) {
            file.add({.id = id, .ticks = ++time});
        }
        return file;
    }

private Q_SLOTS:
    void entries_data()
    {
        QTest::addColumn<int>("order");
        QTest::addRow("little-endian") << int(RecordingBuilder::Little);
        QTest::addRow("big-endian") << int(RecordingBuilder::Big);
    }

    void entries()
    {
        QFETCH(const int, order);
        RecordingBuilder file(order);
        file.add({0x800001F4, 0x3'0000'0010, "0102030405060708", 1, 0x1122});
        file.add({.id = 500, .ticks = 5, .channel = 1}).add({.id = 7, .ticks = 9, .channel = 2});
        file.append("27 bytes are no sample.....");
        Record record;
        QVERIFY(record.readRecordData({write("a.CAN", file.bytes())}));
        const RecordData& data = record.recordData();
        QCOMPARE(samplesOf(data, &RecordData::inFileOrder), QString("500@16 500@5 7@9"));
        QCOMPARE(record.recordInfo().samples, 3);
        QCOMPARE(record.rawDataIsBigEndian(), order == RecordingBuilder::Big);
        QVERIFY(diagnostics().contains("Record::readData size 84 records 3\n"));

        const RecordIdList* list = data.find(1, 500);
        QCOMPARE(list->entries.size(), 2U);
        const RecordEntry& entry = list->entries[0];
        QCOMPARE(QByteArray(reinterpret_cast<const char*>(entry.data), 10),
                 QByteArray::fromHex("01020304050607081819"));
        QCOMPARE(entry.channel, 1);
        QCOMPARE(entry.w16, 0x1122);
        QVERIFY(entry.time() == 3 * 134.217728 + (16 * 31.25) * 1e-9);
        QVERIFY(record.recordInfo().startTime == (5 * 31.25) * 1e-9);
        QVERIFY(record.recordInfo().stopTime == entry.time());
        QVERIFY(data.find(2, 7) != nullptr && data.find(0, 500) == nullptr);
        QVERIFY(data.find(~0U, ~0U) == nullptr);
        QVERIFY(data.find(0, RecordData::AllOfChannel0) == nullptr);
        QCOMPARE(data.lists().size(), 2U);
    }

    void severalFiles()
    {
        RecordingBuilder bare(RecordingBuilder::Big);
        RecordingBuilder big(RecordingBuilder::Big);
        big.add({.id = 1, .ticks = 30}).add({.id = 2, .ticks = 10}).add({.id = 3, .ticks = 20});
        RecordingBuilder little;
        little.add({.id = 2, .ticks = 5}).add({.id = 1, .ticks = 10});
        const QString files[] = {write("REC_0.CAN", bare.busType(1).bytes()),
                                 write("REC_7FFF.CAN", big.busType(2).bytes()),
                                 write("REC_8000.CAN", little.busType(3).bytes())};
        Record record;
        QVERIFY(record.readRecordData({files[0], files[1], files[2]}));
        const RecordData& data = record.recordData();
        QCOMPARE(samplesOf(data, &RecordData::inFileOrder), QString("1@30 2@10 3@20 2@5 1@10"));
        QCOMPARE(samplesOf(data, &RecordData::inTimeOrder), QString("2@5 2@10 1@10 3@20 1@30"));
        QCOMPARE(data.find(0, 2)->entries[0].timeLow, 10U);
        QVERIFY(data.find(0, 1)->highFile && data.find(0, 2)->highFile);
        QVERIFY(!data.find(0, 3)->highFile); // the last file does not have it
        QCOMPARE(record.rawData()[31], 2);   // the header of the first samples
        QVERIFY(record.rawDataIsBigEndian());
        QCOMPARE(record.recordInfo().busType, 3U);

        // What can't be opened ends the reading; what was read before it is there.
        record.recordData().limits.emplace_back();
        QVERIFY(!record.readRecordData({files[2], path("none.CAN"), files[1]}));
        QCOMPARE(samplesOf(data, &RecordData::inTimeOrder), QString("2@5 1@10"));
        QVERIFY(diagnostics().contains("Could not open " + path("none.CAN").toUtf8() + "\n"));
        QVERIFY(data.limits.empty());
        QVERIFY(!record.readRecordData({folder()}));
        QVERIFY(data.empty() && data.lists().empty());
        QVERIFY(record.readRecordData({}));
    }

    void pseudoIdentifiers()
    {
        RecordingBuilder file;
        file.add({0x12345678, 1, "", 0, 0x1122}).add({.id = 9, .channel = 1});
        file.add({RecordData::AllOfChannel0, 3, "", 0, 0x5566}).add({.channel = 2});
        Record record;
        record.readRecordData({write("REC_FFFF.CAN", file.bytes())});
        const RecordIdList* all = record.recordData().find(0, RecordData::AllOfChannel0);
        QCOMPARE(all->entries.size(), 3U); // the one really sent stands before its copy
        QCOMPARE(all->entries[0].id, 0x78563412U);
        QCOMPARE(all->entries[0].w16, 0x2211);
        QCOMPARE(all->entries[0].timeLow, 1U);
        QCOMPARE(all->entries[1].w16, 0x5566);
        QCOMPARE(all->entries[2].w16, 0x6655);
        QVERIFY(all->highFile);
        const RecordIdList* one = record.recordData().find(1, RecordData::AllOfChannel1);
        QCOMPARE(one->entries.size(), 1U);
        QCOMPARE(one->entries[0].channel, 0x0100);
        QCOMPARE(one->entries[0].id, 0x09000000U);
        QVERIFY(!one->highFile); // nothing was really sent under it
        record.readRecordData({write("b.CAN", RecordingBuilder().add({}).bytes())});
        QCOMPARE(record.recordData().find(0, RecordData::AllOfChannel0)->entries.size(), 1U);
    }

    void timeOrder_data()
    {
        QTest::addColumn<unsigned>("distinctTimes");
        QTest::addColumn<unsigned>("runLength");
        QTest::addRow("all equal") << 1U << 1U;
        QTest::addRow("few times") << 4U << 1U;
        QTest::addRow("random") << 100000U << 1U;
        QTest::addRow("rising pieces in disorder") << 100000U << 40U;
        QTest::addRow("pieces that touch") << 3U << 2U;
    }

    void timeOrder()
    {
        QFETCH(const unsigned, distinctTimes);
        QFETCH(const unsigned, runLength);
        std::mt19937 engine(99);
        const auto random = [&](unsigned below) { return static_cast<unsigned>(engine() % below); };
        for (int round = 0; round < 40; ++round) {
            std::list<QString> paths;
            std::vector<std::pair<unsigned, unsigned>> expected; // time, number
            for (int part = 0; part < 3; ++part) {
                RecordingBuilder file(part % 2);
                unsigned time = 0;
                for (unsigned k = random(120); k > 0; --k) {
                    const auto number = static_cast<unsigned>(expected.size());
                    time = number % runLength == 0 ? random(distinctTimes) : time + random(3);
                    file.add({random(5), time, "", 0, number});
                    expected.emplace_back(time, number);
                }
                paths.push_back(write(QString::number(part), file.bytes()));
            }
            std::ranges::stable_sort(expected, {}, &std::pair<unsigned, unsigned>::first);
            Record record;
            QVERIFY(record.readRecordData(paths));
            const RecordData& data = record.recordData();
            QCOMPARE(data.count(), expected.size());
            for (std::size_t k = 0; k < expected.size(); ++k) {
                QCOMPARE(unsigned(data.inTimeOrder(k).w16), expected[k].second);
                QCOMPARE(std::size_t(data.inFileOrder(k).w16), k);
            }
            std::size_t listed = 0;
            for (const RecordIdList& list : data.lists()) {
                listed += list.entries.size();
                QVERIFY(std::ranges::is_sorted(list.entries, {}, &RecordEntry::w16));
                QVERIFY(std::ranges::all_of(list.entries,
                                            [&](const RecordEntry& e) { return e.id == list.id; }));
            }
            QCOMPARE(listed, expected.size());
        }
    }

    void utc_data()
    {
        QTest::addColumn<QString>("samples"); // identifier:payload each, | ends a file
        QTest::addColumn<qint64>("utc");
        QTest::addColumn<QByteArray>("said");
        const QString date = " 1206:00000000090707E5 "; // 9.7.2021
        const QString time = " 1200:000000000E330D00 "; // 14:51:13
        const QString other = " 1206:00000000010107E4 1200:0000000001010100 ";
        constexpr qint64 Start = 1625842273;
        const QByteArray line = "### Time <09.07.2021 14:51:13> year 2021 month 7 day 9\n";
        QTest::addRow("date, time") << date + time << Start << line;
        QTest::addRow("time, date") << time + date << Start << line;
        QTest::addRow("bit 31 is no part of an identifier")
            << "2147484848:000000000E330D00" + date << Start << line;
        QTest::addRow("the first pair counts") << date + time + other << Start << line;
        QTest::addRow("only a date") << date << qint64(0) << QByteArray();
        QTest::addRow("each file looks for a pair")
            << date + "|" + time << qint64(0) << QByteArray();
        QTest::addRow("30 February") << "1206:000000001E0207E5" + time << qint64(0)
                                     << QByteArray("### Time <> year 2021 month 2 day 30\n");
    }

    void utc()
    {
        QFETCH(const QString, samples);
        QFETCH(const QByteArray, said);
        std::list<QString> paths;
        for (const QString& part : samples.split('|')) {
            RecordingBuilder file;
            for (const QString& sample : part.split(' ', Qt::SkipEmptyParts)) {
                file.add({.id = sample.section(':', 0, 0).toUInt(),
                          .payload = sample.section(':', 1).toLatin1()});
            }
            paths.push_back(write(QString::number(paths.size()), file.bytes()));
        }
        Record record;
        record.recordInfo().utcTime = 5; // of an earlier recording
        QVERIFY(record.readRecordData(paths));
        QTEST(record.recordInfo().utcTime, "utc");
        const QByteArray all = diagnostics();
        QVERIFY2(said.isEmpty() ? !all.contains("###") : all.contains(said), all);
    }

    void progress()
    {
        RecordingBuilder file;
        for (unsigned k = 0; k < 90000; ++k) {
            file.add({.id = k % 7, .ticks = k});
        }
        write("a.CAN", file.bytes());
        Record record;
        std::vector<int> heard;
        record.setProgressListener([&](int percent) { heard.push_back(percent); });
        QVERIFY(record.readRecordData({path("a.CAN"), path("a.CAN")}));
        QVERIFY(heard.size() > 4 && heard.front() >= 0 && heard.back() == 100);
        QVERIFY(std::ranges::adjacent_find(heard, std::greater_equal<>()) == heard.end());
    }

    void fileChangesBetweenThePasses_data()
    {
        QTest::addColumn<QList<unsigned>>("counted");
        QTest::addColumn<QList<unsigned>>("stored");
        QTest::addColumn<QString>("samples");
        using Ids = QList<unsigned>;
        const QString second = "1@1 1@2 2@3";
        QTest::addRow("the same") << Ids{1, 2} << Ids{1, 2} << "1@1 2@2 " + second;
        QTest::addRow("shrinks") << Ids{1, 2, 1} << Ids{1} << "1@1 " + second;
        QTest::addRow("is emptied") << Ids{1, 2} << Ids{} << second;
        QTest::addRow("grows") << Ids{1, 2} << Ids{1, 2, 1, 1, 2, 2, 1} << "1@1 2@2 " + second;
        QTest::addRow("others") << Ids{1, 2, 1} << Ids{3, 2, 4} << "2@2 " + second;
        QTest::addRow("another order") << Ids{1, 2, 2} << Ids{2, 2, 1} << "2@2 " + second;
    }

    void fileChangesBetweenThePasses()
    {
        QFETCH(const QList<unsigned>, counted);
        QFETCH(const QList<unsigned>, stored);
        const QString a = write("a.CAN", recordingOf(counted).bytes());
        const QString b = write("b.CAN", recordingOf({1, 1, 2}).bytes());
        Record record;
        record.setProgressListener([&](int percent) {
            if (percent == 50) { // all is counted
                write("a.CAN", recordingOf(stored).bytes());
            }
        });
        QVERIFY(record.readRecordData({a, b}));
        QTEST(samplesOf(record.recordData(), &RecordData::inFileOrder), "samples");
        std::size_t listed = 0;
        for (const RecordIdList& list : record.recordData().lists()) {
            listed += list.entries.size();
        }
        QCOMPARE(listed, record.recordData().count());
    }

    void grouperKeepsToItsReservation()
    {
        const QByteArray bytes = recordingOf({1, 2, 3, 4}).bytes().mid(128);
        const std::span samples(reinterpret_cast<const unsigned char*>(bytes.data()), 4 * 28U);
        const auto grouper = std::make_unique<SampleGrouper>();
        QVERIFY(!grouper->reserve(std::size_t(1) << 33)); // more than an index can name
        QVERIFY(grouper->reserve(2));
        grouper->count(samples, false);
        QVERIFY(grouper->allocate());
        grouper->beginFile(grouper->counted());
        grouper->store(samples, false, false, [](const RecordEntry&) {});
        RecordData data;
        grouper->finish(data);
        QCOMPARE(samplesOf(data, &RecordData::inFileOrder), QString("1@1 2@2"));
    }
};

QTEST_APPLESS_MAIN(TestRecord)
#include "tst_record.moc"
