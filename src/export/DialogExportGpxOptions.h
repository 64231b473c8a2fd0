#pragma once

#include "export/GpxExportOptions.h"

#include <QtWidgets/QWizardPage>

class QCheckBox;
class QSpinBox;

namespace TARN {

class WidgetTimeRange;

/// Which part of the flight becomes a track, and how dense.
class DialogExportGpxOptions : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportGpxOptions(GpxExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

private:
    GpxExportOptions& mOptions;
    QSpinBox* mTimestamp;
    QCheckBox* mWaypoints;
    WidgetTimeRange* mTimes;
};

} // namespace TARN
