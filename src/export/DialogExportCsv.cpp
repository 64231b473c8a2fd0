#include "export/DialogExportCsv.h"

#include "base/Property.h"
#include "export/ExportTarget.h"
#include "export/WidgetTimeRange.h"
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
    mOptions.fileName = DialogExportCsv::withExtension(mOptions.fileName, type);
    mFile->setText(QString::fromStdString(mOptions.fileName));
}

DialogExportCsvOptions::DialogExportCsvOptions(CsvExportOptions& options)
    : mOptions(options), mLimiter(new QwtComboBox(this, 0)), mResolution(new QwtComboBox(this, 1)),
      mParameter(new QwtComboBox(this, 2)),
      mTimes(new WidgetTimeRange(options.startTime, options.stopTime, options.currentTime))
{
    setTitle(tr("CSV/CAN Export"));
    setSubTitle(tr("Select CSV/CAN Option"));
    fillBoxes();
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("Limiter"), mLimiter);
    layout->addRow(tr("Resolution"), mResolution);
    layout->addRow(tr("Parameter Selection"), mParameter);
    layout->addRow(mTimes);
    connect(mLimiter, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotLimiter);
    connect(mResolution, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotResolution);
    connect(mParameter, qOverload<int>(&QwtComboBox::signalActivated), this,
            &DialogExportCsvOptions::slotParameter);
}

void DialogExportCsvOptions::fillBoxes()
{
    mLimiter->addItem(tr("Semikolon ;"), ';');
    mLimiter->addItem(tr("Comma ,"), ',');
    mLimiter->addItem(tr("Tabstop"), '\t');
    mLimiter->setToolTip(tr("Stands between two columns"));
    mResolution->addItem(tr("100 ms"), 100);
    mResolution->addItem(tr("10 ms"), 10);
    mResolution->addItem(tr("1 ms"), 1);
    mResolution->setToolTip(tr("Time from row to row"));
    mParameter->addItem(tr("All Parameter"), 1);
    mParameter->addItem(tr("Selected Parameter only"), 0);
    mParameter->setToolTip(tr("Columns of the table"));
}

void DialogExportCsvOptions::initializePage()
{
    mLimiter->setData(mOptions.separator);
    mResolution->setData(mOptions.resolution);
    mParameter->setData(mOptions.allParameters ? 1 : 0);
    mTimes->showTimes();
    const bool isTable = mOptions.fileType == CsvExportOptions::Csv;
    for (QWidget* box : {mLimiter, mResolution, mParameter}) {
        box->setEnabled(isTable); // an excerpt holds every sample as it is
    }
}

bool DialogExportCsvOptions::validatePage()
{
    return mTimes->check();
}

void DialogExportCsvOptions::slotLimiter(int code)
{
    mOptions.separator = static_cast<char>(code);
}

void DialogExportCsvOptions::slotResolution(int milliseconds)
{
    mOptions.resolution = milliseconds;
}

void DialogExportCsvOptions::slotParameter(int all)
{
    mOptions.allParameters = all != 0;
}

DialogExportCsv::DialogExportCsv(QWidget* parent) : QWizard(parent)
{
    setWindowTitle(tr("CSV Export"));
    addPage(new DialogExportCsvPath(mOptions));
    addPage(new DialogExportCsvOptions(mOptions));
}

int DialogExportCsv::getOptions(CsvExportOptions& options)
{
    mOptions = options;
    loadSettings();
    restart();
    const int result = exec();
    storeSettings();
    options = mOptions;
    return result;
}

std::string DialogExportCsv::withExtension(const std::string& fileName, int fileType)
{
    const std::string base =
        fileName.empty() ? "ExportOrna" : fileName.substr(0, fileName.rfind('.'));
    return base + (fileType == CsvExportOptions::Can ? ".CAN" : ".csv");
}

void DialogExportCsv::loadSettings()
{
    const Property* settings = Property::instance();
    const int limiter = settings->getInt("CsvLimiter", ';');
    const int resolution = settings->getInt("CsvResolution", 100);
    mOptions.directory = settings->getString("CsvExportDir", ".");
    mOptions.separator = limiter == ',' || limiter == '\t' ? static_cast<char>(limiter) : ';';
    mOptions.fileType =
        settings->getInt("CsvCan", 0) == 1 ? CsvExportOptions::Can : CsvExportOptions::Csv;
    // A damaged setting must not become a grid of no width.
    mOptions.resolution = resolution == 10 || resolution == 1 ? resolution : 100;
    mOptions.allParameters = settings->getSwitch("CsvAllParameter", true);
}

void DialogExportCsv::storeSettings() const
{
    Property* settings = Property::instance();
    settings->setString("CsvExportDir", mOptions.directory);
    settings->setInt("CsvLimiter", mOptions.separator);
    settings->setInt("CsvCan", mOptions.fileType);
    settings->setInt("CsvResolution", mOptions.resolution);
    settings->setSwitch("CsvAllParameter", mOptions.allParameters);
    settings->writeXmlFile();
}

} // namespace TARN
