#include "export/DialogExportCsvPath.h"

#include "export/DirectoryEdit.h"
#include "export/TargetQuestion.h"
#include "widgets/QwtComboBox.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>

namespace TARN {

DialogExportCsvPath::DialogExportCsvPath(CsvExportOptions& options)
    : mOptions(options), mPath(new DirectoryEdit(tr("Save CSV/CAN Export"))),
      mFileType(new QwtComboBox(this, 0)), mFile(new QLineEdit)
{
    setTitle(tr("CSV/CAN Export"));
    setSubTitle(tr("Select the output directory and file"));
    mFileType->addItem(tr(".CSV Export"), CsvExportOptions::Csv);
    mFileType->addItem(tr(".CAN Export"), CsvExportOptions::Can);
    mFileType->setToolTip(tr("A table of decoded values, or a recording that can be opened again"));
    mFile->setToolTip(tr("Name of the file in this folder"));
    mFile->setObjectName("fileName");
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Export Path"), mPath);
    layout->addRow(tr("Export Type"), mFileType);
    layout->addRow(tr("Export Filename"), mFile);
    connect(mPath, &DirectoryEdit::signalPath, this, &DialogExportCsvPath::slotPath);
    connect(mFile, &QLineEdit::textEdited, this, &DialogExportCsvPath::slotFile);
    connect(mFileType, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvPath::slotFileType);
}

void DialogExportCsvPath::initializePage()
{
    mPath->setPath(mOptions.directory);
    mFileType->setData(mOptions.fileType);
    slotFileType(mOptions.fileType);
}

bool DialogExportCsvPath::validatePage()
{
    return confirmTarget(this, mOptions.directory, mOptions.fileName);
}

void DialogExportCsvPath::slotPath(const QString& path)
{
    mOptions.directory = path.toStdString();
}

void DialogExportCsvPath::slotFile(const QString& file)
{
    mOptions.fileName = file.toStdString();
}

void DialogExportCsvPath::slotFileType(int type)
{
    mOptions.fileType = type;
    mOptions.completeFileName();
    mFile->setText(QString::fromStdString(mOptions.fileName));
    Q_EMIT fileTypeChanged();
}

} // namespace TARN
