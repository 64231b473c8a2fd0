#pragma once

#include "export/CsvExportOptions.h"

#include <QtWidgets/QWizardPage>

class QLineEdit;

namespace TARN {

class DirectoryEdit;
class QwtComboBox;

/// Where the CSV or CAN file goes and which of the two it is.
class DialogExportCsvPath : public QWizardPage
{
    Q_OBJECT

public:
    explicit DialogExportCsvPath(CsvExportOptions& options);

    void initializePage() override;
    bool validatePage() override;

Q_SIGNALS:
    void fileTypeChanged();

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

} // namespace TARN
