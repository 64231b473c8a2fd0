#pragma once

#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizardPage>

class QCheckBox;
class QGroupBox;
class QSpinBox;

namespace TARN {

class ColorButton;

/// Which marks stand along the path.
class DialogExportKmlPlacemark : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportKmlPlacemark(KmlExportOptions& options);

    void initializePage() override;

private Q_SLOTS:
    void slotPlacemark(bool on);
    void slotPlacemarkStep(int step);
    void slotPlacemarkColor(const QString& color);
    void slotError(bool on);
    void slotLimit(bool on);
    void slotWarning(bool on);
    void slotErrorColor(const QString& color);

private:
    QGroupBox* createPlacemarkBox();
    QGroupBox* createErrorBox();

    KmlExportOptions& mOptions;
    QGroupBox* mPlacemark;
    QSpinBox* mStep;
    ColorButton* mPlacemarkColor;
    QGroupBox* mError;
    QCheckBox* mLimit;
    QCheckBox* mWarning;
    ColorButton* mErrorColor;
};

} // namespace TARN
