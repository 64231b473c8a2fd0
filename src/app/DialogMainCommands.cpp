#include "app/DialogMain.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "profile/DialogProfile.h"
#include "profile/Profile.h"
#include "profile/Project.h"

#include <QtCore/QFileInfo>
#include <QtGui/QAction>
#include <QtGui/QActionGroup>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolBar>

namespace TARN {

namespace {

QString setting(const char* key)
{
    return QString::fromStdString(Property::instance()->getString(key, "."));
}

} // namespace

void DialogMain::storeSetting(const char* key, const QString& value)
{
    Property::instance()->setString(key, value.toStdString());
    Property::instance()->writeXmlFile();
}

void DialogMain::createActions()
{
    mCommands = new QActionGroup(this);
    mCommands->setExclusive(false);
    connect(mCommands, &QActionGroup::triggered, this, &DialogMain::slotMenu);
    addCommand(ActionType::NewProject, tr("&New Project"), "projectNew", tr("Create new Project"),
               QKeySequence("Ctrl+N"));
    addCommand(ActionType::OpenProject, tr("&Open Project"), "projectOpen", tr("Open Project"),
               QKeySequence("Ctrl+O"))
        ->setIconText(tr("Open Project File"));
    addCommand(ActionType::SaveProject, tr("&Save Project"), "projectSave", tr("Save Project"),
               QKeySequence("Ctrl+S"))
        ->setIconText(tr("Save Project File"));
    addCommand(ActionType::SaveProjectAs, tr("&Save Project as"), "projectSaveAs",
               tr("Save Project as"))
        ->setIconText(tr("Save Project File as"));
    addCommand(ActionType::OpenCard, tr("&Open Card"), "cardOpen", tr("Open Card"),
               QKeySequence("Ctrl+C"))
        ->setIconText(tr("Open SD Card"));
    addCommand(ActionType::Preferences, tr("Preferences"), nullptr, tr("Open Preferences Dialog"));
    addCommand(ActionType::RecordDetails, tr("Recording Details"), "details",
               tr("Show the Header and the Damages of the Recording"), QKeySequence("Ctrl+I"));
    addCommand(ActionType::ExportKml, tr("Export Google KML File"), "exportKml",
               tr("Export Google Earth KML File"));
    addCommand(ActionType::ExportCsv, tr("Export CSV/CAN File"), "exportCsv",
               tr("Export CSV/CAN File"));
    addCommand(ActionType::Quit, tr("&Quit"), "quit", tr("Quit Application"),
               QKeySequence("Ctrl+Q"));
    addCommand(ActionType::About, tr("About"), "about", tr("Show License Information"));
    addCommand(ActionType::Help, tr("Help"), "help", tr("Help Window"), QKeySequence("F1"));
}

QAction* DialogMain::addCommand(ActionType type, const QString& text, const char* icon,
                                const QString& statusTip, const QKeySequence& shortcut)
{
    auto* action = new QAction(text, this);
    if (icon != nullptr) {
        action->setIcon(QIcon(QString(":/icons/%1.svg").arg(icon)));
    }
    action->setData(static_cast<int>(type));
    action->setStatusTip(statusTip);
    action->setShortcut(shortcut);
    mCommands->addAction(action);
    mActions[type] = action;
    return action;
}

void DialogMain::createMenu()
{
    QMenu* file = menuBar()->addMenu(tr("&File"));
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
    QMenu* extras = menuBar()->addMenu(tr("&Extras"));
    extras->addAction(mActions[ActionType::RecordDetails]);
    extras->addAction(mActions[ActionType::Preferences]);
    connect(extras, &QMenu::aboutToShow, this, &DialogMain::slotMenuPrefAbout);
    QMenu* help = menuBar()->addMenu(tr("&Help"));
    help->addAction(mActions[ActionType::Help]);
    help->addAction(mActions[ActionType::About]);
}

void DialogMain::createToolbar()
{
    QToolBar* toolbar = addToolBar(tr("Main Toolbar"));
    toolbar->setObjectName("MainToolbar");
    for (const ActionType type :
         {ActionType::NewProject, ActionType::OpenProject, ActionType::SaveProject,
          ActionType::OpenCard, ActionType::ExportKml, ActionType::ExportCsv}) {
        toolbar->addAction(mActions[type]);
    }
}

void DialogMain::slotMenuPrefAbout()
{
    updateEnabled();
}

void DialogMain::slotMenu(QAction* action)
{
    switch (static_cast<ActionType>(action->data().toInt())) {
    case ActionType::NewProject:
        newProject();
        break;
    case ActionType::OpenProject:
        openProject();
        break;
    case ActionType::OpenCard:
        openCard();
        break;
    case ActionType::SaveProject:
        saveProject(false);
        break;
    case ActionType::SaveProjectAs:
        saveProject(true);
        break;
    case ActionType::ExportKml:
        exportKml();
        break;
    case ActionType::ExportCsv:
        exportCsv();
        break;
    case ActionType::Quit:
        quit();
        break;
    case ActionType::About:
        showAbout();
        break;
    case ActionType::Help:
        showHelp();
        break;
    case ActionType::Preferences:
        showPreferences();
        break;
    case ActionType::RecordDetails:
        slotRecordDetails();
        break;
    }
    updateEnabled();
}

bool DialogMain::newProject()
{
    if (!cleanup()) {
        return false;
    }
    mProjectFile.clear();
    Project::instance()->clear();
    projectReplaced();
    return true;
}

bool DialogMain::openProject()
{
    if (!cleanup()) {
        return false;
    }
    const QString file = QFileDialog::getOpenFileName(
        this, tr("Open TARN Project"), setting("LastProjectPath"), tr("Project Files (*.xml)"));
    return !file.isEmpty() && openProject(file);
}

bool DialogMain::openProject(const QString& file)
{
    const bool read = Project::instance()->readProject(file.toStdString());
    mProjectFile = file;
    storeSetting("LastProjectPath", file);
    projectReplaced();
    if (!read) {
        QMessageBox::warning(this, tr("ORNA Warning"),
                             tr("The project \"%1\" could not be read.\nCheck that it is a project "
                                "file saved by this program.")
                                 .arg(file));
    }
    return read;
}

void DialogMain::projectReplaced()
{
    mProfile->updateProject();
    slotProfileChanged();
    setEdited(false);
}

void DialogMain::openCard()
{
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Open SD Card"), setting("LastPath"));
    if (!folder.isEmpty()) {
        openCard(folder);
    }
}

void DialogMain::openCard(const QString& folder)
{
    loadRecords(folder);
    storeSetting("LastPath", folder);
    mStatusBar->say(tr("Recordings found: %1").arg(mCardInfo.records.size()));
}

void DialogMain::quit()
{
    if (!cleanup()) {
        return;
    }
    mEdited = false; // the question has been answered
    mTimer.stop();
    close();
}

bool DialogMain::askSaveProject()
{
    QMessageBox box(QMessageBox::Warning, tr("TARN Warning"),
                    tr("Current Project not saved !\nSave it now ?"), QMessageBox::NoButton, this);
    QPushButton* yes = box.addButton(tr("Yes"), QMessageBox::YesRole);
    const QAbstractButton* no = box.addButton(tr("No"), QMessageBox::NoRole);
    const QAbstractButton* cancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(yes);
    box.exec();
    if (box.clickedButton() == cancel) {
        return false;
    }
    if (box.clickedButton() == no) {
        return true;
    }
    return saveProject(false);
}

bool DialogMain::saveProject(bool askName)
{
    if (Profile::instance()->data().devices.empty()) {
        QMessageBox::critical(this, tr("ORNA Warning"),
                              tr("The project was not saved: no profile is loaded, so its "
                                 "parameters are not known.\nChoose a profile under Extras, "
                                 "Preferences."));
        return false;
    }
    // A profile opened as a project by mistake is not replaced without a question.
    if (askName || mProjectFile.isEmpty() || !Project::mayReplace(mProjectFile.toStdString())) {
        const QString file = askProjectName();
        if (file.isEmpty()) {
            return false;
        }
        mProjectFile = file;
    }
    if (!Project::instance()->saveProject(mProjectFile.toStdString())) {
        QMessageBox::critical(this, tr("ORNA Warning"),
                              tr("The project could not be written to \"%1\".\nThe old file is "
                                 "unchanged; save it in another folder.")
                                  .arg(mProjectFile));
        return false;
    }
    storeSetting("LastProjectPath", mProjectFile);
    setEdited(false);
    return true;
}

QString DialogMain::askProjectName()
{
    const QString file = QFileDialog::getSaveFileName(
        this, tr("Save TARN Project"), setting("LastProjectPath"), tr("Project Files (*.xml)"));
    if (file.isEmpty()) {
        return {};
    }
    const QString folder = file.section('/', 0, -2);
    const QString name = file.section('/', -1);
    if (name.contains('.')) {
        return folder + "/" + name;
    }
    // The chooser has asked about the name without the ending.
    const QString path = folder + "/" + name + ".xml";
    const QString question = tr("\"%1\" exists in this folder. Replace it?").arg(name + ".xml");
    const bool replaces = QFileInfo::exists(path);
    return !replaces ||
                   QMessageBox::question(this, tr("ORNA Warning"), question) == QMessageBox::Yes
               ? path
               : QString();
}

} // namespace TARN
