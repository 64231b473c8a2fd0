// Opens the viewer on the card and project of the settings, uses it as a person would and leaves
// screenshots. Needs a display, a virtual one will do.

#include "app/DialogData.h"
#include "app/DialogMain.h"
#include "app/DialogSplash.h"
#include "app/StartUp.h"
#include "base/Property.h"
#include "flight/Job.h"
#include "graph/DialogGraphSetup.h"
#include "graph/GraphPanes.h"
#include "graph/MeasureModel.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QDir>
#include <QtCore/QEventLoop>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSlider>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QTableView>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QWizard>

#include <algorithm>
#include <functional>
#include <iostream>

namespace {

struct Arguments
{
    std::string out;
    bool dark;
    int width;
    int height;
    bool examples;     ///< the manual's pictures instead of the tour
    QString reference; ///< folder of the flight to compare with in them
};

/// What the manual asks of the demo flight, and where the answer stands.
struct Example
{
    std::vector<const char*> parameters;
    double start; ///< of the window, seconds
    double stop;
    TARN::TimeRange marks;
    double time;
    TARN::MeasureModel::Column column; ///< brought into sight
};

/// Runs the event loop for a while: timers fire, windows are painted.
void live(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Runs the event loop until everything that was asked for stands on the screen.
void settle()
{
    constexpr int Turn = 100; // ms
    do {
        live(Turn);
    } while (TARN::pendingWork() > 0);
    live(Turn);
}

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 53));
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    palette.setColor(QPalette::AlternateBase, QColor(45, 45, 45));
    palette.setColor(QPalette::Text, Qt::white);
    palette.setColor(QPalette::WindowText, Qt::white);
    palette.setColor(QPalette::ButtonText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(53, 53, 53));
    palette.setColor(QPalette::ToolTipText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
    palette.setColor(QPalette::Disabled, QPalette::Text, QColor(127, 127, 127));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(127, 127, 127));
    return palette;
}

class Tour
{
public:
    Tour(TARN::DialogMain& window, const Arguments& arguments)
        : mWindow(window), mArguments(arguments)
    {}

    bool runExamples()
    {
        const Example examples[] = {
            {{"CHT 3"}, 33600.0, 34100.0, {}, 33882.7, TARN::MeasureModel::AboveColumn},
            {{"Oil Pressure"},
             34840.0,
             34900.0,
             {34862.0, 34876.0},
             34869.6,
             TARN::MeasureModel::AColumn},
            {{"Altitude", "Fuel Flow"},
             33600.0,
             34700.0,
             {33740.0, 34500.0},
             34500.0,
             TARN::MeasureModel::IntegralColumn},
            {{"CHT 3", "Engine State", "Cowl Flaps"},
             33700.0,
             34000.0,
             {},
             33856.8,
             TARN::MeasureModel::AColumn}};
        live(300);
        settle();
        auto* recordings = mWindow.findChild<QTreeWidget*>("recordings");
        recordings->setCurrentItem(recordings->topLevelItem(0));
        live(PickDelay);
        settle();
        mWindow.findChild<QTabWidget*>("views")->setCurrentIndex(2);
        int number = 0;
        for (const Example& example : examples) {
            show(example);
            shoot(QString("example%1").arg(++number), mWindow.findChild<TARN::GraphPanes*>());
        }
        compare();
        passDialog("example6", TARN::ActionType::Logbook);
        track();
        return !mFailed;
    }

    /// The path of what is open alone.
    void track()
    {
        mWindow.session().reference().setFlight(nullptr);
        mWindow.findChild<WidgetGraph*>()->model().setMarker(0.0, 0.0);
        colorTrack();
        shoot("example7", mWindow.findChild<QTabWidget*>("views")->currentWidget());
    }

    /// What is open with a flight of the week before, by the take-offs.
    void compare()
    {
        if (mArguments.reference.isEmpty()) {
            return;
        }
        show({{"CHT 3", "CHT 5", "CHT 6"},
              33600.0,
              35700.0,
              {34920.0, 35600.0},
              35400.0,
              TARN::MeasureModel::MeanDifferenceColumn});
        TARN::Reference& reference = mWindow.session().reference();
        reference.setFlight(flightOf(mArguments.reference));
        reference.align({TARN::Alignment::Passing, nameOf("IAS"), 40.0});
        reference.differenceShown().turn(true);
        settle();
        auto* data = mWindow.findChild<TARN::DialogData*>();
        auto* panes = mWindow.findChild<TARN::GraphPanes*>();
        const int bottom = panes->mapTo(data, QPoint(0, panes->height())).y();
        shoot("example5", data, QRect(0, 0, data->width(), bottom));
    }

