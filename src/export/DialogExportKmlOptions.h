#pragma once

#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizardPage>

class QCheckBox;
class QGroupBox;
class QSpinBox;

namespace TARN {

class ColorButton;
class WidgetTimeRange;

/// How the path is drawn and from when to when.
class DialogExportKmlOptions : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportKmlOptions(KmlExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

private Q_SLOTS:
    void slotTimestamp(int milliseconds);
    void slotTimed(bool on);
    void slotLineWidth(int width);
    void slotLineColor(const QString& color);
    void slotPolygon(bool on);
    void slotPolygonColor(const QString& color);

private:
    QGroupBox* createLineBox();
    QGroupBox* createPolygonBox();

    KmlExportOptions& mOptions;
    QSpinBox* mTimestamp;
    QCheckBox* mTimed;
    QSpinBox* mLineWidth;
    ColorButton* mLineColor;
    QGroupBox* mPolygon;
    ColorButton* mPolygonColor;
    WidgetTimeRange* mTimes;
};

} // namespace TARN
