#include "display/DialogDataGraph.h"
#include "display/DialogGraphSetup.h"
#include "display/WidgetGraph.h"
#include "profile/Profile.h"
#include "record/Record.h"
#include "support/CoreTest.h"
#include "support/RecordingBuilder.h"

#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

#include <cmath>

using namespace TARN;

namespace {

/// A graph of two curves over 0 to 100 s: a slope from 0 to 100, and a line at 50 with one
/// sample at 80.
struct Graph : WidgetGraph
{
    Graph()
    {
        resize(600, 350);
        for (unsigned i = 0; i < 2; ++i) {
            std::vector<double> times;
            std::vector<double> values;
            for (int k = 0; k <= 100'000; ++k) {
                times.push_back(0.001 * k);
                values.push_back(i == 0 ? 0.001 * k : k == 40'000 ? 80.0 : 50.0);
            }
            putSeries(i, times, values);
            setActive(i, true);
        }
        setGraphMode(GraphManual);
        setXmin(0.0F);
        setXmax(100.0F);
        activateGrid(false);
        activateLegend(false);
        show();
        [this] { QVERIFY(QTest::qWaitForWindowExposed(this)); }();
        settle();
    }

    void settle() { QTest::qWait(120); }

    void send(QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event(type, at, mapToGlobal(at), button, held, modifiers);
        QApplication::sendEvent(this, &event);
    }
    void drag(Qt::MouseButton button, int from, int to, Qt::KeyboardModifiers modifiers = {})
    {
        send(QEvent::MouseButtonPress, {from, 100}, button, button, modifiers);
        send(QEvent::MouseMove, {to, 100}, Qt::NoButton, button, modifiers);
        send(QEvent::MouseButtonRelease, {to, 100}, button, Qt::NoButton, modifiers);
    }
    void wheel(int x, int delta)
    {
        QWheelEvent event(QPointF(x, 100), mapToGlobal(QPointF(x, 100)), {}, {0, delta}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(this, &event);
    }

    const GraphView& view() const { return model().view(); }
    int x(double time) const { return static_cast<int>(view().xToViewport(time)); }
    double timeAt(int x) const { return view().viewportToX(x); }
    int row(double y) const { return height() - 1 - static_cast<int>(y); }

    /// Pixels of a colour in the rows from \p top to \p bottom of a column.
    int count(QRgb color, int column, int top, int bottom)
    {
        return count(grabFramebuffer(), color, column, top, bottom);
    }
    static int count(const QImage& image, QRgb color, int column, int top, int bottom)
    {
        int found = 0;
        for (int y = top; y < bottom; ++y) {
            found += (image.pixel(column, y) & 0xFFFFFF) == color ? 1 : 0;
        }
        return found;
    }
};

constexpr QRgb Red = 0xFF0000;
constexpr QRgb Green = 0x00FF00;
constexpr QRgb White = 0xFFFFFF;
constexpr QRgb MarkedBlack = 0x4C4C00; // yellow, three tenths

/// Answers the next modal window.
template <typename Dialog, typename Answer>
void answer(Answer reply)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, reply] {
        if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
            timer->deleteLater();
            reply(dialog);
        }
    });
    timer->start(20);
}

} // namespace

