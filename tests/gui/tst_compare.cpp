#include "graph/WidgetGraph.h"
#include "gui/WindowTest.h"
#include "support/ResourceLimit.h"

using namespace TARN;

/// A second flight beside the one that is open.
class TestCompare : public WindowTest
{
    Q_OBJECT

private:
    QWidget* bar() { return find<QWidget>("referenceBar"); }
    QString note()
    {
        const auto* found = window().findChild<QWidget*>("referenceBar");
        return found != nullptr ? found->findChild<QLabel*>("note")->text() : QString();
    }
    GraphModel& graph() { return find<WidgetGraph>()->model(); }
    std::span<const ParStruct> curves() { return std::as_const(graph()).curves().all(); }

    /// By a right click, which must not load it as the flight.
    void loadAsReference(int number)
    {
        QTreeWidgetItem* item = recording(number);
        recordings()->scrollToItem(item);
        QTest::mouseClick(recordings()->viewport(), Qt::RightButton, {},
                          recordings()->visualItemRect(item).center());
        recordings()->actions().last()->trigger();
        settle();
    }

    static void setNumber(QDoubleSpinBox* box, double value)
    {
        box->setValue(value);
        settle();
    }

private Q_SLOTS:
    void withItself()
    {
        start();
        open({0, 1});
        const auto flight = session().flight();
        QVERIFY(window().findChild<QWidget*>("referenceBar") == nullptr &&
                !find<QTableView>("measures")->isVisible());
        loadAsReference(0);
        const Reference& reference = session().reference();
        QVERIFY(session().flight() == flight && reference.flight() != nullptr &&
                bar()->isVisible());
        QVERIFY2(said().startsWith("Reference: Samples loaded: "), qPrintable(said()));
        QVERIFY2(note().isEmpty(), qPrintable(note()));
        QCOMPARE(reference.shift(), 0.0);

        views()->setCurrentIndex(Graph);
        auto* widget = find<WidgetGraph>();
        widget->setFocus();
        settle();
        QTest::keyClick(widget, Qt::Key_D);
        settle();
        graph().layout().prepare([](const QString&) { return 50.0; }, 15.0);
        for (const ParStruct& curve : curves().first(2)) {
            QVERIFY(curve.reference.samples->size() > 100 && curve.differenceStrip.height > 10.0);
            QVERIFY(!curve.reference.frames.frames().empty());
            const CurveSamples& difference = *curve.difference.samples;
            QVERIFY(difference.size() > 100 && difference.dataMin() == 0.0 &&
                    difference.dataMax() == 0.0);
        }
        auto* measures = find<QTableView>("measures")->model();
        QTRY_COMPARE(measures->index(0, 16).data().toString(), "0"); // mean of the difference
        QTest::keyClick(widget, Qt::Key_B);
        settle();
        graph().layout().prepare([](const QString&) { return 50.0; }, 15.0);
        QVERIFY(curves()[0].reference.frames.frames().empty() &&
                !curves()[0].difference.samples->empty());

        // Shifted by hand: a drag, keys, a number.
        widget->show();
        const double pixel = graph().layout().view().pixelTime();
        QTest::mousePress(widget, Qt::LeftButton, Qt::AltModifier, {300, 100});
        QMouseEvent drag(QEvent::MouseMove, QPointF(320, 100),
                         widget->mapToGlobal(QPointF(320, 100)), Qt::NoButton, Qt::LeftButton,
                         Qt::AltModifier);
        QApplication::sendEvent(widget, &drag);
        QTest::mouseRelease(widget, Qt::LeftButton, Qt::AltModifier, {320, 100});
        QVERIFY(qAbs(reference.shift() - 20 * pixel) < 1e-6 && !graph().markers().hasExtent());
        QTest::keyClick(widget, Qt::Key_Right, Qt::AltModifier);
        QVERIFY(qAbs(reference.shift() - 21 * pixel) < 1e-6);
        setNumber(bar()->findChild<QDoubleSpinBox*>("shift"), 2.5);
        QCOMPARE(reference.shift(), 2.5);
        QVERIFY(curves()[0].difference.samples->dataMax() > 0.0);
        setNumber(bar()->findChild<QDoubleSpinBox*>("shift"), 0.0);
        QCOMPARE(curves()[0].difference.samples->dataMax(), 0.0); // the shift is undone

        // A moment of the one on a moment of the other.
        auto* pickMoment = bar()->findChild<QToolButton*>("pick");
        session().setTime(flight->info().startTime + 30.0);
        pickMoment->click();
        QVERIFY(note().startsWith("Moment of the flight: "));
        session().setTime(flight->info().startTime + 20.0);
        pickMoment->click();
        QCOMPARE(reference.shift(), 10.0);
        auto* align = bar()->findChild<QComboBox*>("align");
        align->setCurrentIndex(Alignment::Passing);
        Q_EMIT align->activated(Alignment::Passing);
        settle();
        QCOMPARE(bar()->findChild<QComboBox*>("passingParameter")->currentText(), "IAS [kt]");
        setNumber(bar()->findChild<QDoubleSpinBox*>("passingValue"), 1e6);
        QVERIFY2(note().startsWith("One of the flights does not pass"), qPrintable(note()));
        auto* passing = bar()->findChild<QComboBox*>("passingParameter");
        passing->setCurrentIndex(0);
        Q_EMIT passing->activated(0);
        QCOMPARE(passing->currentText(), "RPM [1/min]");
        setNumber(bar()->findChild<QDoubleSpinBox*>("passingValue"), 500.0);
        QVERIFY2(reference.shift() == 0.0 && this->note().isEmpty(), qPrintable(this->note()));

        // The other views.
        const int columns = table()->model()->columnCount();
        const QVariant tip = table()->model()->index(20, 1).data(Qt::ToolTipRole);
        QVERIFY2(tip.toString().contains("Reference: "), qPrintable(tip.toString()));
        reference.columnsShown().turn(true);
        QCOMPARE(table()->model()->columnCount(), 2 * columns - 1);
        QVERIFY(!table()->model()->index(20, 2).data().toString().isEmpty());
        QCOMPARE(table()->model()->headerData(2, Qt::Horizontal, Qt::DisplayRole).toString(),
                 "ref. " +
                     table()->model()->headerData(1, Qt::Horizontal, Qt::DisplayRole).toString());
        const QAbstractItemModel& limits = *events(Limits)->model();
        int ofReference = 0;
        for (int row = 0; row < limits.rowCount(); ++row) {
            ofReference += limits.index(row, 1).data().toString().startsWith("Reference: ") ? 1 : 0;
        }
        QVERIFY(ofReference > 0 && ofReference < limits.rowCount());

        useProfile(profilePath()); // is understood anew, with the flight
        settle();
        QVERIFY(reference.flight() != nullptr &&
                reference.flight()->profile() == session().profile());
        bar()->findChild<QToolButton*>("removeReference")->click();
        settle();
        QVERIFY(!bar()->isVisible() && reference.flight() == nullptr);
        QVERIFY(curves()[0].reference.samples == nullptr &&
                curves()[0].difference.samples == nullptr);
        QCOMPARE(table()->model()->columnCount(), columns);
    }

