#include "flight/EpisodeWatch.h"
#include "graph/DialogDataGraph.h"
#include "graph/DialogGraphSetup.h"
#include "graph/WidgetGraph.h"
#include "gui/Answers.h"
#include "support/FlightTest.h"

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
            auto samples = std::make_shared<CurveSamples>();
            for (int k = 0; k <= 100'000; ++k) {
                samples->put(0.001 * k, i == 0 ? 0.001 * k : k == 40'000 ? 80.0 : 50.0);
            }
            model().curves().setSeries(i, samples);
            setActive(i, true);
        }
        setGraphMode(GraphManual);
        setXmin(0.0F);
        setXmax(100.0F);
        GraphStyle style = graphStyle();
        style.gridOn = false;
        style.legendOn = false;
        setGraphStyle(style);
        show();
        [this] { QVERIFY(QTest::qWaitForWindowExposed(this)); }();
        settle();
    }

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
    void wheel(int x, int delta, Qt::KeyboardModifiers modifiers = {})
    {
        QWheelEvent event(QPointF(x, 100), mapToGlobal(QPointF(x, 100)), {}, {0, delta}, {},
                          modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(this, &event);
    }

    const GraphView& view() const { return model().layout().view(); }
    /// Whether the visible time is this one.
    bool shows(double min, double max) const
    {
        return std::fabs(view().xmin - min) < 1e-9 && std::fabs(view().xmax - max) < 1e-9;
    }
    int x(double time) const { return static_cast<int>(view().xToViewport(time)); }
    double timeAt(int x) const { return view().viewportToX(x); }
    int row(double value) const { return height() - 1 - int(view().yToViewport(value)); }

    /// Pixels of a colour in the rows from \p top to \p bottom of a column.
    int count(QRgb color, int column, int top = 12, int bottom = 308)
    {
        const QImage image = grabFramebuffer();
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

/// The graph's window over a session of its own.
struct GraphWindow
{
    explicit GraphWindow(const std::shared_ptr<const Flight>& flight)
    {
        session.setProfile(flight->profile(), Selection::all(*flight->profile()), nullptr);
        session.setFlight(flight);
        window.resize(700, 500);
        window.show();
        [this] { QVERIFY(QTest::qWaitForWindowExposed(&window)); }();
        settle();
    }

    GraphModel& model() { return window.graph()->model(); }
    double width() { return model().window().width(); }
    QToolButton* button(const QString& toolTip)
    {
        const auto all = window.findChildren<QToolButton*>();
        return *std::ranges::find_if(
            all, [&](QToolButton* button) { return button->toolTip().startsWith(toolTip); });
    }
    void click(const QString& toolTip) { QTest::mouseClick(button(toolTip), Qt::LeftButton); }
    bool holdUntil(const QString& toolTip, const std::function<bool()>& done)
    {
        QTest::mousePress(button(toolTip), Qt::LeftButton);
        const bool came = QTest::qWaitFor(done, 2000);
        QTest::mouseRelease(button(toolTip), Qt::LeftButton);
        return came;
    }

    Session session;
    EpisodeWatch episodes{session};
    DialogDataGraph window{session, episodes};
    Answers answers;
};

/// Whether all that is drawn in one picture is there in another, within a pixel and as far as one
/// smooths its lines and the other does not; what the other has below its height does not count.
bool isLike(const QImage& picture, const QImage& other)
{
    constexpr int Smoothed = 170; // of 255: a line between two columns is half as bright in both
    if (other.width() != picture.width()) {
        return false;
    }
    const int rows = std::min(picture.height(), other.height());
    for (int y = 1; y < rows - 1; ++y) {
        for (int x = 1; x < picture.width() - 1; ++x) {
            int least = 255;
            for (int k = 0; k < 9; ++k) {
                const QRgb a = picture.pixel(x, y);
                const QRgb b = other.pixel(x - 1 + k % 3, y - 1 + k / 3);
                least = std::min(
                    least, std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                     std::abs(qBlue(a) - qBlue(b))}));
            }
            if (least > Smoothed) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

class TestGraphWidget : public FlightTest
{
    Q_OBJECT

private Q_SLOTS:
    void keysChangeModes()
    {
        Graph graph;
        const GraphModel& model = graph.model();
        graph.setMarker(20.0, 30.0);
        const std::tuple<Qt::Key, eDisplayMode, eGraphMode, eCursorMode> keys[] = {
            {Qt::Key_F3, DisplaySplit, GraphManual, CursorFloating},
            {Qt::Key_F2, DisplaySingle, GraphManual, CursorFloating},
            {Qt::Key_A, DisplaySingle, GraphAutomatic, CursorFloating},
            {Qt::Key_C, DisplaySingle, GraphAutomatic, CursorCenter},
            {Qt::Key_Z, DisplaySingle, GraphManual, CursorCenter},
            {Qt::Key_F3, DisplaySplit, GraphManual, CursorCenter},
            {Qt::Key_R, DisplaySingle, GraphAutomatic, CursorCenter}};
        for (const auto& [key, display, mode, cursor] : keys) {
            QVERIFY(model.curves().hasSamples());
            QTest::keyClick(&graph, key);
            QCOMPARE(model.layout().displayMode(), display);
            QCOMPARE(model.graphMode(), mode);
            QCOMPARE(model.cursorMode(), cursor);
            QTest::keyClick(&graph, Qt::Key_X, Qt::ControlModifier); // a command of the window
            if (key == Qt::Key_Z) {
                QVERIFY(graph.shows(20.0, 30.0));
                QTest::keyClick(&graph, Qt::Key_Backspace);
                QVERIFY(graph.shows(0.0, 100.0));
            }
        }
        QVERIFY(!model.curves().hasSamples());
    }

    void keysMoveTheCursor()
    {
        Graph graph;
        QSignalSpy moved(&graph, &WidgetGraph::signalCursor);
        graph.setCursorPosition(70.0);
        const auto pixel = static_cast<double>(100.0F / 600.0F);
        const int column = graph.x(20.0); // left of all texts
        QCOMPARE(graph.count(White, column), 0);
        double expected = 70.0;
        for (const int pixels : {10, 1, -1}) {
            QTest::keyClick(&graph, pixels < 0 ? Qt::Key_Left : Qt::Key_Right,
                            pixels > 1 ? Qt::ShiftModifier : Qt::NoModifier);
            expected += pixels * pixel;
            QVERIFY(std::fabs(graph.model().cursor() - expected) < 1e-9);
            QCOMPARE(moved.takeFirst()[0].toFloat(), static_cast<float>(graph.model().cursor()));
        }
        const int row = graph.row(graph.gestures().keyCursor().value);
        QTest::keyClick(&graph, Qt::Key_Up, Qt::ShiftModifier);
        QTest::keyClick(&graph, Qt::Key_Down);
        QCOMPARE(graph.row(graph.gestures().keyCursor().value), row - 9);
        QCOMPARE(moved.takeLast()[1].toDouble(), graph.gestures().keyCursor().value);
        QCOMPARE(graph.count(White, column, row - 9, row - 8), 1);
        graph.slotTimeoutCursor();
        QCOMPARE(graph.count(White, column), 0);
        QVERIFY(graph.count(White, graph.x(graph.model().cursor())) > 280);

        // From strip to strip: the first lies above the second.
        QTest::keyClick(&graph, Qt::Key_F3);
        settle();
        graph.send(QEvent::MouseButtonPress, {200, 159}, Qt::MiddleButton, Qt::MiddleButton);
        QCOMPARE(graph.gestures().keyCursor().curve, 0U);
        QTest::keyClick(&graph, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(graph.gestures().keyCursor().curve, 1U);
        QVERIFY(graph.gestures().keyCursor().value > 70.0); // near its top, which reaches 83
    }

    void mouseMarksPansAndZooms()
    {
        Graph graph;
        GraphModel& model = graph.model();
        QSignalSpy marked(&graph, &WidgetGraph::signalMarker);
        // Pixels from and to, keys held, and where the markers begin and end then.
        const std::tuple<int, int, Qt::KeyboardModifiers, int, int> drags[] = {
            {200, 300, {}, 200, 300},
            {290, 320, Qt::ShiftModifier, 200, 320}, // the nearer one
            {210, 180, Qt::ShiftModifier, 180, 320},
            {310, 180, {}, 180, 310},
            {181, 150, {}, 150, 310}, // the handles
            {307, 320, {}, 150, 320}};
        for (const auto& [from, to, keys, start, stop] : drags) {
            marked.clear();
            graph.drag(Qt::LeftButton, from, to, keys);
            QCOMPARE(model.markers().start, graph.timeAt(start));
            QCOMPARE(model.markers().stop, graph.timeAt(stop));
            QCOMPARE(graph.cursor().shape(), Qt::SplitHCursor);
            QCOMPARE(marked.size(), 3); // the press, and twice for the move
        }
        QCOMPARE(graph.count(MarkedBlack, 290, 280, 300), 20);
        QCOMPARE(graph.count(MarkedBlack, 340, 280, 300), 0);

        model.setCursorPosition(graph.timeAt(200));
        QTest::keyClick(&graph, Qt::Key_1);
        QVERIFY(model.markers() == TimeRange(graph.timeAt(200), graph.timeAt(320)));
        model.setCursorPosition(graph.timeAt(160));
        QTest::keyClick(&graph, Qt::Key_2); // before A, which goes back to the start of it all
        QVERIFY(model.markers() == TimeRange(0.0, graph.timeAt(160)));

        QTest::keyClick(&graph, Qt::Key_C); // the window stays under the mouse all the same
        graph.send(QEvent::MouseButtonPress, {200, 100}, Qt::MiddleButton, Qt::MiddleButton);
        graph.send(QEvent::MouseMove, {250, 150}, Qt::NoButton, Qt::MiddleButton);
        QVERIFY(graph.gestures().keyCursor().isShown && graph.shows(0.0, 100.0));
        QCOMPARE(model.cursor(), graph.timeAt(250));
        QCOMPARE(graph.gestures().keyCursor().value, graph.view().viewportToY(200.0));
        graph.send(QEvent::MouseButtonRelease, {250, 150}, Qt::MiddleButton, Qt::NoButton);
        QVERIFY(!graph.gestures().keyCursor().isShown);

        graph.setGraphMode(GraphAutomatic);
        const double moved = 40.0 * graph.view().pixelTime();
        graph.drag(Qt::RightButton, 300, 260);
        QVERIFY(graph.shows(moved, 100.0 + moved));
        QCOMPARE(model.graphMode(), GraphManual);
        const double time = graph.timeAt(200);
        graph.wheel(200, 3); // a touchpad's small step
        graph.wheel(200, 0);
        QVERIFY(graph.shows(time + 0.9 * (moved - time), time + 0.9 * (100.0 + moved - time)));
        graph.wheel(200, -120);
        QVERIFY(graph.shows(moved, 100.0 + moved));
    }

    void gettingAround()
    {
        Graph graph;
        GraphModel& model = graph.model();
        QSignalSpy moved(&graph, &WidgetGraph::signalCursor);
        QTest::mouseClick(&graph, Qt::LeftButton, {}, {200, 100});
        QCOMPARE(model.cursor(), graph.timeAt(200));
        QCOMPARE(moved.takeFirst()[0].toFloat(), static_cast<float>(graph.timeAt(200)));
        QVERIFY(!model.markers().hasExtent() && model.markers().start == model.cursor());
        const TimeRange marks =
            model.markers(); // a drag that did not begin in the plot marks nothing
        graph.send(QEvent::MouseMove, {300, 100}, Qt::NoButton, Qt::LeftButton);
        QVERIFY(model.markers() == marks);
        graph.wheel(200, -240, Qt::ShiftModifier);
        QVERIFY(graph.shows(20.0, 120.0));
        QTest::keyClick(&graph, Qt::Key_Home);
        graph.setXmin(0.0F);
        graph.setXmax(100.0F);
        const double low = graph.view().ymin;
        const double high = graph.view().ymax;
        graph.wheel(200, 120, Qt::ControlModifier); // about row 100 of 350
        settle();
        const double centre = low + (high - low) * (310.0 - 100.0) / 300.0;
        QVERIFY(std::fabs(graph.view().ymin - (centre + (low - centre) * 0.9)) < 1e-9);
        QVERIFY(std::fabs(graph.view().ymax - (centre + (high - centre) * 0.9)) < 1e-9);
        QTest::keyClick(&graph, Qt::Key_F3);
        settle();
        graph.wheel(200, 120, Qt::ControlModifier);
        settle();
        QVERIFY(model.curves().curve(0)->zoomed && !model.curves().curve(1)->zoomed);
        QTest::keyClick(&graph, Qt::Key_Home);
        QVERIFY(!model.curves().curve(0)->zoomed);
        model.setCursorPosition(50.0);
        QTest::keyClick(&graph, Qt::Key_M);
        QVERIFY(graph.shows(20.0, 80.0));
        QTest::keyClick(&graph, Qt::Key_Backspace);
        QVERIFY(!graph.shows(20.0, 80.0));
        QTest::keyClick(&graph, Qt::Key_Backspace, Qt::ShiftModifier);
        QVERIFY(graph.shows(20.0, 80.0));
        graph.send(QEvent::MouseButtonPress, {200, 100}, Qt::BackButton, Qt::BackButton);
        QVERIFY(!graph.shows(20.0, 80.0));
    }

    void legendAndMenuWorkOnCurves()
    {
        GraphWindow graph(flight(3));
        WidgetGraph& widget = *graph.window.graph();
        CurveSet& curves = graph.model().curves();
        QTest::qWait(100);
        const auto nameOf = [&](unsigned k) { // where its name stands in its strip
            const GraphStrip& strip = curves.curve(k)->strip;
            return QPoint(int(graph.model().layout().view().x0) + 15,
                          widget.height() - int(strip.y0 + strip.height) + 12);
        };
        QTest::mouseClick(&widget, Qt::LeftButton, {}, nameOf(1));
        QVERIFY(curves.curve(1)->hidden && graph.session.looks().now().byName.at("P1").hidden);
        QTest::qWait(100);
        QTest::mousePress(&widget, Qt::LeftButton, {}, nameOf(0));
        QTest::mouseMove(&widget, nameOf(2));
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, nameOf(2));
        QCOMPARE(curves.shown(), std::vector<unsigned>({2, 0}));
        QCOMPARE(graph.session.looks().now().order, std::vector<std::string>({"P1", "P2", "P0"}));
        QVERIFY(!graph.session.marks().hasExtent() && graph.model().markers().start == 0.0);
        QTest::qWait(100);
        const auto choose = [&](const char* text) {
            QTest::mouseClick(&widget, Qt::RightButton, {}, nameOf(2));
            auto* menu = graph.window.findChild<QMenu*>();
            for (QAction* action : menu->actions()) {
                if (action->text().remove('&') == text) {
                    action->trigger();
                }
            }
            delete menu;
            QTest::qWait(100);
        };
        choose("Only This");
        QCOMPARE(curves.shown(), std::vector<unsigned>({2}));
        choose("Show All Curves");
        QCOMPARE(curves.shown(), std::vector<unsigned>({1, 2, 0}));
        choose("Move Down");
        QCOMPARE(curves.shown(), std::vector<unsigned>({1, 0, 2}));
        graph.answers.colors = QStringList("#123456");
        choose("Color...");
        QCOMPARE(graph.session.looks().now().byName.at("P2").color, QColor("#123456"));
        curves.curve(2)->ownRange = ValueRange{1.0, 2.0};
        choose("Automatic Range");
        QVERIFY(!curves.curve(2)->ownRange);
        graph.session.looks().set({});
        QVERIFY(curves.shown() == std::vector<unsigned>({0, 1, 2}));
        choose("Copy Picture");
        QVERIFY(QGuiApplication::clipboard()->image().width() >= widget.width());
    }

    void whatIsDrawnIsThere()
    {
        Graph graph;
        const int spike = graph.x(40.0); // of one sample among a hundred thousand
        const int top = graph.row(80.0);
        const int bottom = graph.row(50.0); // where all the others are
        const auto green = [&](int column) { return graph.count(Green, column, top, bottom); };
        QCOMPARE(green(spike - 1) + green(spike) + green(spike + 1), bottom - top);
        QCOMPARE(green(spike + 5), 0);
        QTest::keyClick(&graph, Qt::Key_F3);
        settle();
        const int middle = 10 + 150; // of the plot: where the first strip ends
        for (int column = graph.x(1.0); column < graph.x(99.0); column += 45) {
            QCOMPARE(graph.count(Red, column, middle + 1), 0);
            QCOMPARE(graph.count(Green, column, 12, middle - 1), 0);
            QVERIFY(graph.count(Red, column, 12, middle) > 0);
            QVERIFY(graph.count(Green, column, middle) > 0);
        }
    }

    void emptyTextHasLinks()
    {
        Graph graph;
        graph.setEmptyText("Open a\n<a href=\"card\">card</a>\nto begin.");
        settle();
        const auto middle = [&] { return QPoint(graph.x(50.0), (12 + 308) / 2); };
        QSignalSpy link(&graph, &WidgetGraph::signalLink);
        QTest::mouseClick(&graph, Qt::LeftButton, {}, middle());
        QCOMPARE(link.size(), 0); // there are curves
        graph.model().clear();
        settle();
        QCOMPARE(graph.emptyText().section('\n', 0, 0), "Open a");
        graph.send(QEvent::MouseMove, middle(), Qt::NoButton, Qt::NoButton);
        QCOMPARE(graph.cursor().shape(), Qt::PointingHandCursor);
        QTest::mouseClick(&graph, Qt::RightButton, {}, middle());
        QTest::mouseClick(&graph, Qt::LeftButton, {}, middle() + QPoint(0, 40));
        QCOMPARE(link.size(), 0);
        QTest::mouseClick(&graph, Qt::LeftButton, {}, middle());
        QCOMPARE(link.size(), 1);
        QCOMPARE(link[0][0], "card");
    }

    void windowFollowsTheSession()
    {
        GraphWindow graph(flight(45));
        GraphModel& model = graph.model();
        const auto curve = [&](unsigned i) -> const ParStruct& { return *model.curves().curve(i); };
        QVERIFY(curve(29).active && curve(29).name == "P29");
        auto* note = graph.window.findChild<QLabel*>("note");
        QCOMPARE(note->text(), "30 of 45 selected parameters shown");
        QCOMPARE(model.cursor(), 100.0);
        QCOMPARE(model.window().min(), 88.0); // a tenth of the window before the cursor
        QCOMPARE(graph.width(), 120.0);
        graph.window.graph()->setXrange(50.0);
        for (const auto& [time, begin] : {std::pair(120.0, 88.0), {136.0, 91.0}, {95.0, 90.0}}) {
            graph.session.setTime(time); // inside the margins it stays
            QVERIFY(model.cursor() == time && model.window().min() == begin);
        }
        model.setGraphMode(GraphAutomatic);
        model.setMarker(120.0, 140.0);
        graph.session.setOffset(5.0); // moves the curves, not the window
        settle();
        QCOMPARE(model.window().min(), 90.0);
        QVERIFY(!graph.session.marks().hasExtent());
        QCOMPARE(curve(0).samples().firstTime(), 105.0);
        model.setMarker(120.0, 140.0);
        QCOMPARE(graph.session.marks().stop, 140.0);
        graph.session.setTicks(select(*graph.session.profile(), {"P7"}));
        graph.session.confirm();
        settle();
        QVERIFY(!note->isVisible());
        graph.session.setFlight(nullptr);
        QVERIFY(!model.curves().hasSamples());
    }

    void buttons()
    {
        GraphWindow graph(flight(2));
        GraphModel& model = graph.model();
        const auto isChecked = [&](const char* name) { return graph.button(name)->isChecked(); };
        QVERIFY(model.layout().displayMode() == DisplaySplit && isChecked("Split Mode"));
        graph.click("Single Graph Mode");
        QVERIFY(model.layout().displayMode() == DisplaySingle && !isChecked("Split Mode"));
        QTest::keyClick(graph.window.graph(), Qt::Key_F3);
        QVERIFY(isChecked("Split Mode") && !isChecked("Single Graph Mode"));
        graph.click("Automatic Mode");
        QCOMPARE(model.graphMode(), GraphAutomatic);
        graph.click("Automatic Mode");
        QCOMPARE(model.graphMode(), GraphManual);
        model.setMarker(120.0, 140.0);
        const std::pair<const char*, double> zooms[] = {
            {"Zoom 1:1", 60.0}, {"Zoom Marker", 20.0}, {"Show all", 120.0}};
        for (const auto& [name, width] : zooms) {
            graph.click(name);
            QCOMPARE(graph.width(), width);
        }
        graph.window.graph()->setXrange(0.5);
        QVERIFY(graph.holdUntil("Zoom Out", [&] { return graph.width() > 1.0; }));
        QVERIFY(graph.width() < 2.0); // by 1 and a few steps
        graph.window.graph()->setXrange(10000.0);
        QVERIFY(graph.holdUntil("Zoom In", [&] { return graph.width() <= 5000.0; }));
        const double released = graph.width();
        QTest::qWait(150);
        QVERIFY(released > 4000.0 && graph.width() == released);
        graph.click("Single Graph Mode");
        graph.click("Reset all to default");
        QVERIFY(graph.width() == 60.0 && model.layout().displayMode() == DisplaySplit);
        QVERIFY(model.window().min() <= model.cursor() && model.cursor() <= model.window().max());
        graph.click("Clear All");
        QVERIFY(!model.curves().hasSamples());
        graph.session.confirm(); // fills it again
        settle();
        QVERIFY(model.curves().hasSamples());
    }

    void setupTakesEffectAtOnce()
    {
        GraphWindow graph(flight(1));
        const GraphModel& model = graph.model();
        graph.click("Setup");
        auto* setup = graph.window.findChild<DialogGraphSetup*>();
        QVERIFY(setup->isVisible());
        QCOMPARE(model.cursorMode(), CursorFloating); // defaults wait for the first change
        auto* mode = setup->findChild<QComboBox*>();
        mode->setCurrentIndex(2);
        Q_EMIT mode->activated(2);
        QCOMPARE(model.cursorMode(), CursorEnd);
        QVERIFY(model.graphMode() == GraphManual && graph.width() == 120.0); // not changed
        const auto boxes = setup->findChildren<QCheckBox*>();
        (*std::ranges::find(boxes, "Autoscale On", &QCheckBox::text))->click();
        const auto edits = setup->findChildren<QLineEdit*>();
        QCOMPARE(edits[0]->text(), "-100");
        edits[0]->clear();
        QTest::keyClicks(edits[0], "-12.5");
        QVERIFY(model.layout().view().ymin == -12.5 && model.layout().view().ymax == 100.0);
        graph.answers.colors = QStringList("#123456");
        setup->findChildren<QPushButton*>().first()->click();
        settle();
        const QImage image = graph.window.graph()->grabFramebuffer();
        QCOMPARE(image.pixelColor(image.width() - 20, 20).name(), "#123456");
    }

    void snapshotIsTheScreen()
    {
        GraphWindow graph(flight(2));
        WidgetGraph& widget = *graph.window.graph();
        // A dot under the edge of a curve is seen only where edges are smooth.
        GraphStyle style = widget.graphStyle();
        style.gridOn = false;
        widget.setGraphStyle(style);
        for (const eDisplayMode mode : {DisplaySingle, DisplaySplit}) {
            graph.model().setDisplayMode(mode);
            QTest::qWait(300);
            const QImage screen = widget.grabFramebuffer().convertToFormat(QImage::Format_RGB32);
            for (const char* ending : {".png", ".bmp", "", ".xyz"}) {
                const QString name = QString("shot%1%2").arg(int(mode)).arg(ending);
                graph.answers.files = QStringList(path(name));
                graph.click("Snapshot");
                const bool isKnown = !name.endsWith("xyz");
                const QImage saved = QImage(path(name)).convertToFormat(QImage::Format_RGB32);
                QCOMPARE(saved.height() > screen.height(), isKnown); // the caption stands below
                QVERIFY(!isKnown || (isLike(screen, saved) && isLike(saved, screen)));
                QCOMPARE(graph.answers.said.last().contains("could not be saved"), !isKnown);
            }
            QImage other = screen; // what is missing is noticed
            other.fill(Qt::black);
            QVERIFY(!isLike(screen, other));
        }
        QVERIFY(read("shot0").startsWith("BM") && !QFile::exists(path("shot0.xyz")));
    }

    void withoutOpenGlAMessageStandsInstead()
    {
        if (!qEnvironmentVariableIsSet("ORNA_TEST_NO_OPENGL")) {
            QProcess self;
            self.start("env",
                       {"-u", "DISPLAY", "QT_QPA_PLATFORM=offscreen", "ORNA_TEST_NO_OPENGL=1",
                        QCoreApplication::applicationFilePath(), QTest::currentTestFunction()});
            QVERIFY(self.waitForFinished());
            QVERIFY2(self.exitCode() == 0, self.readAll().constData());
            return;
        }
        const auto shown = flight(2);
        Session session;
        EpisodeWatch episodes(session);
        DialogDataGraph window(session, episodes);
        QCOMPARE(window.graph(), nullptr);
        session.setProfile(shown->profile(), Selection::all(*shown->profile()), shown);
        session.setFlight(shown);
        session.setTime(120.0);
        session.setOffset(1.0);
        window.saveSnapshot();
        QVERIFY(window.findChild<QLabel*>("noGraph")->text().contains("OpenGL"));
    }

private:
    /// 1001 samples in 100 s, which the offset shifts, of \p count parameters.
    std::shared_ptr<const Flight> flight(int count) const
    {
        QString samples;
        for (int k = 0; k <= 1000; ++k) {
            samples += QString("500@%1=%2 ").arg(100.0 + 0.1 * k).arg(k);
        }
        QString parameters;
        for (int k = 0; k < count; ++k) {
            parameters +=
                QString("<Parameter name='P%1' id='500' dataType='FLOAT' startByte='4'/>").arg(k);
        }
        return Flight::make(load({writeRecording(samples, "REC_8000.CAN")}),
                            profileOf("<Device name='D'>" + parameters.toUtf8() + "</Device>"));
    }
};

QTEST_MAIN(TestGraphWidget)
#include "tst_graph_widget.moc"
