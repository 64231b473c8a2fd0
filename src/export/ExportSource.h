#pragma once

#include <QtCore/QString>

namespace TARN {

class Record;

/// Why an export may not be written to \p path: it is a file that the recording was read from,
/// and nothing brings a recording back. Empty where nothing speaks against it.
QString sourceRefusal(const Record& record, const QString& path);

} // namespace TARN
