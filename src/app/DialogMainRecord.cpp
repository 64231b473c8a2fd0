#include "app/DialogMain.h"
#include "app/DialogStatusBar.h"
#include "base/Property.h"
#include "display/DialogData.h"
#include "faults/EventDetector.h"
#include "profile/Profile.h"
#include "profile/UnknownIdentifiers.h"
#include "record/DialogRecordDetails.h"

#include <algorithm>
#include <new>

namespace TARN {

/// Says in the status bar what came of loading, damages included.
void DialogMain::reportLoaded(bool complete)
{
    const QStringList remarks = recordRemarks(mRecord.integrity());
    QString text = complete ? tr("Samples loaded: %L1").arg(mRecord.recordData().count())
                            : tr("Not everything could be read: %1").arg(mRecord.errorText());
    if (!remarks.isEmpty()) {
        text += tr(". Remarks (see Recording Details): %1. ").arg(remarks.size());
    }
    mStatusBar->say(text + remarks.join(". "));
    mStatusBar->setToolTip(remarks.join('\n')); // the bar may be too short
}

/// Hands the recording with its events to the views.
void DialogMain::showRecord()
{
    updateViews([this] {
        detectEvents(mRecord, *Profile::instance());
        mData->updateRecord(&mRecord);
    });
}

/// Lets the views work; with nothing loaded where memory does not suffice.
void DialogMain::updateViews(const std::function<void()>& work)
{
    try {
        work();
    } catch (const std::bad_alloc&) {
        mRecord.clear();
        mData->updateRecord(&mRecord);
        mStatusBar->say(
            tr("There is not enough memory to show the recording; load fewer at once."));
    }
}

void DialogMain::reportDamagedSettings()
{
    const std::string& file = Property::instance()->damagedFile();
    if (!file.empty()) {
        const QString text = tr("The settings could not be read, the program starts with its "
                                "defaults. The damaged file is kept as \"%1\".");
        mStatusBar->say(text.arg(QString::fromStdString(file)) + " " + mStatusBar->said());
    }
}

void DialogMain::slotRecordDetails()
{
    const RecordIntegrity& integrity = mRecord.integrity();
    QList<RecordSection> sections;
    if (integrity.files.empty()) {
        for (const auto& [path, info] : mCardInfo.records) {
            sections += recordSection(info);
        }
    } else {
        sections += recordSection(
            integrity, unknownIdentifiers(mRecord.recordData(), *Profile::instance()).remark());
        for (const FileIntegrity& file : integrity.files) {
            sections += recordSection(file);
        }
    }
    if (sections.isEmpty()) {
        mStatusBar->say(tr("No recording is listed. Open a card first."));
        return;
    }
    mDetails->showReport(sections);
}

void DialogMain::slotFileDetails(const QString& path)
{
    const auto& files = mRecord.integrity().files;
    const auto loaded = std::ranges::find(
        files, path, [](const FileIntegrity& file) { return file.info.fileName; });
    const auto listed = mCardInfo.records.find(path);
    if (loaded != files.end()) {
        mDetails->showReport({recordSection(*loaded)});
    } else if (listed != mCardInfo.records.end()) {
        mDetails->showReport({recordSection(listed->second)});
    } else {
        slotRecordDetails();
    }
}

} // namespace TARN
