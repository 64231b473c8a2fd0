#pragma once

#include "export/CsvExportOptions.h"

#include <QtWidgets/QWizard>

class QLineEdit;

namespace TARN {

class DirectoryEdit;
class QwtComboBox;
class WidgetTimeRange;

/// Where the CSV or CAN file goes and which of the two it is.
class DialogExportCsvPath : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportCsvPath(CsvExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

private Q_SLOTS:
    void slotPath(const QString& path);
    void slotFile(const QString& file);
    void slotFileType(int type);

private:
    CsvExportOptions& mOptions;
    DirectoryEdit* mPath;
    QwtComboBox* mFileType;
    QLineEdit* mFile;
};

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

/// Collects the options of the CSV and the CAN export.
class DialogExportCsv : public QWizard
{
    Q_OBJECT

public:
    explicit DialogExportCsv(QWidget* parent = nullptr);

    /// Completes \p options from the settings and the user; the settings take what was chosen,
    /// also when the wizard is cancelled. The result is that of the dialog.
    int getOptions(CsvExportOptions& options);

    /// \p fileName with the extension of a file type; the default name when it is empty.
    static std::string withExtension(const std::string& fileName, int fileType);

private:
    void loadSettings();
    void storeSettings() const;

    CsvExportOptions mOptions;
};

} // namespace TARN
