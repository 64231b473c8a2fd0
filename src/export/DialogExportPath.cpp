#include "export/DialogExportPath.h"

#include "export/DirectoryEdit.h"
#include "export/TargetQuestion.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

namespace TARN {

DialogExportPath::DialogExportPath(ExportOptions& options, const QString& title,
                                   const QString& chooser)
    : mOptions(options), mPath(new DirectoryEdit(chooser)), mFile(new QLineEdit)
{
    setTitle(title);
    setSubTitle(tr("Select the output directory and file"));
    mFile->setToolTip(tr("Name of the file in this folder"));
    mFile->setObjectName("fileName");
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Export Path"), mPath);
    layout->addRow(tr("Export Filename"), mFile);
    connect(mPath, &DirectoryEdit::signalPath, this, &DialogExportPath::slotPath);
    connect(mFile, &QLineEdit::textEdited, this, &DialogExportPath::slotFile);
}

void DialogExportPath::initializePage()
{
    mPath->setPath(mOptions.directory);
    mFile->setText(QString::fromStdString(mOptions.fileName));
}

bool DialogExportPath::validatePage()
{
    return confirmTarget(this, mOptions.directory, mOptions.fileName);
}

void DialogExportPath::slotPath(const QString& path)
{
    mOptions.directory = path.toStdString();
}

void DialogExportPath::slotFile(const QString& file)
{
    mOptions.fileName = file.toStdString();
}

} // namespace TARN
