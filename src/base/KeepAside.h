#pragma once

#include <QtCore/QString>

namespace TARN {

/// Renames a file that can't be understood before another takes its place, so that whoever knows
/// how can still save what is in it: to its name with ".damaged", or ".damaged2", ".damaged3" ...
/// where that is taken. The new path; empty when there is no such file or it can't be renamed.
QString keepAside(const QString& path);

} // namespace TARN