class TestGraphWidget : public CoreTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysChangeModes()
    {
        Graph graph;
        QSignalSpy changed(&graph, &WidgetGraph::signalKeyMode);
        QTest::keyClick(&graph, Qt::Key_F3);
        QCOMPARE(graph.model().displayMode(), DisplaySplit);
        QTest::keyClick(&graph, Qt::Key_F2);
        QCOMPARE(graph.model().displayMode(), DisplaySingle);
        QTest::keyClick(&graph, Qt::Key_A);
        QCOMPARE(graph.model().graphMode(), GraphAutomatic);
        QTest::keyClick(&graph, Qt::Key_C);
        QCOMPARE(graph.model().cursorMode(), CursorCenter);
        graph.setMarker(20.0, 30.0);
        QTest::keyClick(&graph, Qt::Key_Z);
        QCOMPARE(graph.view().xmin, 20.0);
        QCOMPARE(graph.view().xmax, 30.0);
        QCOMPARE(graph.model().graphMode(), GraphManual);
        QTest::keyClick(&graph, Qt::Key_X, Qt::ControlModifier); // a command of the window
        QTest::keyClick(&graph, Qt::Key_Q);
        QVERIFY(graph.model().hasSamples());
        QCOMPARE(changed.count(), 5);
        QTest::keyClick(&graph, Qt::Key_F3);
        QTest::keyClick(&graph, Qt::Key_R);
        QVERIFY(!graph.model().hasSamples());
        QCOMPARE(graph.model().displayMode(), DisplaySingle);
        QCOMPARE(graph.model().graphMode(), GraphAutomatic);
        QCOMPARE(graph.model().markStop(), 0.0);
    }

    void keysMoveTheCursor()
    {
        Graph graph;
        QSignalSpy moved(&graph, &WidgetGraph::signalCursor);
        graph.setCursorPosition(50.0);
        const auto pixel = static_cast<double>(100.0F / 600.0F);
        const std::pair<Qt::Key, Qt::KeyboardModifiers> keys[] = {
            {Qt::Key_Right, Qt::ShiftModifier}, {Qt::Key_Right, {}}, {Qt::Key_Left, {}}};
        const double pixels[] = {10.0, 11.0, 10.0};
        for (int k = 0; k < 3; ++k) {
            QTest::keyClick(&graph, keys[k].first, keys[k].second);
            QVERIFY(std::fabs(graph.model().cursor() - (50.0 + pixels[k] * pixel)) < 1e-9);
            QCOMPARE(moved.takeFirst()[0].toFloat(), static_cast<float>(graph.model().cursor()));
        }
        const double before = graph.view().yToViewport(graph.keyCursor());
        QTest::keyClick(&graph, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(&graph, Qt::Key_Down);
        QVERIFY(std::fabs(graph.view().yToViewport(graph.keyCursor()) - before - 9.0) < 1e-6);
        QCOMPARE(moved.takeLast()[1].toDouble(), graph.keyCursor());
    }

    void keyCursorShowsAndHides()
    {
        Graph graph;
        graph.setCursorPosition(70.0);
        const int column = graph.x(20.0); // left of all texts
        const auto lines = [&] { return graph.count(White, column, 12, 308); };
        QCOMPARE(lines(), 0);
        QTest::keyClick(&graph, Qt::Key_Up);
        QVERIFY(graph.keyCursorShown());
        QCOMPARE(lines(), 1);
        const int y = graph.row(graph.view().yToViewport(graph.keyCursor()));
        QCOMPARE(graph.count(White, column, y, y + 1), 1);
        graph.slotTimeoutCursor();
        QCOMPARE(lines(), 0);
        QVERIFY(graph.count(White, graph.x(70.0), 12, 308) > 280); // the cursor's time stays
        graph.activateCursor(false);
        QCOMPARE(graph.count(White, graph.x(70.0), 12, 308), 0);
    }

    void keysMoveFromStripToStrip()
    {
        Graph graph;
        QTest::keyClick(&graph, Qt::Key_F3);
        graph.settle();
        // Strip 0 lies above strip 1; the value 0 stands near the bottom of the first.
        QTest::keyClick(&graph, Qt::Key_Up);
        QVERIFY(graph.keyCursor() > 0.0 && graph.keyCursor() < 2.0);
        for (int k = 0; k < 3; ++k) {
            QTest::keyClick(&graph, Qt::Key_Down, Qt::ShiftModifier);
        }
        QVERIFY(graph.keyCursor() > 70.0); // near the top of the second, which reaches 83
    }

    void leftButtonMarks()
    {
        Graph graph;
        QSignalSpy marked(&graph, &WidgetGraph::signalMarker);
        graph.drag(Qt::LeftButton, 200, 300);
        QCOMPARE(graph.model().markStart(), graph.timeAt(200));
        QCOMPARE(graph.model().markStop(), graph.timeAt(300));
        QCOMPARE(marked.count(), 3); // the press, and twice for the move
        QCOMPARE(marked[0][0].toFloat(), marked[0][1].toFloat());
        QCOMPARE(marked[2][1].toFloat(), static_cast<float>(graph.timeAt(300)));
        graph.drag(Qt::LeftButton, 290, 320, Qt::ShiftModifier); // nearer to the stop
        QCOMPARE(graph.model().markStop(), graph.timeAt(320));
        graph.drag(Qt::LeftButton, 210, 180, Qt::ShiftModifier);
        QCOMPARE(graph.model().markStart(), graph.timeAt(180));
        QCOMPARE(graph.count(MarkedBlack, 250, 280, 300), 20);
        QCOMPARE(graph.count(MarkedBlack, 340, 280, 300), 0);
        graph.setMarker(30.0, 20.0);
        graph.send(QEvent::MouseButtonRelease, {5, 5}, Qt::LeftButton, Qt::NoButton);
        QCOMPARE(graph.model().markStart(), 20.0);
    }

    void middleButtonMovesTheCursor()
    {
        Graph graph;
        QTest::keyClick(&graph, Qt::Key_C); // the window stays under the mouse all the same
        QSignalSpy moved(&graph, &WidgetGraph::signalCursor);
        graph.send(QEvent::MouseButtonPress, {200, 100}, Qt::MiddleButton, Qt::MiddleButton);
        graph.send(QEvent::MouseMove, {250, 150}, Qt::NoButton, Qt::MiddleButton);
        QVERIFY(graph.keyCursorShown());
        QCOMPARE(graph.model().cursor(), graph.timeAt(250));
        QCOMPARE(graph.keyCursor(), graph.view().viewportToY(200.0));
        QCOMPARE(moved.count(), 2);
        QCOMPARE(graph.view().xmax, 100.0);
        graph.send(QEvent::MouseButtonRelease, {250, 150}, Qt::MiddleButton, Qt::NoButton);
        QVERIFY(!graph.keyCursorShown());
        QTest::keyClick(&graph, Qt::Key_F3);
        graph.settle();
        graph.send(QEvent::MouseButtonPress, {200, 300}, Qt::MiddleButton, Qt::MiddleButton);
        QCOMPARE(graph.keyCursor(), graph.view().viewportToY(*graph.model().curve(1), 50.0));
    }

    void rightButtonPansAndWheelZooms()
    {
        Graph graph;
        graph.setGraphMode(GraphAutomatic);
        QSignalSpy manual(&graph, &WidgetGraph::signalManMode);
        const double pixel = graph.view().pixelTime();
        graph.drag(Qt::RightButton, 300, 260);
        QVERIFY(std::fabs(graph.view().xmin - 40.0 * pixel) < 1e-9);
        QVERIFY(std::fabs(graph.view().xmax - 100.0 - 40.0 * pixel) < 1e-9);
        QCOMPARE(manual.count(), 1);
        QCOMPARE(graph.model().graphMode(), GraphManual);

        const double time = graph.timeAt(200);
        const double width = graph.view().xmax - graph.view().xmin;
        const auto columns = graph.frames(0).size();
        graph.wheel(200, 3); // a touchpad's small step
        graph.wheel(200, 0);
        QVERIFY(std::fabs(graph.view().xmax - graph.view().xmin - 0.9 * width) < 1e-9);
        QVERIFY(std::fabs(graph.timeAt(200) - time) < 1e-9);
        QCOMPARE(graph.frames(0).size(), columns); // one rebuild after the burst
        graph.wheel(200, -120);
        graph.wheel(200, -120);
        QVERIFY(std::fabs(graph.view().xmax - graph.view().xmin - width / 0.9) < 1e-9);
        QTRY_VERIFY(std::fabs(graph.frames(0).front().time - graph.view().xmin) < 0.01);
    }

    void oneSpikeIsSeenAmongAHundredThousandSamples()
    {
        Graph graph;
        const int column = graph.x(40.0);
        const int top = graph.row(graph.view().yToViewport(79.0));
        const int bottom = graph.row(graph.view().yToViewport(52.0));
        int pixels = 0;
        for (int k = column - 1; k <= column + 1; ++k) {
            pixels += graph.count(Green, k, top, bottom);
        }
        QCOMPARE(pixels, bottom - top);
        QCOMPARE(graph.count(Green, column + 5, top, bottom), 0);
    }

    void stripsKeepToThemselves()
    {
        Graph graph;
        QTest::keyClick(&graph, Qt::Key_F3);
        graph.settle();
        const QImage image = graph.grabFramebuffer();
        const int middle = 10 + 150; // of the plot: where the first strip ends
        for (int column = graph.x(1.0); column < graph.x(99.0); column += 7) {
            QCOMPARE(graph.count(image, Red, column, middle + 1, 308), 0);
            QCOMPARE(graph.count(image, Green, column, 12, middle - 1), 0);
            QVERIFY(graph.count(image, Red, column, 12, middle) > 0);
            QVERIFY(graph.count(image, Green, column, middle, 308) > 0);
        }
    }

    void windowFollowsProfileAndTime()
    {
        useProfile(45);
        DialogDataGraph window;
        window.resize(700, 500);
        window.show();
        window.updateProfile();
        window.updateRecord(&mRecord);
        const GraphModel& model = window.graph()->model();
        QVERIFY(model.curve(29)->active);
        QCOMPARE(model.curve(3)->name, "P3");
        QCOMPARE(model.curve(3)->buffer.size(), 1001U);
        QCOMPARE(model.curve(3)->buffer.value(7), 7.0);
        auto* note = window.findChild<QLabel*>("note");
        QVERIFY(note->isVisible());
        QCOMPARE(note->text(), "30 of 45 selected parameters shown");
        QCOMPARE(model.cursor(), 100.0);
        QCOMPARE(model.view().xmin, 90.0);
        QCOMPARE(model.view().xmax, 210.0);

        window.graph()->setXrange(50.0F);
        window.setTime(120.0); // inside the margins
        QCOMPARE(model.view().xmin, 90.0);
        window.setTime(136.0);
        QCOMPARE(model.view().xmax, 141.0);
        window.setTime(95.0);
        QCOMPARE(model.view().xmin, 90.0);
        QCOMPARE(model.cursor(), 95.0);

        useProfile(2);
        window.updateProfile();
        QVERIFY(model.curve(1)->active && !model.curve(2)->active && !note->isVisible());
        window.updateRecord(nullptr);
        QVERIFY(!model.hasSamples());
    }

    void offsetMovesTheCurvesOnly()
    {
        useProfile(1);
        DialogDataGraph window;
        window.updateProfile();
        Record record;
        QVERIFY(record.readRecordData(
            {write("REC_0000.CAN", recording(100.0)), write("REC_8000.CAN", recording(300.0))}));
        window.updateRecord(&record);
        const GraphView before = window.graph()->model().view();
        record.recordData().offset = 5.0;
        window.updateOffset(&record);
        QCOMPARE(window.graph()->model().view().xmin, before.xmin);
        double first = 0.0;
        double last = 0.0;
        window.graph()->getParameterRangeX(0, first, last);
        const RecordIdList* list = record.recordData().find(0, 500);
        QCOMPARE(first, list->entries.front().time() + list->shift(5.0));
        QVERIFY(list->highFile);
    }

    void buttons()
    {
        useProfile(2);
        DialogDataGraph window;
        window.resize(700, 600);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.updateProfile();
        window.updateRecord(&mRecord);
        WidgetGraph& graph = *window.graph();
        const GraphModel& model = graph.model();
        const auto width = [&] { return model.view().xmax - model.view().xmin; };
        QCOMPARE(model.displayMode(), DisplaySplit);
        QVERIFY(button(window, "Split Mode")->isChecked());
        click(window, "Single Graph Mode");
        QCOMPARE(model.displayMode(), DisplaySingle);
        QVERIFY(!button(window, "Split Mode")->isChecked());
        QTest::keyClick(&graph, Qt::Key_F3);
        QVERIFY(button(window, "Split Mode")->isChecked());
        QVERIFY(!button(window, "Single Graph Mode")->isChecked());
        click(window, "Automatic Mode");
        QCOMPARE(model.graphMode(), GraphAutomatic);
        click(window, "Automatic Mode");
        QCOMPARE(model.graphMode(), GraphManual);
        click(window, "Zoom 1:1");
        QCOMPARE(width(), 60.0);
        graph.setMarker(120.0, 140.0);
        QCOMPARE(window.markStop(), 140.0);
        click(window, "Zoom Marker (Z)");
        QCOMPARE(width(), 20.0);

        graph.setXrange(0.5F);
        hold(window, "Zoom Out", [&] { return width() > 1.0; });
        QVERIFY(width() < 2.0); // by 1 and a few steps
        graph.setXrange(10000.0F);
        hold(window, "Zoom In", [&] { return width() <= 5000.0; });
        QVERIFY(width() > 4000.0);
        const double released = width();
        QTest::qWait(150);
        QCOMPARE(width(), released);

        click(window, "Single Graph Mode");
        click(window, "Reset all to default");
        QCOMPARE(width(), 60.0);
        QCOMPARE(model.displayMode(), DisplaySplit);
        click(window, "Clear All");
        QVERIFY(!model.hasSamples());
    }

    void setupTakesEffectAtOnce()
    {
        useProfile(1);
        DialogDataGraph window;
        window.resize(700, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.updateProfile();
        window.updateRecord(&mRecord);
        click(window, "Setup");
        auto* setup = window.findChild<DialogGraphSetup*>();
        QVERIFY(setup->isVisible());
        const GraphModel& model = window.graph()->model();
        QCOMPARE(model.cursorMode(), CursorFloating); // defaults wait for the first change
        auto* mode = setup->findChild<QComboBox*>();
        mode->setCurrentIndex(2);
        Q_EMIT mode->activated(2);
        QCOMPARE(model.cursorMode(), CursorEnd);
        QCOMPARE(model.graphMode(), GraphAutomatic);
        QCOMPARE(model.view().xmax - model.view().xmin, 60.0);

        check(*setup, "Autoscale On")->click();
        auto edits = setup->findChildren<QLineEdit*>();
        QCOMPARE(edits[0]->text(), "-100");
        edits[0]->selectAll();
        QTest::keyClicks(edits[0], "-12.5");
        edits[1]->selectAll();
        QTest::keyClicks(edits[1], "12");
        QCOMPARE(model.view().ymin, -12.5);
        QCOMPARE(model.view().ymax, 12.0);

        answer<QColorDialog>([](QColorDialog* dialog) {
            dialog->setCurrentColor(QColor("#123456"));
            dialog->accept();
        });
        setup->findChildren<QPushButton*>()[0]->click();
        QTest::qWait(100);
        const QImage image = window.graph()->grabFramebuffer();
        QCOMPARE(image.pixelColor(image.width() - 20, 20).name(), "#123456");
        for (auto* candidate : setup->findChildren<QPushButton*>()) {
            if (candidate->text() == "Close") {
                candidate->click();
            }
        }
        QVERIFY(!setup->isVisible());
    }

    void snapshotIsTheScreen()
    {
        useProfile(2);
        DialogDataGraph window;
        window.resize(700, 500);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.updateProfile();
        window.updateRecord(&mRecord);
        QTest::qWait(300);
        const QImage screen =
            window.grab(QRect(window.graph()->mapTo(&window, QPoint()), window.graph()->size()))
                .toImage()
                .convertToFormat(QImage::Format_RGB32);
        for (const char* name : {"shot.png", "shot.bmp", "shot"}) {
            answer<QFileDialog>([this, name](QFileDialog* dialog) {
                mProposed = dialog->selectedFiles().value(0) + dialog->windowTitle();
                choose(dialog, path(name));
            });
            click(window, "Snapshot");
            const QImage saved(path(name));
            QCOMPARE(saved.convertToFormat(QImage::Format_RGB32), screen);
            QCOMPARE(read(name).startsWith("BM"), QByteArray(name) != "shot.png");
        }
        QVERIFY(mProposed.endsWith("snapshot.bmpSave Snapshot"));
        QString told;
        answer<QFileDialog>([this](QFileDialog* dialog) { choose(dialog, path("shot.xyz")); });
        QTimer::singleShot(100, &window, [&told] {
            answer<QMessageBox>([&told](QMessageBox* box) {
                told = box->text();
                box->accept();
            });
        });
        click(window, "Snapshot");
        QVERIFY2(told.contains("shot.xyz"), qPrintable(told));
        QVERIFY(!QFile::exists(path("shot.xyz")));
    }

    void withoutOpenGlAMessageStandsInstead()
    {
        QProcess self;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove("DISPLAY");
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("ORNA_TEST_NO_OPENGL", "1");
        self.setProcessEnvironment(environment);
        self.start(QCoreApplication::applicationFilePath(), {"runsWithoutOpenGl"});
        QVERIFY(self.waitForFinished());
        QVERIFY2(self.exitCode() == 0, self.readAll().constData());
    }

    void runsWithoutOpenGl()
    {
        if (!qEnvironmentVariableIsSet("ORNA_TEST_NO_OPENGL")) {
            return; // has its say in the process that the test before starts
        }
        useProfile(2);
        DialogDataGraph window;
        QCOMPARE(window.graph(), nullptr);
        window.updateProfile();
        window.updateRecord(&mRecord);
        window.setTime(120.0);
        window.updateOffset(&mRecord);
        window.saveSnapshot();
        QCOMPARE(window.markStop(), 0.0);
        QVERIFY(window.findChild<QLabel*>("noGraph")->text().contains("OpenGL"));
    }

private:
    /// A profile of \p count selected parameters, and a recording of 100 s with 1001 samples.
    void useProfile(int count)
    {
        QByteArray parameters;
        for (int k = 0; k < count; ++k) {
            parameters += QString("<Parameter name='P%1' id='500' dataType='USHORT' "
                                  "startByte='4'/>")
                              .arg(k)
                              .toUtf8();
        }
        QVERIFY(Profile::instance()->loadProfile(
            write("p.xml", "<CanAerospaceProfile><Device name='D'>" + parameters +
                               "</Device></CanAerospaceProfile>")));
        Profile::instance()->forEachParameter(
            [](const ProfileDevice&, ProfileParameter& parameter) { parameter.selected = true; });
        QVERIFY(mRecord.readRecordData({write("a.CAN", recording(100.0))}));
    }

    static QByteArray recording(double start)
    {
        RecordingBuilder file;
        file.startTicks(ticks(start));
        for (int k = 0; k <= 1000; ++k) {
            file.add({500, ticks(start + 0.1 * k),
                      "00070000" + QByteArray::number(k, 16).rightJustified(4, '0')});
        }
        return file.bytes();
    }

    static QToolButton* button(QWidget& window, const QString& toolTip)
    {
        for (auto* candidate : window.findChildren<QToolButton*>()) {
            if (candidate->toolTip().startsWith(toolTip)) {
                return candidate;
            }
        }
        return nullptr;
    }
    static void click(QWidget& window, const QString& toolTip)
    {
        QTest::mouseClick(button(window, toolTip), Qt::LeftButton);
    }
    template <typename Condition>
    static void hold(QWidget& window, const QString& toolTip, Condition done)
    {
        QTest::mousePress(button(window, toolTip), Qt::LeftButton);
        QVERIFY(QTest::qWaitFor(done, 2000));
        QTest::mouseRelease(button(window, toolTip), Qt::LeftButton);
    }
    static QCheckBox* check(QWidget& window, const QString& text)
    {
        for (auto* box : window.findChildren<QCheckBox*>()) {
            if (box->text() == text) {
                return box;
            }
        }
        return nullptr;
    }
    static void choose(QFileDialog* dialog, const QString& file)
    {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(file);
        QMetaObject::invokeMethod(dialog, "accept");
    }

    Record mRecord;
    QString mProposed;
};

QTEST_MAIN(TestGraphWidget)
#include "tst_graph_widget.moc"
