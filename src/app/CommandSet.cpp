#include "app/CommandSet.h"

#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QToolBar>

namespace TARN {

CommandSet::CommandSet(QMainWindow& window) : QObject(&window), mGroup(new QActionGroup(this))
{
    mGroup->setExclusive(false);
    connect(mGroup, &QActionGroup::triggered, this, [this](const QAction* action) {
        Q_EMIT triggered(static_cast<ActionType>(action->data().toInt()));
    });
    createActions();
    createMenu(window);
    createToolbar(window);
}

void CommandSet::createActions()
{
    addCommand(ActionType::NewProject, tr("&New Project"), "projectNew", tr("Create new Project"),
               QKeySequence("Ctrl+N"));
    addCommand(ActionType::OpenProject, tr("&Open Project"), "projectOpen", tr("Open Project"),
               QKeySequence("Ctrl+O"))
        ->setIconText(tr("Open Project File"));
    addCommand(ActionType::SaveProject, tr("&Save Project"), "projectSave", tr("Save Project"),
               QKeySequence("Ctrl+S"))
        ->setIconText(tr("Save Project File"));
    addCommand(ActionType::SaveProjectAs, tr("&Save Project as"), "projectSaveAs",
               tr("Save Project as"), {})
        ->setIconText(tr("Save Project File as"));
    addCommand(ActionType::OpenCard, tr("&Open Card"), "cardOpen", tr("Open Card"),
               QKeySequence("Ctrl+C"))
        ->setIconText(tr("Open SD Card"));
    addCommand(ActionType::Preferences, tr("Preferences"), nullptr, tr("Open Preferences Dialog"),
               {});
    addCommand(ActionType::RecordDetails, tr("Recording Details"), "details",
               tr("Show the Header and the Damages of the Recording"), QKeySequence("Ctrl+I"));
    addCommand(ActionType::ExportKml, tr("Export Google KML File"), "exportKml",
               tr("Export Google Earth KML File"), {});
    addCommand(ActionType::ExportCsv, tr("Export CSV/CAN File"), "exportCsv",
               tr("Export CSV/CAN File"), {});
    addCommand(ActionType::Quit, tr("&Quit"), "quit", tr("Quit Application"),
               QKeySequence("Ctrl+Q"));
    addCommand(ActionType::About, tr("About"), "about", tr("Show License Information"), {});
    addCommand(ActionType::Help, tr("Help"), "help", tr("Help Window"), QKeySequence("F1"));
}

QAction* CommandSet::addCommand(ActionType type, const QString& text, const char* icon,
                                const QString& statusTip, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    if (icon != nullptr) {
        action->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    }
    action->setData(static_cast<int>(type));
    action->setStatusTip(statusTip);
    action->setShortcut(shortcut);
    mGroup->addAction(action);
    mActions[type] = action;
    return action;
}

void CommandSet::createMenu(QMainWindow& window)
{
    QMenu* file = window.menuBar()->addMenu(tr("&File"));
    file->addAction(mActions[ActionType::NewProject]);
    file->addAction(mActions[ActionType::OpenProject]);
    file->addAction(mActions[ActionType::SaveProject]);
    file->addAction(mActions[ActionType::SaveProjectAs]);
    file->addSeparator();
    file->addAction(mActions[ActionType::OpenCard]);
    file->addSeparator();
    file->addAction(mActions[ActionType::ExportKml]);
    file->addAction(mActions[ActionType::ExportCsv]);
    file->addSeparator();
    file->addAction(mActions[ActionType::Quit]);
    QMenu* extras = window.menuBar()->addMenu(tr("&Extras"));
    extras->addAction(mActions[ActionType::RecordDetails]);
    extras->addAction(mActions[ActionType::Preferences]);
    QMenu* help = window.menuBar()->addMenu(tr("&Help"));
    help->addAction(mActions[ActionType::Help]);
    help->addAction(mActions[ActionType::About]);
}

void CommandSet::createToolbar(QMainWindow& window)
{
    QToolBar* toolbar = window.addToolBar(tr("Main Toolbar"));
    toolbar->setObjectName("MainToolbar");
    for (const ActionType type :
         {ActionType::NewProject, ActionType::OpenProject, ActionType::SaveProject,
          ActionType::OpenCard, ActionType::ExportKml, ActionType::ExportCsv}) {
        toolbar->addAction(mActions[type]);
    }
}

void CommandSet::setEnabled(ActionType type, bool enabled)
{
    mActions.at(type)->setEnabled(enabled);
}

} // namespace TARN
