#pragma once

#include "flight/Session.h"

#include <QtCore/QTimer>
#include <QtGui/QIcon>
#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <map>

class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace TARN {

/// Lets the user tick the parameters that views and exports work on. The views follow when the
/// selection is confirmed; while it differs from the ticks the button blinks.
class DialogProfile : public QWidget
{
    Q_OBJECT

public:
    explicit DialogProfile(Session& session, QWidget* parent = nullptr);

    /// Names of the project that the profile does not know, to be shown greyed.
    void setUnknownNames(const std::vector<std::string>& names);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private Q_SLOTS:
    void slotItemChanged(QTreeWidgetItem* item, int column);
    void slotTimeout();
    void slotClear();
    void slotConfirm();

private:
    void createControls();
    void updateList();
    void updateChecks();
    void updateBlinking();
    void addDevice(const ProfileDevice& device);

    Session& mSession;
    QPalette mNormalPalette;
    QPalette mAlertPalette;
    const QIcon mDeviceIcon{":/icons/device.svg"};
    const QIcon mParameterIcon{":/icons/parameter.svg"};
    bool mBlinkOn = false;
    bool mUpdating = false; ///< checks are changed by the program, not by the user
    QTimer mTimer;
    QPushButton* mClear;
    QPushButton* mConfirm;
    QTreeWidget* mTree;
    QTreeWidgetItem* mUnknown = nullptr;    ///< holds the unknown names; null when there are none
    std::map<int, QTreeWidgetItem*> mItems; ///< by the parameter's uid
};

} // namespace TARN
