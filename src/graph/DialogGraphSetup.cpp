#include "graph/DialogGraphSetup.h"

#include "widgets/Kernel.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QDoubleValidator>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace TARN {

DialogGraphSetup::DialogGraphSetup(QWidget* parent, GraphData& settings)
    : QDialog(parent), mData(settings), mLayout(new QGridLayout(this)),
      mBackColor(createColorButton(tr("Background color"))), mGridOn(new QCheckBox(tr("Grid On"))),
      mGridColor(createColorButton(tr("Grid color"))),
      mLabelColor(createColorButton(tr("Label color"))),
      mLabelBackColor(createColorButton(tr("Label background"))),
      mCursorOn(new QCheckBox(tr("Cursor On"))), mCursorMode(new QComboBox),
      mLegendOn(new QCheckBox(tr("Legend On"))), mAutoscaleOn(new QCheckBox(tr("Autoscale On"))),
      mYmin(createNumber(tr("Y minimum"))), mYmax(createNumber(tr("Y maximum"))),
      mTheme(createTheme(&GraphData::theme, tr("Colors of the plot"), false)),
      mPictureTheme(createTheme(&GraphData::pictureTheme, tr("Colors of pictures"), true)),
      mClose(new QPushButton(tr("Close")))
{
    setWindowTitle(tr("Oscilloscope Setup"));
    setWindowIcon(QIcon(":/icons/canGraph.svg"));
    createRows();
    connectControls();
    updateDialog();
}

QPushButton* DialogGraphSetup::createColorButton(const QString& name)
{
    auto* button = new QPushButton(tr("Select"));
    button->setStyle(Kernel::instance()->getStyle()); // some styles ignore a button's colour
    button->setAutoDefault(false);
    button->setAccessibleName(name);
    button->setToolTip(name);
    return button;
}

QLineEdit* DialogGraphSetup::createNumber(const QString& name)
{
    auto* edit = new QLineEdit;
    auto* validator = new QDoubleValidator(edit);
    validator->setLocale(QLocale::c());
    edit->setValidator(validator);
    edit->setAccessibleName(name);
    edit->setToolTip(tr("%1, used while autoscale is off").arg(name));
    return edit;
}

void DialogGraphSetup::createRows()
{
    mCursorMode->addItems({tr("Floating"), tr("Center"), tr("End")});
    mCursorMode->setAccessibleName(tr("Cursor mode"));
    mClose->setAutoDefault(false); // Enter in a line edit shall not close
    addRow(tr("Background Color :"), {mBackColor});
    addRow(tr("Grid On/Color :"), {mGridOn, mGridColor});
    addRow(tr("Label Color :"), {mLabelColor});
    addRow(tr("Label Background :"), {mLabelBackColor});
    addRow(tr("Cursor On/Mode :"), {mCursorOn, mCursorMode});
    addRow(tr("Legend :"), {mLegendOn});
    addRow(tr("Y-Scale :"), {mAutoscaleOn, mYmin, mYmax});
    addRow(tr("Colors/Of Pictures :"), {mTheme, mPictureTheme});
    createSwitches();
    mLayout->addWidget(mClose, mLayout->rowCount(), 3);
}

QComboBox* DialogGraphSetup::createTheme(GraphTheme GraphData::*theme, const QString& name,
                                         bool mayFollow)
{
    auto* box = new QComboBox;
    box->addItems({tr("Dark"), tr("Light"), tr("As the desktop")});
    if (mayFollow) {
        box->addItem(tr("As the graph"));
    }
    box->setAccessibleName(name);
    box->setToolTip(name);
    connect(box, &QComboBox::activated, this, [this, theme](int chosen) {
        mData.*theme = static_cast<GraphTheme>(chosen);
        Q_EMIT signalChanged();
    });
    return box;
}

void DialogGraphSetup::createSwitches()
{
    const struct
    {
        QString label;
        QString text;
        QString toolTip;
        bool GraphData::*on;
    } rows[] = {
        {tr("Thresholds :"), tr("Thresholds On"),
         tr("Lines and bands at the values where a range begins; a name stands on the color of the "
            "range that its value is in"),
         &GraphData::thresholdsOn},
        {tr("Events :"), tr("Events On"),
         tr("Ticks over the plot for limits, lamps and faults, bars for as long as a limit was "
            "exceeded"),
         &GraphData::eventsOn},
        {tr("Error Lanes :"), tr("Error Lanes On"),
         tr("The active errors of each error matrix below the curves"), &GraphData::lanesOn},
        {tr("States :"), tr("States in Words"), tr("Names of states beside their numbers"),
         &GraphData::wordsOn}};
    for (const auto& [label, text, toolTip, on] : rows) {
        auto* box = new QCheckBox(text);
        box->setToolTip(toolTip);
        connect(box, &QCheckBox::stateChanged, this,
                [this, on = on](int state) { storeSwitch(mData.*on, state); });
        mSwitches.push_back({box, on});
        addRow(label, {box});
    }
}

