#include "app/DialogAbout.h"
#include "app/DialogHelp.h"
#include "app/DialogMain.h"
#include "app/DialogPreferences.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "base/XmlHandler.h"
#include "display/DialogData.h"
#include "record/CardInfo.h"
#include "record/DialogCard.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QSplitter>

namespace TARN {

namespace {

constexpr const char* GeometryKey = "MainGeometry";
constexpr const char* PanesKey = "MainPanes";
constexpr const char* ViewKey = "MainView";

QByteArray storedState(const char* key)
{
    return QByteArray::fromBase64(
        QByteArray::fromStdString(Property::instance()->getString(key, "")));
}

void present(QDialog* dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

/// Name of an XML file's root element; empty when it is none.
QString rootName(const QString& path)
{
    XmlHandler xml;
    QDomDocument document;
    xml.xmlReadFile(document, path);
    return document.documentElement().tagName();
}

/// The local files and folders dragged that the window can open.
QStringList openablePaths(const QMimeData* data)
{
    QStringList paths;
    for (const QUrl& url : data->urls()) {
        const QFileInfo file(url.toLocalFile());
        if (url.isLocalFile() && (file.isDir() || isRecordingName(file.fileName()) ||
                                  file.fileName().endsWith(".xml"))) {
            paths.append(file.absoluteFilePath());
        }
    }
    return paths;
}

} // namespace

void DialogMain::showAbout()
{
    if (mAbout == nullptr) {
        mAbout = new DialogAbout(this);
    }
    present(mAbout);
}

void DialogMain::showHelp()
{
    if (mHelp == nullptr) {
        const std::string language = Property::instance()->getString("Locale", "us");
        mHelp = new DialogHelp(this, QString::fromStdString(language));
    }
    present(mHelp);
}

void DialogMain::showPreferences()
{
    if (mPreferences == nullptr) {
        mPreferences = new DialogPreferences(this);
        connect(mPreferences, &DialogPreferences::signalProfileFileChanged, this,
                &DialogMain::slotProfileFileChanged);
    }
    present(mPreferences);
}

/// Keeps size, panes and view for the next start.
void DialogMain::saveWindow() const
{
    Property* settings = Property::instance();
    settings->setString(GeometryKey, saveGeometry().toBase64().toStdString());
    settings->setString(PanesKey, mSplitter->saveState().toBase64().toStdString());
    settings->setInt(ViewKey, mData->currentView());
    settings->writeXmlFile();
}

void DialogMain::restoreWindow()
{
    restoreGeometry(storedState(GeometryKey));
    mSplitter->restoreState(storedState(PanesKey));
    mData->setCurrentView(Property::instance()->getInt(ViewKey, 0));
}

void DialogMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (!mBusy && !openablePaths(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void DialogMain::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    // Later, so that whoever dropped it need not wait for answers to questions.
    QTimer::singleShot(0, this, [this, paths = openablePaths(event->mimeData())] {
        if (!mBusy) {
            openDropped(paths);
        }
    });
}

void DialogMain::openDropped(const QStringList& paths)
{
    std::list<QString> recordings;
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir()) {
            openCard(path);
        } else if (isRecordingName(path)) {
            recordings.push_back(path);
        } else {
            openDroppedXml(path);
        }
    }
    if (!recordings.empty()) {
        openCard(recordings.front().section('/', 0, -2));
        mCard->selectRecords(recordings);
    }
}

void DialogMain::openDroppedXml(const QString& path)
{
    const QString root = rootName(path);
    if (root == "CanAerospaceProfile") {
        storeSetting("Profile", path);
        slotProfileFileChanged();
    } else if (root != "TarnProject") {
        mStatusBar->say(tr("\"%1\" is neither a project nor a profile.").arg(path));
    } else if (cleanup()) {
        openProject(path);
    }
}

} // namespace TARN
