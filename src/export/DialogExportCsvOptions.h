#pragma once

#include "export/CsvExportOptions.h"

#include <QtWidgets/QWizardPage>

namespace TARN {

class QwtComboBox;
class WidgetTimeRange;

/// How the table is written and from when to when.
class DialogExportCsvOptions : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportCsvOptions(CsvExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

private Q_SLOTS:
    void slotLimiter(int code);
    void slotResolution(int milliseconds);
    void slotParameter(int all);

private:
    void fillBoxes();

    CsvExportOptions& mOptions;
    QwtComboBox* mLimiter;
    QwtComboBox* mResolution;
    QwtComboBox* mParameter;
    WidgetTimeRange* mTimes;
};

} // namespace TARN
