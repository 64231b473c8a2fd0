#include "export/DialogExportKmlPath.h"

#include "export/DirectoryEdit.h"
#include "export/TargetQuestion.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

namespace TARN {

DialogExportKmlPath::DialogExportKmlPath(KmlExportOptions& options)
    : mOptions(options), mPath(new DirectoryEdit(tr("Save KML Export"))), mFile(new QLineEdit)
{
    setTitle(tr("KML Export"));
    setSubTitle(tr("Select the output directory and file"));
    mFile->setToolTip(tr("Name of the file in this folder"));
    mFile->setObjectName("fileName");
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Export Path"), mPath);
    layout->addRow(tr("Export Filename"), mFile);
    connect(mPath, &DirectoryEdit::signalPath, this, &DialogExportKmlPath::slotPath);
    connect(mFile, &QLineEdit::textEdited, this, &DialogExportKmlPath::slotFile);
}

void DialogExportKmlPath::initializePage()
{
    mPath->setPath(mOptions.directory);
    mFile->setText(QString::fromStdString(mOptions.fileName));
}

bool DialogExportKmlPath::validatePage()
{
    return confirmTarget(this, mOptions.directory, mOptions.fileName);
}

void DialogExportKmlPath::slotPath(const QString& path)
{
    mOptions.directory = path.toStdString();
}

void DialogExportKmlPath::slotFile(const QString& file)
{
    mOptions.fileName = file.toStdString();
}

} // namespace TARN
