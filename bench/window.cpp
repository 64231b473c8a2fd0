#include "Window.h"

#include "EventLoop.h"
#include "Flights.h"
#include "Suite.h"
#include "app/DialogMain.h"
#include "app/DialogSplash.h"
#include "app/StartUp.h"
#include "card/DialogCard.h"
#include "demo/Card.h"
#include "export/ExportCsv.h"
#include "flight/Job.h"
#include "graph/GraphPanes.h"
#include "graph/WidgetGraph.h"
#include "profile/Decoder.h"

#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <fstream>
#include <vector>

namespace TARN::Bench {

namespace {

constexpr int Rounds = 5;

/// The viewer as a user has it, with a home and a profile of its own.
class Viewer
{
public:
    Viewer(Suite& suite, const std::string& profile)
    {
        const auto home = suite.folder() / "home";
        std::filesystem::create_directories(home / "ORNA");
        std::ofstream(home / "ORNA" / "ORNA.ini")
            << "<TARN><Property id=\"Profile\" value=\"" << profile << "\"/></TARN>";
        qputenv("HOME", QByteArray::fromStdString(home.string()));
        mWindow = startUp(*qApp);
        DialogSplash::instance()->close();
        mWindow->resize(1280, 920);
        mWindow->findChild<QTabWidget*>("views")->setCurrentIndex(GraphTab);
        settle();
        require(session().profile()->isLoaded(), "the profile was not read");
    }

    ~Viewer() { delete mWindow; }

    Session& session() { return mWindow->session(); }

    /// Until nothing is left to be done and all is painted.
    void settle()
    {
        do {
            liveUntilDone();
        } while (session().switches().loading.isOn());
    }

    void pick(const std::string& recording)
    {
        auto* card = mWindow->findChild<DialogCard*>();
        Q_EMIT card->signalLoadRecord({QString::fromStdString(recording)});
    }

    void confirm(const Selection& selection)
    {
        session().setTicks(selection);
        session().confirm();
    }

    void cancelLoading()
    {
        mWindow->findChild<QWidget*>("loading")->findChild<QToolButton*>()->click();
    }

    /// Until a picture with all its curves is on the display.
    void waitForCurves()
    {
        auto* graph = mWindow->findChild<WidgetGraph*>();
        QEventLoop loop;
        QObject::connect(graph, &QOpenGLWidget::frameSwapped, &loop, [&] {
            if (std::ranges::none_of(graph->model().curves().all(), [](const ParStruct& curve) {
                    return curve.active && curve.samples().empty();
                })) {
                loop.quit();
            }
        });
        loop.exec();
    }

    /// Until the graph has been painted and the display has got it.
    void paint()
    {
        auto* graph = mWindow->findChild<WidgetGraph*>();
        QEventLoop loop;
        QObject::connect(graph, &QOpenGLWidget::frameSwapped, &loop, &QEventLoop::quit);
        graph->update();
        loop.exec();
        QGuiApplication::sync();
    }

    /// An end of the marked range goes back and forth until plot and panel are painted.
    double dragSeconds()
    {
        const TimeRange whole = session().flight()->range(0.0);
        auto* graph = mWindow->findChild<WidgetGraph*>();
        std::vector<double> seconds;
        for (int i = 0; i < 8 * Rounds; ++i) {
            const double a = whole.start + (whole.stop - whole.start) * 0.01 * (10 + i);
            seconds.push_back(secondsOf([&] {
                QEventLoop loop;
                QObject::connect(graph, &QOpenGLWidget::frameSwapped, &loop, &QEventLoop::quit);
                graph->model().setMarker(a, whole.stop);
                loop.exec();
                QGuiApplication::sync();
            }));
        }
        return median(seconds);
    }

    /// Shows or hides the panel below the graph.
    void showMeasuring(bool isShown)
    {
        auto* panes = mWindow->findChild<GraphPanes*>();
        if (panes->isMeasuring() != isShown) {
            panes->toggleMeasuring();
        }
        settle();
    }

    double paintSeconds()
    {
        std::vector<double> seconds;
        for (int i = 0; i < 4 * Rounds; ++i) {
            seconds.push_back(secondsOf([this] { paint(); }));
        }
        return median(seconds);
    }

private:
    static constexpr int GraphTab = 2;

