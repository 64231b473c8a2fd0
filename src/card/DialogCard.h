#pragma once

#include "flight/Overview.h"
#include "record/FlightGroups.h"
#include "record/RecordIntegrity.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <list>

class QLabel;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;

namespace TARN {

/// Lists the recordings of a card folder with what their headers say and what they hold, and
/// announces those that the user picks. Recordings that make one flight stand below a line that
/// picks them all; those of several flights are laid over each other only if the user says so.
class DialogCard : public QWidget
{
    Q_OBJECT

public:
    explicit DialogCard(QWidget* parent = nullptr);

    void setCardInfo(const CardInfo& info);
    void updateInfo();

    /// Picks recordings as clicks on them do; those that are not listed are left out.
    void selectRecords(const std::list<QString>& paths);

    /// Shows these as picked, without announcing them: what was asked for last did not load. Does
    /// nothing where others were picked just now.
    void showLoaded(const std::list<QString>& paths);

    /// Adds what reading their samples has shown to the tool tips of the files read.
    void setIntegrity(const RecordIntegrity& integrity);

    /// Forgets what recordings hold: it is of another profile.
    void clearOverviews();
    /// What recordings hold, or those of a flight together; nothing where they were not looked
    /// into.
    void setOverview(const std::list<QString>& files, const std::optional<Overview>& overview);

Q_SIGNALS:
    /// Half a second after the last change of the selection. A selected detail line contributes
    /// an empty path.
    void signalLoadRecord(const std::list<QString>& files);

    /// The user wants to compare with these.
    void signalLoadReference(const std::list<QString>& files);

    /// The user wants to know all about the recording of this path; empty when none is current.
    void signalDetails(const QString& path);

private Q_SLOTS:
    void slotSelect();
    void slotTimeout();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void createCommands();
    static QString toolTipOf(const RecordInfo& info, const QStringList& remarks);
    const QTreeWidgetItem* currentLine() const;
    void askDetails();
    void addFlight(const FlightGroup& group);
    void addRecord(const QString& path, const RecordInfo& info);
    QTreeWidgetItem* itemOf(const std::list<QString>& files) const;
    bool isSureOfFlights();
    void addDetails(QTreeWidgetItem* item, const RecordInfo& info);

    CardInfo mCardInfo;
    std::list<QString> mSelected;
    QTimer mTimer;
    QLineEdit* mFolder;
    QTreeWidget* mTree;
    QLabel* mHint; ///< where there are no recordings: how to get some
};

} // namespace TARN