    QString nameOf(const QString& name)
    {
        const auto& all = mWindow.session().profile()->parameters();
        const auto found = std::ranges::find_if(
            all, [&](const auto& item) { return item.parameter->name == name; });
        return found != all.end() ? found->parameter->fullName : QString();
    }

    std::shared_ptr<const TARN::Flight> flightOf(const QString& folder)
    {
        std::list<QString> files;
        for (const QFileInfo& file :
             QDir(folder).entryInfoList({"*.CAN"}, QDir::Files, QDir::Name)) {
            files.push_back(file.filePath());
        }
        auto record = std::make_shared<TARN::Record>();
        mFailed = mFailed || !record->readRecordData(files);
        return TARN::Flight::make(record, mWindow.session().profile());
    }

    void show(const Example& example)
    {
        TARN::Session& session = mWindow.session();
        TARN::Selection ticks;
        for (const auto& [device, parameter] : session.profile()->parameters()) {
            const bool isWanted = std::ranges::any_of(
                example.parameters, [&](const char* name) { return parameter->name == name; });
            ticks.set(*parameter, isWanted);
        }
        session.setTicks(ticks);
        session.confirm();
        settle();
        auto* graph = mWindow.findChild<WidgetGraph*>();
        graph->model().window().set(example.start, example.stop);
        graph->model().windowChanged();
        graph->model().setMarker(example.marks.start, example.marks.stop);
        session.setTime(example.time);
        live(300);
        settle();
        auto* table = mWindow.findChild<QTableView*>("measures");
        table->scrollTo(table->model()->index(0, example.column));
        live(100);
    }

    bool run()
    {
        live(300);
        settle();
        shoot("01-card");
        auto* recordings = mWindow.findChild<QTreeWidget*>("recordings");
        if (recordings->topLevelItemCount() == 0) {
            std::cerr << "orna-tour: no recordings on the card of the settings\n";
            return false;
        }
        // Below the line of a flight stand its recordings.
        QTreeWidgetItem* one =
            recordings->topLevelItem(std::min(1, recordings->topLevelItemCount() - 1));
        recordings->setCurrentItem(one);
        one->setExpanded(true);
        live(PickDelay);
        settle();
        shoot("02-one-recording");
        one->setExpanded(false);
        recordings->setCurrentItem(recordings->topLevelItem(0));
        live(PickDelay);
        settle();
        mWindow.findChild<QSlider*>("timeSlider")->setValue(2200);
        settle();
        shoot("03-table");
        auto* next = mWindow.findChild<QToolButton*>("eventNext");
        auto* tabs = mWindow.findChild<QTabWidget*>("views");
        for (int i = 0; i < EventsToPass; ++i) {
            next->click();
        }
        for (int tab = 1; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            settle();
            shoot(QString("%1-tab-%2").arg(tab + 3, 2, 10, QChar('0')).arg(tab));
        }
        tabs->setCurrentIndex(2);
        mWindow.findChild<WidgetGraph*>()->setDisplayMode(TARN::DisplaySingle);
        settle();
        shoot("09-graph-single");
        showTrack();
        passDialogs();
        return !mFailed;
    }

private:
    static constexpr int EventsToPass = 9; ///< into the middle of the flight's story
    static constexpr int PickDelay = 600;  ///< ms; until picked recordings are loaded

    void choose(const char* name, int row)
    {
        auto* box = mWindow.findChild<QComboBox*>(name);
        box->setCurrentIndex(row);
        Q_EMIT box->activated(row);
        settle();
    }

    /// Goes to the track and colors it by a cylinder.
    void colorTrack()
    {
        constexpr int Track = 5;
        mWindow.findChild<QTabWidget*>("views")->setCurrentIndex(Track);
        settle();
        choose("trackColors",
               std::max(1, mWindow.findChild<QComboBox*>("trackColors")->findText("CHT 3 [°C]")));
    }