    DialogMain* mWindow;
};

/// 117 parameters, as many as the default profile has.
std::vector<Message> windowMessages()
{
    constexpr std::size_t Parameters = 117;
    std::vector<Message> messages = busMessages();
    messages.resize(Parameters);
    return messages;
}

/// A load, a confirmed selection, an export and a cancelled load, one after the other.
double longestHold(Viewer& viewer, const std::string& recording, const std::string& folder)
{
    const Heartbeat heart;
    viewer.pick(recording);
    viewer.settle();
    const auto flight = viewer.session().flight();
    require(flight != nullptr, "the recording was not loaded");
    viewer.confirm(Selection::all(*flight->profile()));
    viewer.settle();
    CsvExportOptions options;
    options.directory = folder;
    options.fileName = "held.csv";
    options.startTime = flight->info().startTime;
    options.stopTime = flight->info().stopTime;
    options.resolution = 1;
    Job<ExportResult> job;
    job.start(
        [flight, options](Progress& progress) {
            return ExportCsv(options).run({flight, Selection::all(*flight->profile()), 0.0},
                                          progress);
        },
        [](const ExportResult&) {});
    live(2000); // the whole table may have many gigabytes
    job.cancel();
    viewer.pick(recording);
    live(20); // the smaller recording is loaded in less than a tenth of a second
    viewer.cancelLoading();
    viewer.settle();
    require(viewer.session().flight() == flight, "the old flight is gone");
    viewer.confirm({});
    viewer.settle();
    return heart.longestHold();
}

double holdRatio(Suite& suite, Viewer& viewer)
{
    const std::string& recording = suite.busRecording(suite.options().quick ? 100 : 1000);
    viewer.pick(recording);
    viewer.settle();
    viewer.confirm(Selection::all(*viewer.session().profile()));
    viewer.settle();
    const double paint = viewer.paintSeconds();
    viewer.confirm({});
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        ratios.push_back(longestHold(viewer, recording, suite.folder().string()) / paint);
    }
    return median(ratios);
}

/// From the click on Cancel until the window has taken the next input.
double cancelRatio(Suite& suite, Viewer& viewer)
{
    const std::string& recording = suite.busRecording(suite.options().quick ? 100 : 1000);
    const double paint = viewer.paintSeconds();
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        viewer.pick(recording);
        live(50);
        ratios.push_back(secondsOf([&] {
                             viewer.cancelLoading();
                             require(!viewer.session().switches().loading.isOn(),
                                     "it goes on loading");
                             QEventLoop loop;
                             QTimer::singleShot(0, &loop, &QEventLoop::quit);
                             loop.exec();
                         }) /
                         paint);
        viewer.settle();
    }
    return median(ratios);
}

/// The 30 parameters of the demo flight that are sent most often, as far as they are numbers.
Selection thirtyOf(const Flight& flight)
{
    constexpr std::size_t Most = 30;
    std::vector<std::pair<std::size_t, const ProfileParameter*>> numbers;
    for (const auto& [device, parameter] : flight.profile()->parameters()) {
        const Series series = flight.series(*parameter, 0.0);
        if (series.decoder().isNumeric()) {
            numbers.emplace_back(series.size(), parameter);
        }
    }
    std::ranges::sort(numbers, std::greater());
    Selection selection;
    for (std::size_t i = 0; i < Most; ++i) {
        selection.set(*numbers[i].second, true);
    }
    return selection;
}

/// Times and values of the columns, which is the least that a graph has to know of them.
double decodeSeconds(const Flight& flight, const Selection& selection)
{
    return secondsOf([&] {
        for (const ProfileParameter* parameter : selection.parameters(*flight.profile())) {
            const Series series = flight.series(*parameter, 0.0);
            std::vector<double> times(series.size());
            std::vector<double> values(series.size());
            series.timesOf(series.entries(), times.data());
            series.decoder().toDoubles(series.entries(), true, values.data());
            keep(times);
            keep(values);
        }
    });
}

double confirmRatio(Suite& suite)
{
    Viewer viewer(suite, ORNA_BENCH_PROFILE);
    const auto card = suite.folder() / "demo";
    std::filesystem::create_directories(card);
    Demo::CardOptions options;
    options.folder = card.string();
    options.files = 1;
    require(Demo::writeCard(options).empty(), "the demo flight was not written");
    viewer.pick((card / "LOG_0001.CAN").string());
    viewer.settle();
    const auto flight = viewer.session().flight();
    require(flight != nullptr, "the demo flight was not loaded");
    const Selection selection = thirtyOf(*flight);
    std::vector<double> ratios;
    constexpr int ShortRounds = 25; // of hundredths of a second, which are easily disturbed
    for (int round = 0; round < ShortRounds; ++round) {
        viewer.confirm({});
        viewer.session().setTicks(selection);
        viewer.settle();
        const double shown = secondsOf([&] {
            viewer.session().confirm();
            viewer.waitForCurves();
        });
        ratios.push_back(shown / decodeSeconds(*flight, selection));
    }
    return median(ratios);
}

/// Plot and panel against the plot alone.
double dragRatio(Suite& suite)
{
    const std::string profile = (suite.folder() / "drag.xml").string();
    writeProfile(profile, tableMessages());
    Viewer viewer(suite, profile);
    viewer.pick(suite.tableRecording(suite.options().quick ? 100'000 : 1'000'000));
    viewer.settle();
    require(viewer.session().flight() != nullptr, "the recording was not loaded");
    viewer.confirm(Selection::all(*viewer.session().profile()));
    viewer.settle();
    std::vector<double> ratios;
    for (int round = 0; round < Rounds; ++round) {
        viewer.showMeasuring(true);
        const double both = viewer.dragSeconds();
        viewer.showMeasuring(false);
        ratios.push_back(both / viewer.dragSeconds());
    }
    return median(ratios);
}

} // namespace

void windowFigures(Suite& suite)
{
    suite.figure("ui.drag", 1.5, [&] { return dragRatio(suite); });
    suite.figure("ui.confirm", 12.0, [&] { return confirmRatio(suite); });
    if (!suite.isWanted("ui.hold") && !suite.isWanted("ui.cancel")) {
        return;
    }
    const std::string profile = (suite.folder() / "profile.xml").string();
    writeProfile(profile, windowMessages());
    Viewer viewer(suite, profile);
    suite.figure("ui.hold", 5.0, [&] { return holdRatio(suite, viewer); });
    suite.figure("ui.cancel", 8.0, [&] { return cancelRatio(suite, viewer); });
}

} // namespace TARN::Bench
