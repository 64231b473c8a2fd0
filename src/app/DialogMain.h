#pragma once

#include "export/CsvExportOptions.h"
#include "export/ExportResult.h"
#include "export/KmlExportOptions.h"
#include "record/CardInfo.h"
#include "record/Record.h"

#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

#include <functional>
#include <list>
#include <map>

class DialogAbout;
class DialogHelp;
class QActionGroup;
class QSplitter;

namespace TARN {

class DialogCard;
class DialogData;
class DialogExportCsv;
class DialogExportKml;
class DialogPreferences;
class DialogProfile;
class DialogRecordDetails;
class DialogStatusBar;

/// The numbers by which commands are dispatched.
enum class ActionType
{
    NewProject = 0,
    OpenProject = 1,
    OpenCard = 2,
    SaveProject = 4,
    SaveProjectAs = 5,
    Quit = 6,
    About = 8,
    Help = 9,
    Preferences = 14,
    ExportKml = 16,
    ExportCsv = 17,
    RecordDetails = 18
};

/// The one top-level window. Owns the open recording, offers the commands, opens the last card
/// and project again after the start, and guards unsaved changes of the project. Card folders,
/// recordings and projects can be dropped on it.
class DialogMain : public QMainWindow
{
    Q_OBJECT

public:
    explicit DialogMain(QWidget* parent = nullptr);

    Record& record() { return mRecord; }

    /// Shows how much of a long operation is done and keeps the window painted meanwhile.
    void setProgress(int percent);

    /// Replaces what happens once the window has agreed to close; by default the process ends.
    void setEndProcess(std::function<void()> endProcess) { mEndProcess = std::move(endProcess); }

    /// Swallows Control+Z, with or without Shift, before any window of the program sees it.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void slotLoadRecord(const std::list<QString>& files);
    void slotLoadWaiting();
    void slotProfileChanged();
    void slotProfileFileChanged();
    void slotTimeout();
    void slotMenu(QAction* action);
    void slotMenuPrefAbout();
    /// Shows all about the files of the loaded recording, about those of the card when none is.
    void slotRecordDetails();
    /// The same about one file, loaded or not.
    void slotFileDetails(const QString& path);

private:
    void reportLoaded(bool complete);
    void showRecord();
    void updateViews(const std::function<void()>& work);
    void reportDamagedSettings();
    void createPanes();
    void createActions();
    void createMenu();
    void createToolbar();
    QAction* addCommand(ActionType type, const QString& text, const char* icon,
                        const QString& statusTip, const QKeySequence& shortcut = {});
    void updateEnabled();
    void updateTitle();
    void setEdited(bool edited);

    void loadProfile();
    void loadRecords(const QString& folder);
    void openCard();
    void openCard(const QString& folder);
    bool newProject();
    bool openProject();
    bool openProject(const QString& file);
    void projectReplaced();
    void quit();
    bool askSaveProject();
    bool saveProject(bool askName);
    QString askProjectName();
    bool cleanup();

    void showAbout();
    void showHelp();
    void showPreferences();
    void openDropped(const QStringList& paths);
    void openDroppedXml(const QString& path);
    static void storeSetting(const char* key, const QString& value);
    void saveWindow() const;
    void restoreWindow();

    template <typename Options>
    void presetOptions(Options& options) const;
    void exportKml();
    void exportCsv();
    ExportResult runExport(const std::function<ExportResult(const ExportProgress&)>& work);
    void reportExport(const ExportResult& result, const QString& path, const QString& title,
                      const QString& failure);

    bool mClosing = false;
    bool mPainted = false;
    bool mBusy = false;   ///< loading or exporting, while timers and drops still arrive
    bool mEdited = false; ///< the selection differs from the project file
    Record mRecord;
    std::list<QString> mWaiting; ///< recordings picked while something ran
    KmlExportOptions mKmlOptions;
    CsvExportOptions mCsvOptions;
    CardInfo mCardInfo;
    QString mProjectFile; ///< empty when no project file is known
    std::map<ActionType, QAction*> mActions;
    std::function<void()> mEndProcess;
    QActionGroup* mCommands;
    QSplitter* mSplitter;
    DialogCard* mCard;
    DialogProfile* mProfile;
    DialogData* mData;
    DialogExportKml* mKmlWizard;
    DialogExportCsv* mCsvWizard;
    DialogRecordDetails* mDetails;
    DialogStatusBar* mStatusBar;
    // Made when they are first asked for.
    DialogPreferences* mPreferences = nullptr;
    DialogAbout* mAbout = nullptr;
    DialogHelp* mHelp = nullptr;
    QTimer mTimer;
};

} // namespace TARN
