#pragma once

#include "graph/GraphData.h"

#include <QtWidgets/QDialog>

#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;

namespace TARN {

/// Edits the settings of the graph in place. Every change takes effect at once.
class DialogGraphSetup : public QDialog
{
    Q_OBJECT

public:
    /// \p settings outlive the dialog.
    DialogGraphSetup(QWidget* parent, GraphData& settings);

    /// Shows the settings as they are.
    void updateDialog();

Q_SIGNALS:
    /// A setting was changed.
    void signalChanged();

private Q_SLOTS:
    void slotBackgroundColor();
    void slotGridOn(int state);
    void slotGridColor();
    void slotLabelColor();
    void slotLabelBackColor();
    void slotCursorOn(int state);
    void slotCursorMode(int mode);
    void slotLegendOn(int state);
    void slotAutoscaleOn(int state);
    void slotYmin(const QString& text);
    void slotYmax(const QString& text);
    void slotClose();

private:
    /// A check box of a setting without a slot of its own.
    struct Switch
    {
        QCheckBox* box;
        bool GraphData::*on;
    };

    QComboBox* createTheme(GraphTheme GraphData::*theme, const QString& name, bool mayFollow);
    void createSwitches();
    void addRow(const QString& label, std::initializer_list<QWidget*> controls);
    void createRows();
    void connectControls();
    QLineEdit* createNumber(const QString& name);
    QPushButton* createColorButton(const QString& name);
    void chooseColor(QString& name, const QString& title);
    void storeSwitch(bool& value, int state);
    void showColor(QPushButton* button, const QString& name);

    GraphData& mData;
    QGridLayout* mLayout;
    QPushButton* mBackColor;
    QCheckBox* mGridOn;
    QPushButton* mGridColor;
    QPushButton* mLabelColor;
    QPushButton* mLabelBackColor;
    QCheckBox* mCursorOn;
    QComboBox* mCursorMode;
    QCheckBox* mLegendOn;
    QCheckBox* mAutoscaleOn;
    QLineEdit* mYmin;
    QLineEdit* mYmax;
    QComboBox* mTheme;
    QComboBox* mPictureTheme;
    std::vector<Switch> mSwitches;
    QPushButton* mClose;
};

} // namespace TARN
