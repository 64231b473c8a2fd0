#include "base/ClockTime.h"
#include "display/TableModel.h"
#include "display/TimeScale.h"
#include "record/Record.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtGui/QBrush>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

#include <random>

using namespace TARN;

class TestTable : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithAMap_data()
    {
        QTest::addColumn<unsigned>("span"); // tenths of a second; 0 for times in order
        QTest::addColumn<double>("offset");
        QTest::addColumn<bool>("farAway");
        QTest::addRow("in order") << 0U << 0.0 << false;
        QTest::addRow("falling") << 50U << 0.0 << false;
        QTest::addRow("offset forwards") << 40U << 12.34 << false;
        QTest::addRow("offset before time 0") << 40U << -3.0 << false;
        QTest::addRow("offset far before time 0") << 40U << -1e12 << false;
        QTest::addRow("far away") << 300U << 0.0 << true;
        QTest::addRow("far away with offset") << 300U << 1e7 << true;
        QTest::addRow("beyond every key") << 0U << 1e12 << false;
    }

    void agreesWithAMap()
    {
        QFETCH(const unsigned, span);
        QFETCH(const double, offset);
        QFETCH(const bool, farAway);
        std::mt19937 engine(5);
        const auto random = [&] { return static_cast<unsigned>(engine()); };
        std::vector<ProfileParameter> parameters(5);
        for (int i = 0; i < 5; ++i) {
            parameters[i].id = i; // no sample has the last one
        }
        std::vector<const ProfileParameter*> columns;
        for (const ProfileParameter& parameter : parameters) {
            columns.push_back(&parameter);
        }
        TableRows rows; // kept from round to round, as a view does
        for (int round = 0; round < 20; ++round) {
            RecordingBuilder files[2];
            std::uint64_t time = 0;
            for (int k = static_cast<int>(random() % 400); k >= 0; --k) {
                time = span > 0 ? random() % (span * 3'200'000U) : time + random() % 3'200'000U;
                if (farAway && random() % 50 == 0) {
                    time = random() * 0xFFFF'FFFFULL;
                }
                // Identifier 3 is in the file with the offset only, 0 in the other one only.
                const unsigned id = random() % 4;
                files[id == 3 ? 1 : id == 0 ? 0 : random() % 2].add({.id = id, .ticks = time});
            }
            Record record;
            QVERIFY(record.readRecordData({write("REC_0000.CAN", files[0].bytes()),
                                           write("REC_8000.CAN", files[1].bytes())}));
            record.recordData().offset = offset;
            rows.build(record, columns);

            std::map<std::uint32_t, std::array<const RecordEntry*, 5>> expected;
            for (const RecordIdList& list : record.recordData().lists()) {
                for (const RecordEntry& entry : list.entries) {
                    const double shifted = entry.time() + (list.highFile ? offset : 0.0);
                    expected[timeKeyOf(shifted)][list.id] = &entry;
                }
            }
            QCOMPARE(rows.rowCount(), expected.size());
            std::size_t row = 0;
            for (const auto& [key, cells] : expected) {
                QCOMPARE(rows.key(row), key);
                for (std::size_t column = 0; column < 5; ++column) {
                    QCOMPARE(rows.sample(row, column), cells[column]);
                }
                QCOMPARE(rows.rowAt(key * 0.1), row);
                ++row;
            }
        }
    }

    void datesCountThroughClockChanges_data()
    {
        QTest::addColumn<QByteArray>("zone");
        QTest::addColumn<QByteArray>("date"); // payload of the message: day, month, year
        QTest::addColumn<QString>("text");
        for (const char* zone : {"UTC", "Europe/Berlin", "America/New_York"}) {
            QTest::addRow("%s, clocks go forward in Europe", zone)
                << QByteArray(zone) << QByteArray("000000001D0307EA") << "29.03.2026 02:00:03";
            QTest::addRow("%s, clocks go back in America", zone)
                << QByteArray(zone) << QByteArray("00000000010B07EA") << "01.11.2026 02:00:03";
        }
    }

    void datesCountThroughClockChanges()
    {
        QFETCH(const QByteArray, zone);
        QFETCH(const QByteArray, date);
        const QByteArray before = qgetenv("TZ");
        qputenv("TZ", zone);
        RecordingBuilder file;
        file.add({.id = 1206, .payload = date});
        file.add({.id = 1200, .payload = "00000000013B3A00"}); // 01:59:58
        Record record;
        QVERIFY(record.readRecordData({write("a.CAN", file.bytes())}));
        QTEST(dateText(record.recordInfo(), 5.0), "text");
        before.isNull() ? qunsetenv("TZ") : qputenv("TZ", before);
    }

    void rowOfATime()
    {
        RecordingBuilder file;
        for (const double second : {10.0, 10.04, 10.06, 20.0}) {
            file.add({.id = 0, .ticks = ticks(second)});
        }
        Record record;
        record.readRecordData({write("a.CAN", file.bytes())});
        const ProfileParameter parameter;
        TableRows rows;
        QCOMPARE(rows.rowAt(5), 0U);
        rows.build(record, {&parameter});
        QCOMPARE(rows.rowCount(), 3U); // 10.0 and 10.04 share a row
        QCOMPARE(rows.sample(0, 0)->timeLow, ticks(10.04));
        const std::pair<double, std::size_t> times[] = {
            {-1, 0}, {0, 0}, {9.9, 0}, {10.0, 0}, {10.09, 1}, {19.94, 1}, {19.95, 2}, {1e300, 2}};
        for (const auto& [time, row] : times) {
            QCOMPARE(rows.rowAt(time), row);
        }
    }

    void model()
    {
        QVERIFY(Profile::instance()->loadProfile(write(
            "profile.xml",
            "<CanAerospaceProfile><ThresholdList><Threshold name='T'>"
            "<Value val='0'/><Value val='100' color='#ffff00'/><Value val='200' color='#000080'/>"
            "</Threshold></ThresholdList><Device name='D'>"
            "<Parameter name='RPM' unit='1/min' id='500' dataType='FLOAT' startByte='4' "
            "thresholdId='T'/><Parameter name='hidden' id='500'/>"
            "<Parameter name='Lamp' id='501' dataType='UCHAR' startByte='4'/></Device>"
            "</CanAerospaceProfile>")));
        Profile::instance()->forEachParameter(
            [](const ProfileDevice&, ProfileParameter& p) { p.selected = p.name != "hidden"; });
        RecordingBuilder file;
        const double day = 86400;
        file.add({500, ticks(day + 0.1), "0002000042C80000"}); // 100
        file.add({501, ticks(day + 0.1), "000A000007000000"});
        file.add({500, ticks(day + 61.52), "0002000043C80000"}); // 400
        file.add({500, ticks(day + 70), "0002000041C80000"});    // 25
        file.add({501, ticks(day + 80), "000A000008000000"});
        Record record;
        QVERIFY(record.readRecordData({write("a.CAN", file.bytes())}));

        TableModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QVERIFY(model.headerData(-1, Qt::Horizontal, Qt::DisplayRole).toString() != "Time");
        model.updateProfile(*Profile::instance());
        QCOMPARE(model.rowCount(), 0);
        model.updateRecord(&record);
        QCOMPARE(resets.count(), 2);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.columnCount(), 3);

        QStringList header;
        QStringList texts;
        for (int column = 0; column < 3; ++column) {
            header += model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
            for (int row = 0; row < 4; ++row) {
                texts += model.index(row, column).data().toString();
            }
        }
        QCOMPARE(header, QStringList({"Time", "RPM [1/min]", "Lamp"}));
        QCOMPARE(texts, QStringList({"00:00:00.100", "00:01:01.500", "00:01:10.000", "00:01:20.000",
                                     "100", "400", "25", "", "7", "", "", "8"}));
        const auto brush = [&](int row, int column, int role) {
            return model.index(row, column).data(role).value<QBrush>().color();
        };
        QCOMPARE(model.index(1, 0).data(Qt::UserRole).toLongLong(), 86461500LL);
        QCOMPARE(brush(1, 0, Qt::BackgroundRole), QColor(230, 230, 230));
        QCOMPARE(brush(0, 1, Qt::BackgroundRole), QColor(255, 255, 0));
        QCOMPARE(brush(0, 1, Qt::ForegroundRole), QColor(Qt::black));
        QCOMPARE(brush(1, 1, Qt::BackgroundRole), QColor(0, 0, 128));
        QCOMPARE(brush(1, 1, Qt::ForegroundRole), QColor(Qt::white));
        QVERIFY(!model.index(2, 1).data(Qt::BackgroundRole).isValid()); // a step without a colour
        QVERIFY(!model.index(0, 2).data(Qt::BackgroundRole).isValid()); // an ordinary value
        QCOMPARE(model.flags(model.index(0, 1)) & (Qt::ItemIsEditable | Qt::ItemIsSelectable),
                 Qt::ItemFlags(Qt::ItemIsSelectable));
        QCOMPARE(model.rowAt(day + 65), 1);
        model.updateRecord(nullptr);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 3);
    }
};

QTEST_GUILESS_MAIN(TestTable)
#include "tst_table.moc"
