#pragma once

#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizard>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QSpinBox;

namespace TARN {

class ColorButton;
class DirectoryEdit;
class WidgetTimeRange;

/// Where the KML file goes.
class DialogExportKmlPath : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportKmlPath(KmlExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

private Q_SLOTS:
    void slotPath(const QString& path);
    void slotFile(const QString& file);

private:
    KmlExportOptions& mOptions;
    DirectoryEdit* mPath;
    QLineEdit* mFile;
};

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
    void slotLineWidth(int width);
    void slotLineColor(const QString& color);
    void slotPolygon(bool on);
    void slotPolygonColor(const QString& color);

private:
    QGroupBox* createLineBox();
    QGroupBox* createPolygonBox();

    KmlExportOptions& mOptions;
    QSpinBox* mTimestamp;
    QSpinBox* mLineWidth;
    ColorButton* mLineColor;
    QGroupBox* mPolygon;
    ColorButton* mPolygonColor;
    WidgetTimeRange* mTimes;
};

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

/// Collects the options of the KML export.
class DialogExportKml : public QWizard
{
    Q_OBJECT

public:
    explicit DialogExportKml(QWidget* parent = nullptr);

    /// Completes \p options from the settings and the user; the settings take what was chosen,
    /// also when the wizard is cancelled. The result is that of the dialog.
    int getOptions(KmlExportOptions& options);

private:
    void loadSettings();
    void storeSettings() const;

    KmlExportOptions mOptions;
};

} // namespace TARN
