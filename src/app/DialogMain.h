#pragma once

#include "app/CommandSet.h"
#include "app/FlightLoader.h"
#include "flight/Session.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

#include <functional>

class QSplitter;

namespace TARN {

class CardOpener;
class CardOverview;
class DialogCard;
class DialogData;
class DialogProfile;
class DialogRecordDetails;
class DialogStatusBar;
class ExportRunner;
class OffsetKeeper;
class ProjectKeeper;
class ReferenceLoader;
class SmallWindows;
class WindowState;

/// The one top-level window: puts the parts of the program together and shows what they say.
class DialogMain : public QMainWindow
{
    Q_OBJECT

public:
    explicit DialogMain(QWidget* parent = nullptr);
    ~DialogMain() override;

    Session& session() { return mSession; }

    /// Replaces what happens once the window has agreed to close; by default the process ends.
    void setEndProcess(std::function<void()> endProcess) { mEndProcess = std::move(endProcess); }

    /// Swallows Control+Z, with or without Shift, before any window of the program sees it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void createPanes();
    void connectLoading();
    void connectProject();
    void connectExports();
    void connectReference();
    void connectDrops();
    void run(ActionType type);
    void openCard(const QString& folder, bool remember);
    void openRecordings(const std::list<QString>& files);
    void chooseProfile(const QString& file);
    void takeProfile(const FlightLoader::Understood& understood);
    void reopen();
    void updateTitle();
    bool mayClose();

    bool mClosing = false;     ///< the window has agreed to close
    bool mClosesLater = false; ///< once the export that runs is complete
    bool mPainted = false;
    bool mHasProfile = false; ///< of the start, loaded or not
    bool mReopened = false;   ///< the last card and project were opened again
    Session mSession;
    std::list<QString> mToPick; ///< recordings to be picked once their card is listed
    std::function<void()> mEndProcess;
    CommandSet* mCommands;
    QSplitter* mSplitter;
    DialogCard* mCard;
    DialogProfile* mProfile;
    DialogData* mData;
    DialogStatusBar* mStatusBar;
    DialogRecordDetails* mDetails;
    CardOpener* mOpener;
    CardOverview* mOverview;
    FlightLoader* mLoader;
    ReferenceLoader* mReference;
    OffsetKeeper* mOffset;
    ProjectKeeper* mProject;
    ExportRunner* mExports;
    SmallWindows* mSmallWindows;
    std::unique_ptr<WindowState> mState;
};

} // namespace TARN
