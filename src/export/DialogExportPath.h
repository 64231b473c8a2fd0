#pragma once

#include "export/ExportOptions.h"

#include <QtWidgets/QWizardPage>

class QLineEdit;

namespace TARN {

class DirectoryEdit;

/// Where the file of an export goes.
class DialogExportPath : public QWizardPage
{
    Q_OBJECT

public:
    /// \p chooser is the title of the folder chooser.
    DialogExportPath(ExportOptions& options, const QString& title, const QString& chooser);

    void initializePage() override;
    bool validatePage() override;

private Q_SLOTS:
    void slotPath(const QString& path);
    void slotFile(const QString& file);

private:
    ExportOptions& mOptions;
    DirectoryEdit* mPath;
    QLineEdit* mFile;
};

} // namespace TARN
