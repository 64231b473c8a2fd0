#include "app/CommandSet.h"

#include "widgets/LateIcon.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

namespace TARN {

struct CommandSet::Command
{
    enum Place
    {
        First, ///< of a group in its menu
        Next
    };

    ActionType type;
    QString menu;
    Place place;
    bool inToolbar;
    const char* keys;
    const char* icon;
    QString text;
    QString statusTip;
    QString toolText = {}; ///< where it is not the text of the menu
};

/// In the order of menus and toolbar.
std::vector<CommandSet::Command> CommandSet::commands()
{
    using Type = ActionType;
    constexpr auto First = Command::First;
    constexpr auto Next = Command::Next;
    const QString file = tr("&File");
    const QString extras = tr("&Extras");
    const QString help = tr("&Help");
    return {
        {Type::NewProject, file, Next, true, "Ctrl+N", "projectNew", tr("&New Project"),
         tr("Create new Project")},
        {Type::OpenProject, file, Next, true, "Ctrl+O", "projectOpen", tr("&Open Project"),
         tr("Open Project"), tr("Open Project File")},
        {Type::SaveProject, file, Next, true, "Ctrl+S", "projectSave", tr("&Save Project"),
         tr("Save Project"), tr("Save Project File")},
        {Type::SaveProjectAs, file, Next, false, "", "projectSaveAs", tr("&Save Project as"),
         tr("Save Project as"), tr("Save Project File as")},
        {Type::OpenCard, file, First, true, "Ctrl+C", "cardOpen", tr("&Open Card"), tr("Open Card"),
         tr("Open SD Card")},
        {Type::ExportKml, file, First, true, "", "exportKml", tr("Export Google KML File"),
         tr("Export Google Earth KML File")},
        {Type::ExportGpx, file, Next, false, "", "exportGpx", tr("Export GPX File"),
         tr("Export the Track as GPX File")},
        {Type::ExportCsv, file, Next, true, "", "exportCsv", tr("Export CSV/CAN File"),
         tr("Export CSV/CAN File")},
        {Type::FlightReport, file, Next, true, "Ctrl+R", "report", tr("Flight &Report..."),
         tr("Write What Happened on a Few Pages"), tr("Flight Report")},
        {Type::Quit, file, First, false, "Ctrl+Q", "quit", tr("&Quit"), tr("Quit Application")},
        {Type::RecordDetails, extras, Next, false, "Ctrl+I", "details", tr("Recording Details"),
         tr("Show the Header and the Damages of the Recording")},
        {Type::Logbook, extras, Next, true, "Ctrl+L", "logbook", tr("&Logbook..."),
         tr("Show the Flights That Were Kept, and What Changes from One to the Next"),
         tr("Logbook")},
        {Type::Preferences, extras, Next, false, "", nullptr, tr("Preferences"),
         tr("Open Preferences Dialog")},
        {Type::Help, help, Next, false, "F1", "help", tr("Help"), tr("Help Window")},
        {Type::About, help, Next, false, "", "about", tr("About"), tr("Show License Information")},
    };
}

CommandSet::CommandSet(QMainWindow& window) : QObject(&window), mGroup(new QActionGroup(this))
{
    mGroup->setExclusive(false);
    connect(mGroup, &QActionGroup::triggered, this, [this](const QAction* action) {
        Q_EMIT triggered(static_cast<ActionType>(action->data().toInt()));
    });
    QToolBar* toolbar = window.addToolBar(tr("Main Toolbar"));
    toolbar->setObjectName("MainToolbar");
    std::map<QString, QMenu*> menus;
    for (const Command& command : commands()) {
        QAction* action = createAction(command);
        QMenu*& menu = menus[command.menu];
        menu = menu != nullptr ? menu : window.menuBar()->addMenu(command.menu);
        if (command.place == Command::First) {
            menu->addSeparator();
        }
        menu->addAction(action);
        if (command.inToolbar) {
            toolbar->addAction(action);
        }
    }
}

QAction* CommandSet::createAction(const Command& command)
{
    auto* action = new QAction(command.text, this);
    if (command.icon != nullptr) {
        action->setIcon(LateIcon::of(command.icon));
    }
    if (!command.toolText.isEmpty()) {
        action->setIconText(command.toolText);
    }
    action->setData(static_cast<int>(command.type));
    action->setStatusTip(command.statusTip);
    action->setShortcut(QKeySequence(command.keys));
    mGroup->addAction(action);
    mActions[command.type] = action;
    return action;
}

void CommandSet::setEnabled(ActionType type, bool enabled)
{
    mActions.at(type)->setEnabled(enabled);
}

} // namespace TARN
