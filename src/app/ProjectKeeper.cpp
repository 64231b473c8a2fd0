#include "app/ProjectKeeper.h"

#include "base/Property.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace TARN {

namespace {

constexpr const char* PathKey = "LastProjectPath";

QString lastPath()
{
    return QString::fromStdString(Property::instance()->getString(PathKey, "."));
}

void storePath(const QString& file)
{
    Property::instance()->setString(PathKey, file.toStdString());
    Property::instance()->writeXmlFile();
}

} // namespace

ProjectKeeper::ProjectKeeper(Session& session, QWidget& window)
    : QObject(&window), mSession(session), mWindow(window)
{
    connect(&session, &Session::ticksChanged, this, &ProjectKeeper::changed);
    connect(&session.looks(), &Looks::changed, this, &ProjectKeeper::changed);
}

bool ProjectKeeper::isEdited() const
{
    return !(mSession.ticks() == mSaved) || !(mSession.looks().now() == mSavedLooks);
}

bool ProjectKeeper::newProject()
{
    if (!askSaveProject()) {
        return false;
    }
    mProject.clear();
    take({});
    return true;
}

bool ProjectKeeper::openProject()
{
    if (!askSaveProject()) {
        return false;
    }
    const QString file = QFileDialog::getOpenFileName(&mWindow, tr("Open TARN Project"), lastPath(),
                                                      tr("Project Files (*.xml)"));
    return !file.isEmpty() && openProject(file);
}

bool ProjectKeeper::openProject(const QString& file)
{
    if (!reopen(file)) {
        warn(tr("\"%1\" is no project that can be read; the selection stays as it is.\nOpen a "
                "project file saved by this program.")
                 .arg(file));
        return false;
    }
    storePath(file);
    return true;
}

bool ProjectKeeper::reopen(const QString& file)
{
    Project project;
    if (!project.readProject(file.toStdString()) || !Project::isProject(file.toStdString())) {
        return false;
    }
    mProject = project;
    take(file);
    return true;
}

/// The project has been replaced; its selection is shown at once.
void ProjectKeeper::take(const QString& file)
{
    mFileName = file;
    mSaved = mProject.selection(*mSession.profile());
    mSavedLooks = mProject.looks();
    mSession.setTicks(mSaved);
    mSession.looks().set(mSavedLooks);
    mSession.confirm();
    Q_EMIT changed();
}

Selection ProjectKeeper::ticksFor(const Profile& profile)
{
    mProject.setSelection(*mSession.profile(), mSession.ticks());
    return mProject.selection(profile);
}

/// What was edited stays so; what the file selects is known by its names only.
void ProjectKeeper::profileReplaced()
{
    Project saved;
    if (mFileName.isEmpty() || !saved.readProject(mFileName.toStdString())) {
        saved.clear();
    }
    mSaved = saved.selection(*mSession.profile());
    Q_EMIT changed();
}

std::vector<std::string> ProjectKeeper::unknownNames() const
{
    return mSession.profile()->isLoaded() ? mProject.unknownNames(*mSession.profile())
                                          : std::vector<std::string>();
}

bool ProjectKeeper::askSaveProject()
{
    if (!isEdited()) {
        return true;
    }
    QMessageBox box(QMessageBox::Warning, tr("TARN Warning"),
                    tr("Current Project not saved !\nSave it now ?"), QMessageBox::NoButton,
                    &mWindow);
    QPushButton* yes = box.addButton(tr("Yes"), QMessageBox::YesRole);
    const QAbstractButton* no = box.addButton(tr("No"), QMessageBox::NoRole);
    const QAbstractButton* cancel = box.addButton(tr("Cancel"), QMessageBox::RejectRole);
    box.setDefaultButton(yes);
    box.exec();
    if (box.clickedButton() == cancel) {
        return false;
    }
    return box.clickedButton() == no || saveProject(false);
}

bool ProjectKeeper::saveProject(bool askName)
{
    if (!mSession.profile()->isLoaded()) {
        warn(tr("The project was not saved: no profile is loaded, so its parameters are not "
                "known.\nChoose a profile under Extras, Preferences."));
        return false;
    }
    QString file = mFileName;
    if (!file.isEmpty() && !askName && !Project::mayReplace(file.toStdString())) {
        warn(tr("\"%1\" is no project and is not replaced.\nChoose another name for the project.")
                 .arg(file));
        askName = true;
    }
    if (askName || file.isEmpty()) {
        file = askProjectName();
    }
    return !file.isEmpty() && write(file);
}

bool ProjectKeeper::write(const QString& file)
{
    mProject.setLooks(mSession.looks().now());
    if (!mProject.saveProject(file.toStdString(), *mSession.profile(), mSession.ticks())) {
        warn(tr("The project could not be written to \"%1\".\nThe old file is unchanged; save it "
                "in another folder.")
                 .arg(file));
        return false;
    }
    mFileName = file;
    mProject.setSelection(*mSession.profile(), mSession.ticks());
    mSaved = mSession.ticks();
    mSavedLooks = mSession.looks().now();
    storePath(file);
    Q_EMIT signalMessage(tr("Project saved: %1").arg(QFileInfo(file).absoluteFilePath()));
    Q_EMIT changed();
    return true;
}

QString ProjectKeeper::askProjectName()
{
    const QString file = QFileDialog::getSaveFileName(&mWindow, tr("Save TARN Project"), lastPath(),
                                                      tr("Project Files (*.xml)"));
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
                   QMessageBox::question(&mWindow, tr("ORNA Warning"), question) == QMessageBox::Yes
               ? path
               : QString();
}

void ProjectKeeper::warn(const QString& text)
{
    QMessageBox::warning(&mWindow, tr("ORNA Warning"), text);
}

} // namespace TARN
