#include "export/DialogExportGpxOptions.h"

#include "export/PageControls.h"
#include "export/WidgetTimeRange.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>

namespace TARN {

DialogExportGpxOptions::DialogExportGpxOptions(GpxExportOptions& options)
    : mOptions(options),
      mTimestamp(createSpinBox(100, 60000, 100, tr(" ms"), tr("One point of the track for each"))),
      mWaypoints(new QCheckBox(tr("Waypoints at limits and lamps"))),
      mTimes(new WidgetTimeRange(options))
{
    setTitle(tr("GPX Export"));
    setSubTitle(tr("Select GPX Option"));
    mWaypoints->setToolTip(tr("Where limits were exceeded and warning lamps came on"));
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Timestamp every :"), mTimestamp);
    layout->addRow(mWaypoints);
    layout->addRow(mTimes);
    connect(mTimestamp, &QSpinBox::valueChanged, this,
            [this](int milliseconds) { mOptions.timeStamp = milliseconds; });
    connect(mWaypoints, &QCheckBox::toggled, this, [this](bool on) { mOptions.waypoints = on; });
}

void DialogExportGpxOptions::initializePage()
{
    mTimestamp->setValue(mOptions.timeStamp);
    mOptions.timeStamp = mTimestamp->value();
    mWaypoints->setChecked(mOptions.waypoints);
    mTimes->showTimes();
}

bool DialogExportGpxOptions::validatePage()
{
    return mTimes->check();
}

} // namespace TARN