    void showTrack()
    {
        colorTrack();
        choose("trackColors", 1);
        shoot("10-track-states");
        colorTrack();
        choose("trackAxis", 1);
        shoot("11-track-values");
    }

    void passDialogs()
    {
        using TARN::ActionType;
        passDialog("20-preferences", ActionType::Preferences);
        passDialog("21-about", ActionType::About);
        passDialog("22-help", ActionType::Help);
        passDialog("26-details", ActionType::RecordDetails);
        passDialog("27-logbook", ActionType::Logbook);
        auto* setup = mWindow.findChild<TARN::DialogGraphSetup*>();
        setup->updateDialog();
        setup->show();
        live(200);
        shoot("23-graph-setup", setup);
        setup->hide();
        passWizard("24-kml", ActionType::ExportKml);
        passWizard("25-csv", ActionType::ExportCsv);
        passWizard("25-gpx", ActionType::ExportGpx);
    }

    QAction* action(TARN::ActionType type)
    {
        for (QAction* action : mWindow.findChildren<QAction*>()) {
            if (action->data().isValid() && action->data().toInt() == static_cast<int>(type)) {
                return action;
            }
        }
        return nullptr;
    }

    void passDialog(const QString& name, TARN::ActionType type)
    {
        action(type)->trigger();
        live(300);
        settle();
        if (QWidget* dialog = QApplication::activeWindow(); dialog != &mWindow) {
            shoot(name, dialog);
            dialog->hide();
        }
        mWindow.activateWindow();
        live(100);
    }

    /// A wizard runs an event loop of its own: its pages are taken from within.
    void passWizard(const QString& name, TARN::ActionType type)
    {
        QTimer::singleShot(500, &mWindow, [this, name] {
            auto* wizard = qobject_cast<QWizard*>(QApplication::activeModalWidget());
            if (wizard == nullptr) {
                mFailed = true;
                return;
            }
            const auto pages = wizard->pageIds();
            for (int page = 0; page < pages.size(); ++page) {
                live(200);
                shoot(QString("%1-%2").arg(name).arg(page + 1), wizard);
                wizard->next();
            }
            wizard->reject();
        });
        action(type)->trigger();
    }

    void shoot(const QString& name) { shoot(name, &mWindow); }

    void shoot(const QString& name, QWidget* window, const QRect& part = {0, 0, -1, -1})
    {
        const QString suffix = mArguments.dark ? "-dark" : "";
        const QString file = QString::fromStdString(mArguments.out) + "/" + name + suffix + ".png";
        if (!window->grab(part).save(file)) {
            std::cerr << "orna-tour: could not write " << file.toStdString() << '\n';
            mFailed = true;
        }
    }

    TARN::DialogMain& mWindow;
    const Arguments& mArguments;
    bool mFailed = false;
};

} // namespace

int main(int argc, char** argv)
{
    TARN::useDecimalPoint();
    QApplication application(argc, argv);
    TARN::useDecimalPoint();
    QCommandLineParser command;
    command.setApplicationDescription("Takes screenshots of the viewer at work.");
    command.addHelpOption();
    command.addPositionalArgument("OUT", "existing folder for the pictures");
    command.addOptions({{"dark", "with a dark theme"},
                        {"width", "window width, pixels", "pixels", "1280"},
                        {"height", "window height, pixels", "pixels", "860"},
                        {"examples", "the pictures of the manual instead"},
                        {"reference", "card to compare with in them", "folder"}});
    command.process(application);
    if (command.positionalArguments().size() != 1) {
        command.showHelp(2);
    }
    const Arguments arguments{command.positionalArguments().front().toStdString(),
                              command.isSet("dark"),
                              command.value("width").toInt(),
                              command.value("height").toInt(),
                              command.isSet("examples"),
                              command.value("reference")};
    if (arguments.dark) {
        QApplication::setPalette(darkPalette());
    }
    TARN::DialogMain* window = TARN::startUp(application);
    TARN::DialogSplash::instance()->close();
    window->resize(arguments.width, arguments.height);
    Tour tour(*window, arguments);
    const bool done = arguments.examples ? tour.runExamples() : tour.run();
    std::cout.flush();
    std::_Exit(done ? 0 : 1); // as the viewer itself ends: at once
}
