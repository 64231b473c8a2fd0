#include "export/DialogExportKmlOptions.h"

#include "export/PageControls.h"
#include "export/WidgetTimeRange.h"
#include "widgets/ColorButton.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QSpinBox>

namespace TARN {

DialogExportKmlOptions::DialogExportKmlOptions(KmlExportOptions& options)
    : mOptions(options),
      mTimestamp(createSpinBox(100, 60000, 100, tr(" ms"), tr("One point of the path for each"))),
      mTimed(new QCheckBox(tr("Timed track"))), mTimes(new WidgetTimeRange(options))
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select KML Option"));
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Timestamp every :"), mTimestamp);
    layout->addRow(mTimed);
    layout->addRow(createLineBox());
    layout->addRow(createPolygonBox());
    layout->addRow(mTimes);
    mTimed->setToolTip(tr("Times and the selected values at each point, so that earth viewers can "
                          "play the flight; nothing is drawn over gaps"));
    connect(mTimestamp, &QSpinBox::valueChanged, this, &DialogExportKmlOptions::slotTimestamp);
    connect(mTimed, &QCheckBox::toggled, this, &DialogExportKmlOptions::slotTimed);
}

QGroupBox* DialogExportKmlOptions::createLineBox()
{
    mLineWidth = createSpinBox(1, 6, 1, QString(), tr("Width of the flight path"));
    mLineColor = createColorButton(tr("Select Line Color"));
    auto* box = new QGroupBox(tr("Line Style"));
    auto* layout = new QFormLayout(box);
    layout->addRow(tr("Line width"), mLineWidth);
    layout->addRow(tr("Line color"), mLineColor);
    connect(mLineWidth, &QSpinBox::valueChanged, this, &DialogExportKmlOptions::slotLineWidth);
    connect(mLineColor, &ColorButton::signalColor, this, &DialogExportKmlOptions::slotLineColor);
    return box;
}

QGroupBox* DialogExportKmlOptions::createPolygonBox()
{
    mPolygonColor = createColorButton(tr("Select Polygon Color"));
    mPolygon = new QGroupBox(tr("Draw Polygon"));
    mPolygon->setCheckable(true);
    mPolygon->setToolTip(tr("A curtain from the flight path to the ground"));
    auto* layout = new QFormLayout(mPolygon);
    layout->addRow(tr("Polygon color"), mPolygonColor);
    connect(mPolygon, &QGroupBox::toggled, this, &DialogExportKmlOptions::slotPolygon);
    connect(mPolygonColor, &ColorButton::signalColor, this,
            &DialogExportKmlOptions::slotPolygonColor);
    return mPolygon;
}

void DialogExportKmlOptions::initializePage()
{
    mTimestamp->setValue(mOptions.timeStamp);
    mTimed->setChecked(mOptions.isTimed);
    mLineWidth->setValue(mOptions.lineWidth);
    mLineColor->setColor(mOptions.lineColor);
    mPolygon->setChecked(mOptions.polygonOn);
    mPolygonColor->setColor(mOptions.polygonColor);
    mTimes->showTimes();
    // What the controls can't show, a damaged setting, is not exported either.
    mOptions.timeStamp = mTimestamp->value();
    mOptions.lineWidth = mLineWidth->value();
}

bool DialogExportKmlOptions::validatePage()
{
    return mTimes->check();
}

void DialogExportKmlOptions::slotTimestamp(int milliseconds)
{
    mOptions.timeStamp = milliseconds;
}

void DialogExportKmlOptions::slotTimed(bool on)
{
    mOptions.isTimed = on;
}

void DialogExportKmlOptions::slotLineWidth(int width)
{
    mOptions.lineWidth = width;
}

void DialogExportKmlOptions::slotLineColor(const QString& color)
{
    mOptions.lineColor = color.toStdString();
}

void DialogExportKmlOptions::slotPolygon(bool on)
{
    mOptions.polygonOn = on;
}

void DialogExportKmlOptions::slotPolygonColor(const QString& color)
{
    mOptions.polygonColor = color.toStdString();
}

} // namespace TARN
