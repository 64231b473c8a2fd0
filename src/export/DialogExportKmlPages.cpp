#include "export/DialogExportKml.h"
#include "export/ExportTarget.h"
#include "export/WidgetTimeRange.h"
#include "widgets/ColorButton.h"
#include "widgets/Kernel.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QSpinBox>

namespace TARN {

namespace {

QSpinBox* createSpinBox(int lowest, int highest, int step, const QString& suffix,
                        const QString& toolTip)
{
    auto* box = new QSpinBox;
    box->setRange(lowest, highest);
    box->setSingleStep(step);
    box->setSuffix(suffix);
    box->setToolTip(toolTip);
    return box;
}

ColorButton* createColorButton(const QString& title)
{
    auto* button = new ColorButton(title);
    button->setStyle(Kernel::instance()->getStyle());
    return button;
}

} // namespace

DialogExportKmlPath::DialogExportKmlPath(KmlExportOptions& options)
    : mOptions(options), mPath(new DirectoryEdit(tr("Save KML Export"))), mFile(new QLineEdit)
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select the output directory and file"));
    mFile->setToolTip(tr("Name of the file in this folder"));
    mFile->setObjectName("fileName");
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Export Path"), mPath);
    layout->addRow(tr("Export Filename"), mFile);
    connect(mPath, &DirectoryEdit::signalPath, this, &DialogExportKmlPath::slotPath);
    connect(mFile, &QLineEdit::textEdited, this, &DialogExportKmlPath::slotFile);
}

void DialogExportKmlPath::initializePage()
{
    mPath->setPath(mOptions.directory);
    mFile->setText(QString::fromStdString(mOptions.fileName));
}

bool DialogExportKmlPath::validatePage()
{
    return confirmTarget(this, mOptions.directory, mOptions.fileName);
}

void DialogExportKmlPath::slotPath(const QString& path)
{
    mOptions.directory = path.toStdString();
}

void DialogExportKmlPath::slotFile(const QString& file)
{
    mOptions.fileName = file.toStdString();
}

DialogExportKmlOptions::DialogExportKmlOptions(KmlExportOptions& options)
    : mOptions(options),
      mTimestamp(createSpinBox(100, 60000, 100, tr(" ms"), tr("One point of the path for each"))),
      mTimes(new WidgetTimeRange(options.startTime, options.stopTime, options.currentTime))
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select KML Option"));
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Timestamp every :"), mTimestamp);
    layout->addRow(createLineBox());
    layout->addRow(createPolygonBox());
    layout->addRow(mTimes);
    connect(mTimestamp, &QSpinBox::valueChanged, this, &DialogExportKmlOptions::slotTimestamp);
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

DialogExportKmlPlacemark::DialogExportKmlPlacemark(KmlExportOptions& options) : mOptions(options)
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select KML Placemarks"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(createPlacemarkBox());
    layout->addWidget(createErrorBox());
    layout->addStretch();
}

QGroupBox* DialogExportKmlPlacemark::createPlacemarkBox()
{
    mStep = createSpinBox(5, 600, 5, tr(" samples"), tr("Points of the path from mark to mark"));
    mPlacemarkColor = createColorButton(tr("Select Placemark Color"));
    mPlacemark = new QGroupBox(tr("Draw selected parameters as placemarks"));
    mPlacemark->setCheckable(true);
    auto* layout = new QFormLayout(mPlacemark);
    layout->addRow(tr("Placemark every"), mStep);
    layout->addRow(tr("Placemark Color"), mPlacemarkColor);
    connect(mPlacemark, &QGroupBox::toggled, this, &DialogExportKmlPlacemark::slotPlacemark);
    connect(mStep, &QSpinBox::valueChanged, this, &DialogExportKmlPlacemark::slotPlacemarkStep);
    connect(mPlacemarkColor, &ColorButton::signalColor, this,
            &DialogExportKmlPlacemark::slotPlacemarkColor);
    return mPlacemark;
}

QGroupBox* DialogExportKmlPlacemark::createErrorBox()
{
    mLimit = new QCheckBox(tr("Show"));
    mWarning = new QCheckBox(tr("Show"));
    mErrorColor = createColorButton(tr("Select Exceedance Color"));
    mError = new QGroupBox(tr("Show Limit exceedance / Warning Lamps"));
    mError->setCheckable(true);
    auto* layout = new QFormLayout(mError);
    layout->addRow(tr("Limit Exceedance"), mLimit);
    layout->addRow(tr("Warning Lamps"), mWarning);
    layout->addRow(tr("Exceedance Placemark Color"), mErrorColor);
    connect(mError, &QGroupBox::toggled, this, &DialogExportKmlPlacemark::slotError);
    connect(mLimit, &QCheckBox::toggled, this, &DialogExportKmlPlacemark::slotLimit);
    connect(mWarning, &QCheckBox::toggled, this, &DialogExportKmlPlacemark::slotWarning);
    connect(mErrorColor, &ColorButton::signalColor, this,
            &DialogExportKmlPlacemark::slotErrorColor);
    return mError;
}

void DialogExportKmlPlacemark::initializePage()
{
    mPlacemark->setChecked(mOptions.placeMarkOn);
    mStep->setValue(mOptions.placeMarkInterval);
    mOptions.placeMarkInterval = mStep->value();
    mPlacemarkColor->setColor(mOptions.placeMarkColor);
    mError->setChecked(mOptions.errorMarkOn);
    mLimit->setChecked(mOptions.showLimit);
    mWarning->setChecked(mOptions.showWarning);
    mErrorColor->setColor(mOptions.errorMarkColor);
}

void DialogExportKmlPlacemark::slotPlacemark(bool on)
{
    mOptions.placeMarkOn = on;
}

void DialogExportKmlPlacemark::slotPlacemarkStep(int step)
{
    mOptions.placeMarkInterval = step;
}

void DialogExportKmlPlacemark::slotPlacemarkColor(const QString& color)
{
    mOptions.placeMarkColor = color.toStdString();
}

void DialogExportKmlPlacemark::slotError(bool on)
{
    mOptions.errorMarkOn = on;
}

void DialogExportKmlPlacemark::slotLimit(bool on)
{
    mOptions.showLimit = on;
}

void DialogExportKmlPlacemark::slotWarning(bool on)
{
    mOptions.showWarning = on;
}

void DialogExportKmlPlacemark::slotErrorColor(const QString& color)
{
    mOptions.errorMarkColor = color.toStdString();
}

} // namespace TARN
