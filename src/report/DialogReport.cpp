#include "report/DialogReport.h"

#include "base/ClockTime.h"
#include "base/Property.h"
#include "export/DirectoryEdit.h"
#include "export/TargetQuestion.h"
#include "report/ExportReport.h"

#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

namespace TARN {

namespace {

QString rangeText(const QString& what, const TimeRange& range)
{
    return what.arg(clockText(range.start), clockText(range.stop));
}

} // namespace

DialogReport::DialogReport(QWidget* parent)
    : QDialog(parent), mFolder(new DirectoryEdit(tr("Folder of the Report"))), mFile(new QLineEdit),
      mKind(new QComboBox), mPaper(new QComboBox), mRange(new QComboBox),
      mOpens(new QCheckBox(tr("&Open it when it is written")))
{
    setWindowTitle(tr("Flight Report"));
    setWindowIcon(QIcon(":/icons/report.svg"));
    mFile->setObjectName("fileName");
    mFile->setToolTip(tr("Name of the file in this folder"));
    mKind->addItem(tr("Web page (HTML)"), ".html");
    mKind->addItem(tr("PDF"), ".pdf");
    mPaper->addItem("A4");
    mPaper->addItem("Letter");
    mPaper->setToolTip(tr("Size of the paper that it is printed on"));
    mRange->setToolTip(tr("A range is marked in the graph"));
    constexpr int LeastWidth = 480;
    setMinimumWidth(LeastWidth);
    auto* form = new QFormLayout(this);
    form->addRow(tr("&Folder"), mFolder);
    form->addRow(tr("File &Name"), mFile);
    form->addRow(tr("&Kind"), mKind);
    form->addRow(tr("&Paper"), mPaper);
    form->addRow(tr("&Range"), mRange);
    form->addRow(QString(), mOpens);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(tr("Write Report"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &DialogReport::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(mKind, &QComboBox::currentIndexChanged, this, &DialogReport::takeKind);
    connect(mFolder, &DirectoryEdit::signalPath, this,
            [this](const QString& path) { mOptions.directory = path.toStdString(); });
}

/// The name ends in what the kind is known by.
void DialogReport::takeKind()
{
    QString name = mFile->text();
    for (const char* ending : {".html", ".htm", ".pdf"}) {
        if (name.endsWith(ending, Qt::CaseInsensitive)) {
            name.chop(static_cast<qsizetype>(qstrlen(ending)));
            break;
        }
    }
    mFile->setText(name + mKind->currentData().toString());
}

void DialogReport::offerRanges(const TimeRange& whole, const TimeRange& marked)
{
    mWhole = whole;
    mMarked = marked;
    mRange->clear();
    mRange->addItem(rangeText(tr("Whole flight, %1 to %2"), whole));
    if (marked.start != whole.start || marked.stop != whole.stop) {
        mRange->addItem(rangeText(tr("Marked range, %1 to %2"), marked));
    }
    mRange->setEnabled(mRange->count() > 1);
}

void DialogReport::show(const ReportOptions& options)
{
    mFolder->setPath(options.directory);
    mKind->setCurrentIndex(options.isPdf ? 1 : 0);
    mFile->setText(QString::fromStdString(options.fileName));
    takeKind();
    mPaper->setCurrentIndex(options.paper);
    mOpens->setChecked(options.opens);
}

std::shared_ptr<Exporter> DialogReport::ask(const ExportInput& shown, const ExportOptions& preset)
{
    mOptions.load(*Property::instance());
    const QString first = shown.flight->record()->integrity().files.front().info.fileName;
    mOptions.fileName = first.section('/', -1).section('.', 0, 0).toStdString();
    offerRanges(shown.flight->range(shown.offset), {preset.startTime, preset.stopTime});
    show(mOptions);
    if (exec() != Accepted) {
        return nullptr;
    }
    mOptions.store(*Property::instance());
    Property::instance()->writeXmlFile();
    return std::make_shared<ExportReport>(mOptions);
}

void DialogReport::accept()
{
    const TimeRange& range = mRange->currentIndex() == 1 ? mMarked : mWhole;
    mOptions.fileName = mFile->text().toStdString();
    mOptions.isPdf = mFile->text().endsWith(".pdf", Qt::CaseInsensitive);
    mOptions.paper = static_cast<ReportOptions::Paper>(mPaper->currentIndex());
    mOptions.opens = mOpens->isChecked();
    mOptions.startTime = range.start;
    mOptions.stopTime = range.stop;
    if (confirmTarget(this, mOptions.directory, mOptions.fileName)) {
        QDialog::accept();
    }
}

ExportFace::Words DialogReport::words() const
{
    return {tr("ORNA Warning"), tr("The flight report could not be written.")};
}

void DialogReport::written(const QString& path)
{
    if (mOptions.opens) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(path));
    }
}

} // namespace TARN
