#include "base/ClockTime.h"
#include "faults/DialogDataErrorMatrix.h"
#include "faults/DialogEventList.h"
#include "faults/EventModel.h"
#include "faults/WidgetErrorItem.h"
#include "faults/WidgetErrorTime.h"
#include "faults/WidgetFaultMatrix.h"
#include "gui/Viewer.h"
#include "profile/Profile.h"
#include "record/Record.h"
#include "widgets/DataTableView.h"

#include <QtTest/QAbstractItemModelTester>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableWidget>
#include <QtWidgets/QToolButton>

using namespace TARN;

/// Exceedances, lamps and faults of the demo flight, on the real window.
class EventViews : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void listsTellTheStory();
    void everyEventIsOneKeyAway();
    void clickingAnEventMovesTheRest();
    void matrixShowsTheStateOfTheMoment();
    void timelinePicksATime();
    void narrowMatrixKeepsItsColumns();
    void profileDecidesWhichTabsAreThere();
    void modelFindsTheLastOfATenth();

private:
    QTabWidget* tabs() { return mViewer->window().findChild<QTabWidget*>("views"); }
    DataTableView* limits() { return list<DialogDataLimit>(); }
    DataTableView* warnings() { return list<DialogDataWarning>(); }
    template <typename View>
    DataTableView* list()
    {
        return mViewer->window().findChild<View*>()->template findChild<DataTableView*>("events");
    }
    static int rowOf(QTableView* table)
    {
        return table->selectionModel()->selectedRows().value(0).row();
    }
    void press(Qt::Key key) { QTest::keyClick(&mViewer->window(), key); }
    void goTo(double time)
    {
        const RecordInfo& info = mViewer->window().record().recordInfo();
        mViewer->timeEdit()->setTime(clockTime(millisecondsOf(time)));
        QVERIFY(info.startTime <= time && time <= info.stopTime);
    }

    std::unique_ptr<Viewer> mViewer;
};

void EventViews::initTestCase()
{
    mViewer = std::make_unique<Viewer>(60);
    mViewer->start();
    QCOMPARE(limits()->model()->rowCount(), 0);
    QVERIFY(limits()->emptyText().contains("No recording is loaded"));
    mViewer->loadRecordings({0, 1});
}

void EventViews::cleanupTestCase()
{
    mViewer.reset();
}

void EventViews::init()
{
    mViewer->slider()->setValue(5000);
    mViewer->slider()->setValue(0);
}

void EventViews::listsTellTheStory()
{
    QStringList told;
    for (DataTableView* table : {limits(), warnings()}) {
        for (int row = 0; row < table->model()->rowCount(); ++row) {
            const QString text = table->model()->index(row, 1).data().toString();
            told << text.section(' ', 0, 2);
        }
    }
    const QStringList story = {"Engine CHT 3",          "Engine CHT 3",      "Engine Oil Pressure",
                               "Engine Oil Pressure",   "Engine EGT 5",      "Warnings Lamp LOW",
                               "Warnings Lamp Starter", "Warnings Lamp Cylinder", "Warnings Lamp Cylinder",
                               "Warnings Lamp Oil"};
    QCOMPARE(told, story);
    QCOMPARE(limits()->model()->index(0, 0).data().toString(), "09:23:38.706");
    QCOMPARE(limits()->model()->headerData(1, Qt::Horizontal), "Warning/Limit Exceed");
    QCOMPARE(warnings()->model()->headerData(1, Qt::Horizontal), "Warning Lamps");
    QVERIFY(limits()->verticalHeader()->isHidden());
    QCOMPARE(limits()->rowHeight(0), 15);
    const QBrush lamp = warnings()->model()->index(4, 1).data(Qt::BackgroundRole).value<QBrush>();
    QCOMPARE(lamp.color(), QColor(255, 100, 100));
}

void EventViews::everyEventIsOneKeyAway()
{
    QStringList visited;
    QString last;
    for (int i = 0; i < 200; ++i) {
        press(Qt::Key_N);
        const QString now = mViewer->cell(mViewer->selectedRow(), 0);
        if (now == last && i > 0 && mViewer->timeEdit()->time().hour() == 10) {
            break; // no further event
        }
        last = now;
        visited << now;
    }
    // The table's row is the moment, rounded down to a tenth at which something was recorded.
    for (const char* moment : {"09:23:38.", "09:24:17.", "09:41:06.", "09:41:07.", "09:48:57."}) {
        QVERIFY2(visited.filter(moment).size() >= 1, moment);
    }
    QVERIFY(visited.size() > 20 && visited.size() < 100);

    // Back from the end: the last events first, and the limit list follows.
    mViewer->slider()->setValue(10000);
    QCOMPARE(rowOf(limits()), 4);
    mViewer->window().findChild<QToolButton*>("eventPrevious")->click();
    goTo(34867.8);
    press(Qt::Key_P);
    QCOMPARE(rowOf(limits()), 2);
    press(Qt::Key_P);
    press(Qt::Key_P);
    QVERIFY(mViewer->timeEdit()->time() <= QTime(9, 41, 6));
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_N); // fault cleared, oil pressure warning, its fault bit, lamp and limit
    }
    QCOMPARE(rowOf(limits()), 3);
    QCOMPARE(rowOf(warnings()), 4);
    QCOMPARE(mViewer->timeEdit()->time(), QTime(9, 41, 7, 630));
}

