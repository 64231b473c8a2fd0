#pragma once

#include "record/RecordIntegrity.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

namespace TARN {

/// A field as the views list it: its label and its value.
struct RecordField
{
    QString label;
    QString value;
};

/// Fields under a title.
struct RecordSection
{
    QString title;
    QList<RecordField> fields;
};

/// The fields of a recording that the card browser lists below it.
QList<RecordField> recordFields(const RecordInfo& info);

// Everything that a pilot or an engineer should know before trusting what the recording shows,
// one line each; empty when there is nothing to remark.

/// What is known without reading samples.
QStringList recordRemarks(const RecordInfo& info);
/// The same with what reading the samples has shown.
QStringList recordRemarks(const FileIntegrity& file);
/// Of the recording as a whole and then of all its files, each line of a file beginning with the
/// file's name.
QStringList recordRemarks(const RecordIntegrity& integrity);

/// Of the recording as a whole: one file begins more than a second before another ends, their
/// headers' dates are further apart than the recording lasts, or the offset can't be read.
QStringList togetherRemarks(const RecordIntegrity& integrity);

/// All about a file: its fields and the remarks on it, "none" when there are none.
RecordSection recordSection(const RecordInfo& info);
RecordSection recordSection(const FileIntegrity& file);

/// All remarks on a recording, and those of \p more that are not empty.
RecordSection recordSection(const RecordIntegrity& integrity, const QStringList& more);

} // namespace TARN
