#pragma once

#include <QtCore/QString>

namespace TARN {

class Session;

/// Why no view has anything to show, and what to do about it, in the order in which it has to be
/// done; empty where the session has a profile, a selection and samples. May hold a link
/// "preferences".
QString emptyTextOf(const Session& session);

/// The same for views that show all parameters, whatever is selected.
QString emptyTextOfAll(const Session& session);

} // namespace TARN
