#include "app/DialogMain.h"

#include "app/Bundle.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "display/DialogData.h"
#include "export/DialogExportCsv.h"
#include "export/DialogExportKml.h"
#include "profile/DialogProfile.h"
#include "profile/Project.h"
#include "record/DialogCard.h"
#include "record/DialogRecordDetails.h"
#include "widgets/Kernel.h"
#include "widgets/WaitCursor.h"

#include <QtCore/QScopedValueRollback>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <cstdlib>
#include <utility>

namespace TARN {

DialogMain::DialogMain(QWidget* parent) : QMainWindow(parent), mEndProcess([] { std::exit(0); })
{
    createPanes();
    mKmlWizard = new DialogExportKml(this);
    mCsvWizard = new DialogExportCsv(this);
    mDetails = new DialogRecordDetails(this);
    mStatusBar = new DialogStatusBar(this);
    setStatusBar(mStatusBar);
    loadProfile();
    reportDamagedSettings();
    createActions();
    createMenu();
    createToolbar();
    setWindowIcon(QIcon(":/icons/orna.svg"));
    mRecord.setProgressListener([this](int percent) { setProgress(percent); });
    mTimer.setSingleShot(true);
    connect(&mTimer, &QTimer::timeout, this, &DialogMain::slotTimeout);
    setAcceptDrops(true);
    resize(1000, 800);
    restoreWindow();
    updateEnabled();
    updateTitle();
}

void DialogMain::createPanes()
{
    mCard = new DialogCard;
    mProfile = new DialogProfile(nullptr, *Profile::instance());
    mData = new DialogData;
    mData->setStyle(Kernel::instance()->getStyle2());
    auto* left = new QWidget;
    auto* layout = new QVBoxLayout(left);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(mCard, 2);
    layout->addWidget(mProfile, 3);
    mSplitter = new QSplitter;
    mSplitter->setStyle(Kernel::instance()->getStyle2());
    mSplitter->addWidget(left);
    mSplitter->addWidget(mData);
    mSplitter->setStretchFactor(0, 1);
    mSplitter->setStretchFactor(1, 2);
    mSplitter->setSizes({1000, 2000}); // only the ratio counts
    setCentralWidget(mSplitter);
    connect(mCard, &DialogCard::signalLoadRecord, this, &DialogMain::slotLoadRecord);
    connect(mCard, &DialogCard::signalDetails, this, &DialogMain::slotFileDetails);
    connect(mProfile, &DialogProfile::signalChanged, this, &DialogMain::slotProfileChanged);
    connect(mProfile, &DialogProfile::signalEdited, this, [this] { setEdited(true); });
    connect(mData, &DialogData::signalMessage, this,
            [this](const QString& text) { mStatusBar->say(text); });
}

void DialogMain::loadProfile()
{
    const QString file =
        QString::fromStdString(Property::instance()->getString("Profile", DefaultProfile));
    if (!Profile::instance()->loadProfile(inBundle(file))) {
        mStatusBar->say(tr("The profile \"%1\" could not be loaded: no parameters can be "
                           "shown. Choose another under Extras, Preferences.")
                            .arg(file));
    }
    mProfile->updateList();
    mData->loadProfile();
}

void DialogMain::loadRecords(const QString& folder)
{
    mCardInfo = readCard(folder);
    mCard->setCardInfo(mCardInfo);
    mCard->setIntegrity(mRecord.integrity());
}

/// The last card is opened once the window stands there: nobody should look at a grey one while
/// a slow card is read.
void DialogMain::paintEvent(QPaintEvent* event)
{
    constexpr int ReopenDelay = 20; // ms
    QMainWindow::paintEvent(event);
    if (!mPainted) {
        mPainted = true;
        mTimer.start(ReopenDelay);
    }
}

void DialogMain::slotTimeout()
{
    const Property* settings = Property::instance();
    loadRecords(QString::fromStdString(settings->getString("LastPath", ".")));
    const std::string project = settings->getString("LastProjectPath", ".");
    if (Project::instance()->readProject(project)) {
        mProjectFile = QString::fromStdString(project);
        mProfile->updateProject();
    }
    slotProfileChanged();
    setEdited(false);
}

void DialogMain::slotLoadRecord(const std::list<QString>& files)
{
    std::list<QString> paths = files;
    paths.remove(QString()); // detail lines name no file
    if (paths.empty()) {
        return;
    }
    if (mBusy) {
        constexpr int Later = 100; // ms
        mWaiting = paths;          // the last pick counts, once what runs has ended
        QTimer::singleShot(Later, this, &DialogMain::slotLoadWaiting);
        return;
    }
    mWaiting.clear();
    const QScopedValueRollback busy(mBusy, true);
    const WaitCursor waitCursor;
    setProgress(0);
    mData->updateRecord(nullptr); // the samples shown are about to go
    reportLoaded(mRecord.readRecordData(paths));
    mCard->setIntegrity(mRecord.integrity());
    showRecord();
    setProgress(100);
    updateEnabled();
}

void DialogMain::slotLoadWaiting()
{
    slotLoadRecord(std::exchange(mWaiting, {}));
}

void DialogMain::setProgress(int percent)
{
    mStatusBar->updateProgress(percent);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void DialogMain::slotProfileChanged()
{
    {
        const WaitCursor waitCursor;
        updateViews([this] { mData->updateProfile(); });
    }
    setEdited(true);
}

void DialogMain::slotProfileFileChanged()
{
    const WaitCursor waitCursor;
    const double time = mData->time();
    const bool hasSamples = !mRecord.recordData().empty();
    mStatusBar->say({}); // the old profile's failure
    Project::instance()->takeProfileData();
    mData->updateRecord(nullptr); // events and cells shown are those of the old profile
    loadProfile();
    Project::instance()->setProfileData();
    mProfile->updateProject();
    updateViews([this] { mData->updateProfile(); });
    if (hasSamples) {
        showRecord();
        mData->goTo(time);
    }
    updateEnabled();
    updateTitle();
}

void DialogMain::setEdited(bool edited)
{
    mEdited = edited;
    updateEnabled();
    updateTitle();
}

void DialogMain::updateEnabled()
{
    const bool hasSamples = !mRecord.recordData().empty();
    mActions.at(ActionType::ExportKml)->setEnabled(hasSamples);
    mActions.at(ActionType::ExportCsv)->setEnabled(hasSamples);
    mActions.at(ActionType::SaveProject)->setEnabled(mEdited);
}

void DialogMain::updateTitle()
{
    const QString name = mProjectFile.section('/', -1).section('.', 0, 0);
    setWindowTitle("ORNA " + name + (mEdited ? tr("[edited]") : QString()));
}

bool DialogMain::event(QEvent* event)
{
    if (event->type() == QEvent::StatusTip) {
        mStatusBar->showTip(static_cast<QStatusTipEvent*>(event)->tip());
        return true;
    }
    return QMainWindow::event(event);
}

bool DialogMain::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const auto modifiers = key->modifiers() & ~Qt::ShiftModifier;
        if (key->key() == Qt::Key_Z && !key->isAutoRepeat() && modifiers == Qt::ControlModifier) {
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

bool DialogMain::cleanup()
{
    return !mEdited || askSaveProject();
}

void DialogMain::closeEvent(QCloseEvent* event)
{
    if (mClosing) {
        return;
    }
    if (!cleanup()) {
        event->ignore();
        return;
    }
    saveWindow();
    mClosing = true;
    event->accept();
    // At once: nothing is left to save, and tearing down a large recording takes time.
    mEndProcess();
}

} // namespace TARN
