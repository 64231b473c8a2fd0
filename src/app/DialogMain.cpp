#include "app/DialogMain.h"

#include "app/Bundle.h"
#include "app/CardOpener.h"
#include "app/CardOverview.h"
#include "app/CloseQuestion.h"
#include "app/DialogData.h"
#include "app/DialogStatusBar.h"
#include "app/DropHandler.h"
#include "app/ExportRunner.h"
#include "app/LogbookKeeper.h"
#include "app/ProjectKeeper.h"
#include "app/ReferenceLoader.h"
#include "app/SmallWindows.h"
#include "app/StartMessages.h"
#include "app/WindowState.h"
#include "base/CountText.h"
#include "base/Property.h"
#include "card/DialogCard.h"
#include "card/DialogRecordDetails.h"
#include "flight/OffsetKeeper.h"
#include "record/RecordText.h"
#include "selection/DialogProfile.h"
#include "widgets/ActivityBar.h"
#include "widgets/Kernel.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QShortcut>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <cstdio>
#include <cstdlib>
#include <utility>

namespace TARN {

namespace {

/// At once: nothing is left to save, tearing down a large recording takes time, and a thread may
/// hang in a card that does not answer.
void endProcess()
{
    std::fflush(nullptr);
    std::_Exit(0);
}

QString setting(const char* key, const char* def)
{
    return QString::fromStdString(Property::instance()->getString(key, def));
}

void storeSetting(const char* key, const QString& value)
{
    Property::instance()->setString(key, value.toStdString());
    Property::instance()->writeXmlFile();
}

} // namespace

DialogMain::DialogMain(QWidget* parent)
    : QMainWindow(parent), mEndProcess(endProcess), mCommands(new CommandSet(*this)),
      mStatusBar(new DialogStatusBar(this)), mDetails(new DialogRecordDetails(this)),
      mOpener(new CardOpener(this)), mLoader(new FlightLoader(mSession, this)),
      mReference(new ReferenceLoader(mSession, this)), mOffset(new OffsetKeeper(mSession, this)),
      mProject(new ProjectKeeper(mSession, *this)), mExports(new ExportRunner(mSession, *this)),
      mSmallWindows(new SmallWindows(mSession, *this))
{
    setStatusBar(mStatusBar);
    createPanes();
    connect(mCommands, &CommandSet::triggered, this, &DialogMain::run);
    connectLoading();
    connectProject();
    connectExports();
    connectReference();
    connectDrops();
    connect(mSmallWindows, &SmallWindows::profileFileChanged, this,
            [this] { chooseProfile(setting("Profile", DefaultProfile)); });
    connect(mSmallWindows, &SmallWindows::flightWanted, this, &DialogMain::openRecordings);
    connect(mSmallWindows, &SmallWindows::referenceWanted, mReference, &ReferenceLoader::load);
    const auto* keeper = new LogbookKeeper(mSession, this);
    connect(keeper, &LogbookKeeper::signalMessage, mStatusBar, &DialogStatusBar::sayAlso);
    connect(keeper, &LogbookKeeper::signalAdded, mSmallWindows, &SmallWindows::refreshLogbook);
    connect(mSmallWindows, &SmallWindows::allDigitsChanged, &mSession.switches().allDigits,
            &Switch::turn);
    setWindowIcon(QIcon(":/icons/orna.svg"));
    mState = std::make_unique<WindowState>(*this, *mSplitter, *mData);
    mState->restore();
    mSession.switches().allDigits.turn(Property::instance()->getSwitch("AllDigits", false));
    mStatusBar->say(startMessages());
    updateTitle();
    mLoader->loadProfile(inBundle(setting("Profile", DefaultProfile)));
}

DialogMain::~DialogMain() = default;

void DialogMain::createPanes()
{
    mCard = new DialogCard;
    mOverview = new CardOverview(mSession, *mCard, this);
    mProfile = new DialogProfile(mSession);
    mData = new DialogData(mSession);
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
    connect(mCard, &DialogCard::signalDetails, this, [this](const QString& path) {
        mDetails->showFile(path, mSession.flight().get(), mOpener->card());
    });
    connect(mData, &DialogData::signalMessage, mStatusBar, &DialogStatusBar::say);
    connect(mData, &DialogData::signalLink, mSmallWindows, &SmallWindows::showPreferences);
    connect(mData, &DialogData::signalRemarks, this, [this] { run(ActionType::RecordDetails); });
    connect(mOffset, &OffsetKeeper::failed, this, [this] {
        mStatusBar->say(tr("The offset could not be saved on the card (is it write-protected?) "
                           "and holds until the program ends."));
    });
}

void DialogMain::connectLoading()
{
    ActivityBar& bar = mStatusBar->loading();
    connect(mCard, &DialogCard::signalLoadRecord, mLoader, &FlightLoader::load);
    connect(&bar, &ActivityBar::cancelled, mLoader, &FlightLoader::cancel);
    auto* escape = new QShortcut(Qt::Key_Escape, this);
    connect(escape, &QShortcut::activated, mLoader, &FlightLoader::cancel);
    connect(escape, &QShortcut::activated, mReference, &ReferenceLoader::cancel);
    connect(mLoader, &FlightLoader::started, this,
            [&bar](double samples) { bar.begin(tr("Loading"), samples, tr("%1 samples/s")); });
    connect(mLoader, &FlightLoader::progressed, &bar, &ActivityBar::setProgress);
    connect(mLoader, &FlightLoader::finished, this, [this, &bar] {
        bar.finish();
        mCard->setIntegrity(mSession.flight()->record()->integrity());
        mStatusBar->say(loadedMessage(*mSession.flight()));
    });
    connect(mLoader, &FlightLoader::failed, this, [this, &bar](const QString& reason) {
        bar.abandon();
        mStatusBar->say(reason.isEmpty() ? tr("Loading was cancelled.")
                                         : tr("Not loaded: %1").arg(reason));
        mCard->showLoaded(filesOf(mSession.flight().get())); // a click on the others tries again
    });
    connect(mLoader, &FlightLoader::profileReady, this, &DialogMain::takeProfile);
    connect(mOpener, &CardOpener::listed, this, [this] {
        mCard->setCardInfo(mOpener->card());
        mCard->selectRecords(std::exchange(mToPick, {}));
        mOverview->look(mOpener->card());
    });
}

void DialogMain::connectProject()
{
    connect(mProject, &ProjectKeeper::changed, this, [this] {
        updateTitle();
        mProfile->setUnknownNames(mProject->unknownNames());
    });
    connect(mProject, &ProjectKeeper::signalMessage, mStatusBar, &DialogStatusBar::say);
}

void DialogMain::connectExports()
{
    ActivityBar& bar = mStatusBar->exporting();
    const auto enable = [this] {
        for (const ActionType command : mExports->commands()) {
            mCommands->setEnabled(command, mExports->isPossible(command));
        }
    };
    connect(&mSession, &Session::flightChanged, this, enable);
    connect(&mSession, &Session::profileChanged, this, enable);
    connect(&bar, &ActivityBar::cancelled, mExports, &ExportRunner::cancel);
    connect(mExports, &ExportRunner::progressed, &bar, &ActivityBar::setProgress);
    connect(mExports, &ExportRunner::started, this, [&bar, enable](const QString& path) {
        bar.begin(tr("Exporting %1").arg(path.section('/', -1)));
        enable();
    });
    connect(mExports, &ExportRunner::finished, this,
            [this, &bar, enable](const QString& message, bool done) {
                bar.finish();
                mStatusBar->say(message);
                enable();
                if (std::exchange(mClosesLater, false) && done) {
                    close();
                }
            });
    enable();
}

void DialogMain::connectReference()
{
    ActivityBar& bar = mStatusBar->comparing();
    connect(mCard, &DialogCard::signalLoadReference, mReference, &ReferenceLoader::load);
    connect(&bar, &ActivityBar::cancelled, mReference, &ReferenceLoader::cancel);
    connect(mReference, &ReferenceLoader::started, this, [&bar](double samples) {
        bar.begin(tr("Loading the reference"), samples, tr("%1 samples/s"));
    });
    connect(mReference, &ReferenceLoader::progressed, &bar, &ActivityBar::setProgress);
    connect(mReference, &ReferenceLoader::finished, this, [this, &bar] {
        bar.finish();
        mStatusBar->say(referenceMessage(*mSession.reference().flight()));
    });
    connect(mReference, &ReferenceLoader::failed, this, [this, &bar](const QString& reason) {
        bar.abandon();
        mStatusBar->say(reason.isEmpty() ? tr("Loading the reference was cancelled.")
                                         : tr("No reference was loaded: %1").arg(reason));
    });
}

void DialogMain::connectDrops()
{
    auto* drops = new DropHandler(*this);
    connect(drops, &DropHandler::cardDropped, this,
            [this](const QString& folder) { openCard(folder, true); });
    connect(drops, &DropHandler::recordingsDropped, this, &DialogMain::openRecordings);
    connect(drops, &DropHandler::referenceDropped, mReference, &ReferenceLoader::load);
    connect(drops, &DropHandler::profileDropped, this, [this](const QString& file) {
        storeSetting("Profile", file);
        chooseProfile(file);
    });
    connect(drops, &DropHandler::projectDropped, this, [this](const QString& file) {
        if (mProject->askSaveProject()) {
            mProject->openProject(file);
        }
    });
    connect(drops, &DropHandler::otherDropped, this, [this](const QString& file) {
        mStatusBar->say(tr("\"%1\" is neither a project nor a profile.").arg(file));
    });
}

void DialogMain::run(ActionType type)
{
    switch (type) {
    case ActionType::NewProject:
        mProject->newProject();
        break;
    case ActionType::OpenProject:
        mProject->openProject();
        break;
    case ActionType::OpenCard: {
        const QString folder =
            QFileDialog::getExistingDirectory(this, tr("Open SD Card"), setting("LastPath", "."));
        if (!folder.isEmpty()) {
            openCard(folder, true);
        }
        break;
    }
    case ActionType::SaveProject:
    case ActionType::SaveProjectAs:
        mProject->saveProject(type == ActionType::SaveProjectAs);
        break;
    case ActionType::Quit:
        close();
        break;
    case ActionType::RecordDetails:
        if (!mDetails->showAll(mSession.flight().get(), mOpener->card())) {
            mStatusBar->say(tr("No recording is listed. Open a card first."));
        }
        break;
    default:
        mSmallWindows->show(type);
        mExports->start(type);
        break;
    }
}

/// The last card of the last session is not remembered anew.
void DialogMain::openCard(const QString& folder, bool remember)
{
    mOpener->open(folder);
    if (remember) {
        storeSetting("LastPath", folder);
        connect(
            mOpener, &CardOpener::listed, this,
            [this] {
                mStatusBar->say(tr("Recordings found: %1").arg(mOpener->card().records.size()));
            },
            Qt::SingleShotConnection);
    }
}

void DialogMain::openRecordings(const std::list<QString>& files)
{
    mToPick = files;
    openCard(files.front().section('/', 0, -2), true);
}

void DialogMain::chooseProfile(const QString& file)
{
    mStatusBar->say({}); // the old profile's failure
    mLoader->loadProfile(inBundle(file));
}

void DialogMain::takeProfile(const FlightLoader::Understood& understood)
{
    const auto& profile = understood.profile;
    if (!profile->isLoaded()) {
        mStatusBar->sayAlso(tr("The profile \"%1\" could not be loaded: no parameters can be "
                               "shown. Choose another under Extras, Preferences.")
                                .arg(profile->fileName()));
    }
    mSession.setProfile(profile, mProject->ticksFor(*profile), understood.flight,
                        understood.reference);
    mProject->profileReplaced();
    mHasProfile = true;
    reopen();
}

/// The last card and project, once they can be shown: nobody should look at a grey window while
/// a slow card is read.
void DialogMain::reopen()
{
    if (!mReopened && mPainted && mHasProfile) {
        mReopened = true;
        mProject->reopen(setting("LastProjectPath", "."));
        openCard(setting("LastPath", "."), false);
    }
}

void DialogMain::updateTitle()
{
    const bool isEdited = mProject->isEdited();
    const QString name = mProject->fileName().section('/', -1).section('.', 0, 0);
    setWindowTitle("ORNA " + name + (isEdited ? tr("[edited]") : QString()));
    mCommands->setEnabled(ActionType::SaveProject, isEdited);
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

void DialogMain::paintEvent(QPaintEvent* event)
{
    constexpr int ReopenDelay = 20; // ms
    QMainWindow::paintEvent(event);
    if (!mPainted) {
        mPainted = true;
        QTimer::singleShot(ReopenDelay, this, &DialogMain::reopen);
    }
}

/// Whether nothing unsaved is lost and no export is cut off; asks where it may be.
bool DialogMain::mayClose()
{
    mClosesLater = false;
    if (!mProject->askSaveProject()) {
        return false;
    }
    if (!mExports->isRunning()) {
        return true;
    }
    const OnClose choice = askOnClose(*this);
    if (choice == OnClose::Stop) {
        mExports->stop();
        return true;
    }
    mClosesLater = choice == OnClose::Wait && mExports->isRunning();
    return choice == OnClose::Wait && !mExports->isRunning();
}

void DialogMain::closeEvent(QCloseEvent* event)
{
    if (!mClosing && !mayClose()) {
        event->ignore();
        return;
    }
    mClosing = true;
    mOffset->finish();
    mState->save();
    event->accept();
    mEndProcess();
}

} // namespace TARN
