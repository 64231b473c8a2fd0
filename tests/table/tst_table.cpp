#include "base/ClockTime.h"
#include "support/FlightTest.h"
#include "table/TableModel.h"

#include <QtGui/QBrush>
#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

using namespace TARN;

class TestTable : public FlightTest
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
        // No sample has the last one.
        const auto profile = profileOf("<Device><Parameter id='0'/><Parameter id='1'/>"
                                       "<Parameter id='2'/><Parameter id='3'/>"
                                       "<Parameter id='4'/></Device>");
        std::mt19937 engine(5);
        const auto random = [&] { return static_cast<unsigned>(engine()); };
        for (int round = 0; round < 20; ++round) {
            RecordingBuilder files[2];
            std::uint64_t time = 0;
            for (int k = pick(engine, 400); k >= 0; --k) {
                time = span > 0 ? random() % (span * 3'200'000U) : time + random() % 3'200'000U;
                if (farAway && random() % 50 == 0) {
                    time = random() * 0xFFFF'FFFFULL;
                }
                // Identifier 3 is in the file with the offset only, 0 in the other one only.
                const unsigned id = random() % 4;
                files[id == 3 ? 1 : id == 0 ? 0 : random() % 2].add({.id = id, .ticks = time});
            }
            const auto flight = Flight::make(load({write("REC_0000.CAN", files[0].bytes()),
                                                   write("REC_8000.CAN", files[1].bytes())}),
                                             profile);
            Progress progress;
            const TableRows rows(flight, Selection::all(*profile), offset, progress);

            std::map<std::uint32_t, std::array<const RecordEntry*, 5>> expected;
            for (const RecordIdList& list : flight->samples().lists()) {
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

    void rowOfATime()
    {
        const auto flight = flightOf("500@10=1 500@10.04=2 500@10.06=3 500@20=4",
                                     "<Device><Parameter name='a' id='500'/></Device>");
        Progress progress;
        const Selection selection = Selection::all(*flight->profile());
        const TableRows rows(flight, selection, 0.0, progress);
        QCOMPARE(rows.rowCount(), 3U); // 10.0 and 10.04 share a row
        QCOMPARE(rows.sample(0, 0)->timeLow, ticks(10.04));
        const std::pair<double, std::size_t> times[] = {
            {-1, 0}, {0, 0}, {9.9, 0}, {10.0, 0}, {10.09, 1}, {19.94, 1}, {19.95, 2}, {1e300, 2}};
        for (const auto& [time, row] : times) {
            QCOMPARE(rows.rowAt(time), row);
        }
        const TableRows none(flight->profile(), selection);
        QVERIFY(none.columnCount() == 1 && none.rowCount() == 0 && none.rowAt(5) == 0);
        std::stop_source stop;
        stop.request_stop();
        Progress stopped({}, stop.get_token());
        QCOMPARE(TableRows(flight, selection, 0.0, stopped).rowCount(), 0U);
    }

    void model()
    {
        const auto flight = flightOf(
            "500@86400.1=4.06 501@86400.1=10:07 500@86461.52=400 500@86470=25.5 501@86480=10:08",
            "<ThresholdList><Threshold name='T'>"
            "<Value val='0' color='#ffff00'/><Value val='10'/><Value val='200' color='#000080'/>"
            "</Threshold></ThresholdList><Device name='D'>"
            "<Parameter name='RPM' unit='1/min' id='500' dataType='FLOAT' startByte='4' "
            "thresholdId='T'/><Parameter name='hidden' id='500'/>"
            "<Parameter name='Lamp' id='501' dataType='BSHORT' startByte='3' endBit='7'/>"
            "<Parameter name='Level' id='501' dataType='UCHAR' startByte='4'/></Device>");
        const Selection selection = select(*flight->profile(), {"RPM", "Lamp", "Level"});
        TableModel model;
        QAbstractItemModelTester tester(&model,
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        model.setRows(std::make_shared<TableRows>(flight->profile(), selection));
        QVERIFY(model.rowCount() == 0 && model.columnCount() == 4);
        Progress progress;
        model.setRows(std::make_shared<TableRows>(flight, selection, 0.0, progress));
        QCOMPARE(resets.count(), 2);
        QVERIFY(model.rowCount() == 4 && model.columnCount() == 4);
        QCOMPARE(model.rowAt(86465), 1);

        QStringList header;
        for (int column = 0; column < 4; ++column) {
            header += model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        }
        QCOMPARE(header.join('|'), QString("Time|RPM [1/min]|Lamp|Level"));
        QVERIFY(model.headerData(4, Qt::Horizontal, Qt::DisplayRole).toString() != "Time");
        // Text, tool tip, background and foreground of each cell; numbers stand on the right.
        const auto cell = [&](int row, int column) {
            const QModelIndex index = model.index(row, column);
            QStringList parts = {index.data().toString(), index.data(Qt::ToolTipRole).toString()};
            for (const int role : {Qt::BackgroundRole, Qt::ForegroundRole}) {
                const QVariant brush = index.data(role);
                parts += brush.isValid() ? brush.value<QBrush>().color().name() : "";
            }
            return parts.join('|') +
                   (index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight ? " >" : "");
        };
        const QString plain = "|||";
        const QString expected[4][4] = {
            {"00:00:00.100||#e6e6e6|#000000", "4.06|4.05999994278|#ffff00|#000000 >", "7" + plain,
             "7" + plain + " >"},
            {"00:01:01.500||#e6e6e6|#000000", "400|400|#000080|#ffffff >", plain, plain + " >"},
            {"00:01:10.000||#e6e6e6|#000000", "25.5|25.5|| >", plain, plain + " >"},
            {"00:01:20.000||#e6e6e6|#000000", plain + " >", "8" + plain, "8" + plain + " >"}};
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                QCOMPARE(cell(row, column), expected[row][column]);
            }
        }
        QCOMPARE(model.index(1, 0).data(Qt::UserRole).toLongLong(), 86461500LL);
        QCOMPARE(model.flags(model.index(0, 1)) & (Qt::ItemIsEditable | Qt::ItemIsSelectable),
                 Qt::ItemFlags(Qt::ItemIsSelectable));
        model.setAllDigits(true);
        QCOMPARE(resets.count(), 3);
        QCOMPARE(model.index(0, 1).data().toString(), QString("4.05999994278"));
    }
};

QTEST_GUILESS_MAIN(TestTable)
#include "tst_table.moc"
