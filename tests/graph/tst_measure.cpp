#include "flight/StatisticsWords.h"
#include "graph/MarkerEnds.h"
#include "graph/MeasureModel.h"
#include "support/FlightTest.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QSignalSpy>

using namespace TARN;

/// What the measuring panel shows, which the statistics decide.
class TestMeasure : public FlightTest
{
    Q_OBJECT

private:
    static QStringList rowOf(const MeasureModel& model, int row, int role)
    {
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column) {
            texts += model.data(model.index(row, column), role).toString();
        }
        return texts;
    }

private Q_SLOTS:
    void rows()
    {
        const auto flight =
            flightOf("500@10=1 500@11=3 500@12=60.5 501@10=7 501@11=nan",
                     "<ThresholdList><Threshold name='T'><Value val='3'/><Value val='60'/>"
                     "</Threshold></ThresholdList><Device name='D'>"
                     "<Parameter name='Flow' id='500' dataType='FLOAT' startByte='4' unit='l/h' "
                     "thresholdId='T'/><Parameter name='Silent' id='502' dataType='FLOAT'/>"
                     "</Device>");
        MeasureModel model;
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::Fatal);
        const TimeRange range{10.0, 12.0};
        std::vector<MeasuredCurve> curves;
        Progress progress;
        for (const auto& [device, parameter] : flight->profile()->parameters()) {
            const StatisticsIndex index(flight, *parameter, 0.0, progress);
            curves.push_back({parameter, Qt::red, {}, {}, {}, {}, index.range(range), {}});
        }
        curves[0].atA = 1.0;
        curves[0].atB = 1.0 / 3.0;
        ComparedCurve& compared = curves[0].compared.emplace();
        compared.referenceAtB = 7.0;
        compared.differenceAtB = -6.5;
        compared.reference.max = {8.0, 11.0};
        compared.difference.timeMean = -2.0;
        compared.difference.min = {-9.0, 10.5};
        model.setCurves(curves, range);
        QCOMPARE(rowOf(model, 0, Qt::DisplayRole).mid(16),
                 QStringList({"-2", "---", "-6.5", "-9", "---", "---", "---", "7", "---", "8"}));
        QCOMPARE(model.timeOf(model.index(0, MeasureModel::MinDifferenceColumn)),
                 std::optional(10.5));
        QCOMPARE(model.timeOf(model.index(0, MeasureModel::ReferenceMaxColumn)),
                 std::optional(11.0));
        QCOMPARE(rowOf(model, 0, Qt::DisplayRole).mid(0, 16),
                 QStringList({"Flow [l/h]", "1", "0.333333", "-0.666667", "-0.333333", "1",
                              "00:00:10.000", "60.5", "00:00:12.000", "21.5", "2", "27.5892",
                              "0.009375 l", "3", "0", "\u2265 3: 1.0 s  \u2265 60: 0.0 s"}));
        QCOMPARE(rowOf(model, 0, Qt::UserRole).mid(6, 3), QStringList({"10", "60.5", "12"}));
        QCOMPARE(rowOf(model, 0, Qt::ToolTipRole)[2], QString("0.33333333333333331"));
        QCOMPARE(rowOf(model, 1, Qt::DisplayRole).mid(1, 12), QStringList(QList<QString>(11, "---"))
                                                                  << "0 s");
        QCOMPARE(model.timeOf(model.index(0, MeasureModel::MaxTimeColumn)), std::optional(12.0));
        QCOMPARE(model.timeOf(model.index(0, MeasureModel::MinColumn)), std::optional(10.0));
        QVERIFY(!model.timeOf(model.index(0, MeasureModel::MeanColumn)));
        QVERIFY(!model.timeOf(model.index(1, MeasureModel::MaxColumn)));
        QSignalSpy told(&model, &MeasureModel::headerDataChanged);
        QSignalSpy changed(&model, &MeasureModel::dataChanged);
        model.setCurves(curves, range); // as a marker is dragged
        QCOMPARE(told.size(), 0);
        QCOMPARE(changed.size(), 1);
        curves[1].color = Qt::blue;
        model.setCurves(curves, range);
        QCOMPARE(told.value(0).value(2), QVariant(1));
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), "A");
        QCOMPARE(model.headerData(1, Qt::Horizontal, Qt::ToolTipRole).toString(), "Value at A");
        model.setCurves({}, range);
        QCOMPARE(model.rowCount(), 0);
    }

    void integrals()
    {
        QCOMPARE(integralWords(3600.0, "l/h"), "1 l");
        QCOMPARE(integralWords(-30.0, "ft/min"), "-0.5 ft");
        QCOMPARE(integralWords(5.0, "m/s"), "5 m");
        QCOMPARE(integralWords(5.0, "1/min"), "0.0833333");
        QCOMPARE(integralWords(5.0, "bar"), "5 bar\u00B7s");
    }

    void ends()
    {
        const TimeRange whole{0.0, 100.0};
        QVERIFY(withEnd({}, whole, MarkerEnd::A, 20.0) == TimeRange(20.0, 100.0));
        QVERIFY(withEnd({}, whole, MarkerEnd::B, 20.0) == TimeRange(0.0, 20.0));
        QVERIFY(withEnd({30.0, 40.0}, whole, MarkerEnd::A, 35.0) == TimeRange(35.0, 40.0));
        QVERIFY(withEnd({30.0, 40.0}, whole, MarkerEnd::A, 50.0) == TimeRange(50.0, 100.0));
        QCOMPARE(endNear({30.0, 40.0}, 31.0, 2.0), std::optional(MarkerEnd::A));
        QCOMPARE(endNear({30.0, 40.0}, 39.0, 2.0), std::optional(MarkerEnd::B));
        QVERIFY(!endNear({30.0, 40.0}, 35.0, 2.0) && !endNear({30.0, 30.0}, 30.0, 2.0));
    }
};

QTEST_GUILESS_MAIN(TestMeasure)
#include "tst_measure.moc"
