#include "export/DialogExportKmlPlacemark.h"

#include "export/PageControls.h"
#include "widgets/ColorButton.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace TARN {

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