void DialogGraphSetup::addRow(const QString& label, std::initializer_list<QWidget*> controls)
{
    const int row = mLayout->rowCount();
    int column = 0;
    mLayout->addWidget(new QLabel(label), row, column);
    for (QWidget* control : controls) {
        mLayout->addWidget(control, row, ++column);
    }
}

void DialogGraphSetup::connectControls()
{
    using Setup = DialogGraphSetup;
    connect(mBackColor, &QPushButton::clicked, this, &Setup::slotBackgroundColor);
    connect(mGridOn, &QCheckBox::stateChanged, this, &Setup::slotGridOn);
    connect(mGridColor, &QPushButton::clicked, this, &Setup::slotGridColor);
    connect(mLabelColor, &QPushButton::clicked, this, &Setup::slotLabelColor);
    connect(mLabelBackColor, &QPushButton::clicked, this, &Setup::slotLabelBackColor);
    connect(mCursorOn, &QCheckBox::stateChanged, this, &Setup::slotCursorOn);
    connect(mCursorMode, &QComboBox::activated, this, &Setup::slotCursorMode);
    connect(mLegendOn, &QCheckBox::stateChanged, this, &Setup::slotLegendOn);
    connect(mAutoscaleOn, &QCheckBox::stateChanged, this, &Setup::slotAutoscaleOn);
    connect(mYmin, &QLineEdit::textEdited, this, &Setup::slotYmin);
    connect(mYmax, &QLineEdit::textEdited, this, &Setup::slotYmax);
    connect(mClose, &QPushButton::clicked, this, &Setup::slotClose);
}

void DialogGraphSetup::updateDialog()
{
    showColor(mBackColor, mData.backColor);
    showColor(mGridColor, mData.gridColor);
    showColor(mLabelColor, mData.labelColor);
    showColor(mLabelBackColor, mData.labelBackColor);
    const struct
    {
        QCheckBox* box;
        bool on;
    } boxes[] = {{mGridOn, mData.gridOn},
                 {mCursorOn, mData.cursorOn},
                 {mLegendOn, mData.legendOn},
                 {mAutoscaleOn, mData.autoScale}};
    for (const auto& [box, on] : boxes) {
        const QSignalBlocker blocker(box); // showing is no change
        box->setChecked(on);
    }
    for (const auto& [box, on] : mSwitches) {
        const QSignalBlocker blocker(box);
        box->setChecked(mData.*on);
    }
    mCursorMode->setCurrentIndex(mData.cursorMode);
    mTheme->setCurrentIndex(static_cast<int>(mData.theme));
    mPictureTheme->setCurrentIndex(static_cast<int>(mData.pictureTheme));
    mYmin->setText(QString("%1").arg(mData.yMin));
    mYmax->setText(QString("%1").arg(mData.yMax));
}

void DialogGraphSetup::showColor(QPushButton* button, const QString& name)
{
    const QColor color(name);
    QPalette palette = button->palette();
    palette.setColor(QPalette::Button, color);
    palette.setColor(QPalette::ButtonText, color.lightness() < 128 ? Qt::white : Qt::black);
    button->setPalette(palette);
}

void DialogGraphSetup::chooseColor(QString& name, const QString& title)
{
    const QColor color = QColorDialog::getColor(QColor(name), this, title);
    if (color.isValid()) {
        name = color.name();
    }
    Q_EMIT signalChanged();
    updateDialog();
}

void DialogGraphSetup::storeSwitch(bool& value, int state)
{
    value = state == Qt::Checked;
    Q_EMIT signalChanged();
}

void DialogGraphSetup::slotBackgroundColor()
{
    chooseColor(mData.backColor, tr("Background color"));
}

void DialogGraphSetup::slotGridOn(int state)
{
    storeSwitch(mData.gridOn, state);
}

void DialogGraphSetup::slotGridColor()
{
    chooseColor(mData.gridColor, tr("Grid color"));
}

void DialogGraphSetup::slotLabelColor()
{
    chooseColor(mData.labelColor, tr("Label color"));
}

void DialogGraphSetup::slotLabelBackColor()
{
    chooseColor(mData.labelBackColor, tr("Label background"));
}

void DialogGraphSetup::slotCursorOn(int state)
{
    storeSwitch(mData.cursorOn, state);
}

void DialogGraphSetup::slotCursorMode(int mode)
{
    mData.cursorMode = mode;
    Q_EMIT signalChanged();
}

void DialogGraphSetup::slotLegendOn(int state)
{
    storeSwitch(mData.legendOn, state);
}

void DialogGraphSetup::slotAutoscaleOn(int state)
{
    storeSwitch(mData.autoScale, state);
}

void DialogGraphSetup::slotYmin(const QString& text)
{
    mData.yMin = text.toDouble();
    Q_EMIT signalChanged();
}

void DialogGraphSetup::slotYmax(const QString& text)
{
    mData.yMax = text.toDouble();
    Q_EMIT signalChanged();
}

void DialogGraphSetup::slotClose()
{
    hide();
}

} // namespace TARN