void EventViews::clickingAnEventMovesTheRest()
{
    tabs()->setCurrentIndex(1);
    DataTableView* table = limits();
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                      table->visualRect(table->model()->index(1, 0)).center());
    QCOMPARE(rowOf(table), 1);
    QCOMPARE(mViewer->timeEdit()->time(), QTime(9, 24, 17, 207));
    QCOMPARE(mViewer->cell(mViewer->selectedRow(), 0), "09:24:17.200");
    QCOMPARE(rowOf(warnings()), 3);
    QTest::keyClick(table, Qt::Key_Down);
    QCOMPARE(mViewer->timeEdit()->time(), QTime(9, 41, 6, 833));
    tabs()->setCurrentIndex(0);
}

void EventViews::matrixShowsTheStateOfTheMoment()
{
    auto matrices = mViewer->window().findChildren<WidgetFaultMatrix*>();
    QCOMPARE(matrices.size(), 2);
    auto* table = matrices.first()->findChild<QTableWidget*>();
    QCOMPARE(table->horizontalHeaderItem(0)->text(), "31");
    QCOMPARE(table->horizontalHeaderItem(31)->text(), "0");
    tabs()->setCurrentIndex(4);
    const auto colorOf = [table](int bit) {
        QWidget* cell = table->cellWidget(0, 31 - bit);
        return cell->grab().toImage().pixelColor(cell->width() / 2, 4);
    };
    goTo(34870.0); // in the oil pressure dip
    QCOMPARE(colorOf(0), QColor(150, 150, 255));
    QCOMPARE(colorOf(9), QColor(255, 200, 150));
    QCOMPARE(colorOf(20), QColor(220, 255, 220));
    QCOMPARE(colorOf(31), QColor(Qt::white));
    goTo(34245.0); // EGT 5 sensor
    QCOMPARE(colorOf(9), QColor(220, 255, 220));
    QCOMPARE(colorOf(20), QColor(255, 150, 150));
    tabs()->setCurrentIndex(0);
}

void EventViews::timelinePicksATime()
{
    tabs()->setCurrentIndex(4);
    auto* timeline = mViewer->window().findChildren<WidgetErrorTime*>().first();
    QTest::mouseClick(timeline, Qt::LeftButton, {}, QPoint(timeline->width() / 4, 5));
    QVERIFY(qAbs(mViewer->slider()->value() - 2500) < 20);
    const QImage image = timeline->grab().toImage();
    QCOMPARE(image.pixelColor(timeline->width() / 4, 12), QColor(Qt::black)); // the cursor
    QCOMPARE(image.pixelColor(timeline->width() / 2, 5), QColor(150, 150, 255));
    tabs()->setCurrentIndex(0);
}

void EventViews::narrowMatrixKeepsItsColumns()
{
    WidgetFaultMatrix matrix;
    FaultMatrix data;
    data.name = "Engine";
    matrix.setData(data);
    matrix.show();
    auto* table = matrix.findChild<QTableWidget*>();
    matrix.resize(1000, 300);
    QCOMPARE(table->columnWidth(0), table->width() / 32);
    matrix.resize(200, 300);
    QCOMPARE(table->columnWidth(0), 15);
    matrix.setTime(5.0); // without a recording only the cursor moves
}

void EventViews::profileDecidesWhichTabsAreThere()
{
    QCOMPARE(tabs()->count(), 5);
    QVERIFY(tabs()->isTabVisible(3) && tabs()->isTabVisible(4));
    Viewer plain;
    plain.writeSettings(plain.cardPath(), "nowhere.xml", plain.projectPath());
    plain.start();
    auto* views = plain.window().findChild<QTabWidget*>("views");
    QVERIFY(!views->isTabVisible(3) && !views->isTabVisible(4));
    plain.loadRecordings({0});
    auto* list = plain.window().findChild<DialogDataLimit*>()->findChild<DataTableView*>();
    QCOMPARE(list->emptyText(), "No parameter left its normal range in this recording.");
    Profile::instance()->loadProfile(ORNA_RESOURCES "/Tolvane_Profile.xml");
}

void EventViews::modelFindsTheLastOfATenth()
{
    EventModel model("Events");
    const QAbstractItemModelTester tester(&model);
    QCOMPARE(model.rowAt(10.0), 0);
    std::vector<RecordEvent> events(4);
    const double times[] = {10.0, 20.01, 20.02, 90061.5};
    for (std::size_t i = 0; i < events.size(); ++i) {
        events[i].time = times[i];
        events[i].tenths = tenthsOf(times[i]);
    }
    model.setEvents(&events);
    QCOMPARE(model.rowAt(5.0), 0);
    QCOMPARE(model.rowAt(19.94), 0);
    QCOMPARE(model.rowAt(19.96), 2);
    QCOMPARE(model.rowAt(1e9), 3);
    QCOMPARE(model.rowAt(-5.0), 0);
    QCOMPARE(model.index(3, 0).data().toString(), "01:01:01.500");
    QVERIFY(!model.index(0, 1).data(Qt::BackgroundRole).isValid());
}

QTEST_MAIN(EventViews)
#include "tst_event_views.moc"
