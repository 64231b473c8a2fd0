#pragma once

#include "profile/Profile.h"

#include <QtCore/QTimer>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <map>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace TARN {

/// Lets the user tick the parameters that views and exports work on. A tick marks the parameter
/// in the profile at once; the views follow when the selection is confirmed, and until then the
/// button blinks. Holds pointers into the profile: call updateList() after every load.
class DialogProfile : public QWidget
{
    Q_OBJECT

public:
    DialogProfile(QWidget* parent, Profile& profile);

    void updateList();
    void updateProfile(QTreeWidget* tree, ProfileInfo& info);
    void addParameter(QTreeWidgetItem* deviceItem, ProfileParameter& parameter);

    /// Shows the marks that the profile's parameters have now.
    void updateProject();

Q_SIGNALS:
    /// The selection was confirmed or cleared.
    void signalChanged();
    /// A parameter was ticked or unticked.
    void signalEdited();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private Q_SLOTS:
    void slotItemChanged(QTreeWidgetItem* item, int column);
    void slotTimeout();
    void slotClear();
    void slotConfirm();

private:
    void createControls();

    Profile& mProfile;
    QPalette mNormalPalette;
    QPalette mAlertPalette;
    bool mBlinkOn = false;
    bool mUpdating = false;
    QTimer mTimer;
    QPushButton* mClear;
    QPushButton* mConfirm;
    QTreeWidget* mTree;
    std::map<QString, QTreeWidgetItem*> mItems; ///< by the parameter's full name
};

} // namespace TARN

Q_DECLARE_METATYPE(TARN::ProfileParameter*)
