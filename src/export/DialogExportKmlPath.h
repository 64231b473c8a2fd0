#pragma once

#include "export/KmlExportOptions.h"

#include <QtWidgets/QWizardPage>

class QLineEdit;

namespace TARN {

class DirectoryEdit;

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

} // namespace TARN