    void badReferences_data()
    {
        QTest::addColumn<QString>("samples"); // none: the file is not there
        QTest::addColumn<QString>("said");
        QTest::addColumn<QString>("note");
        QTest::newRow("gone") << ""
                              << "No reference was loaded: "
                              << "";
        QTest::newRow("memory") << "500@34000=1"
                                << "No reference was loaded: There is not enough "
                                << "";
        QTest::newRow("one sample") << "500@33500=1"
                                    << "Reference: Samples loaded: 1"
                                    << "The reference holds no sample of: ";
        QTest::newRow("another unit") << "1999@1=1 1998@9=2"
                                      << "profile does not describe"
                                      << "The reference holds no sample of: ";
        QTest::newRow("another time") << "500@10=1 500@11=1"
                                      << "Reference: Samples loaded: 2"
                                      << "The flights have no time in common";
    }

    void badReferences()
    {
        QFETCH(const QString, samples);
        QFETCH(const QString, said);
        QFETCH(const QString, note);
        const QString kind = QTest::currentDataTag();
        start();
        open({0});
        const QString file =
            samples.isEmpty() ? path("gone.CAN") : writeRecording(samples, "R.CAN");
        if (kind == "memory") {
            QFile large(file); // of noughts, which need no room on the disk
            QVERIFY(large.open(QIODevice::ReadWrite) && large.resize(qint64(1) << 42));
        }
        session().reference().align({Alignment::Clock, {}, 0.0});
        QVERIFY(drop({file}, Qt::ControlModifier));
        QTest::qWait(50);
        settle();
        QVERIFY2(this->said().contains(said), qPrintable(this->said()));
        QCOMPARE(session().reference().flight() != nullptr, !note.isEmpty());
        QVERIFY2(note.isEmpty() || this->note().contains(note), qPrintable(this->note()));
        views()->setCurrentIndex(Graph);
        session().reference().differenceShown().turn(true);
        settle(); // nothing is drawn wrongly, nothing fails
        for (const ParStruct& curve : curves().first(note.isEmpty() ? 0 : 2)) {
            const CurveSamples& difference = *curve.difference.samples;
            QVERIFY(kind == "one sample" || difference.range(0, difference.size()).empty());
        }
    }
};

QTEST_MAIN(TestCompare)
#include "tst_compare.moc"
