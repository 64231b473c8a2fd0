#pragma once

class QApplication;

namespace TARN {

class DialogMain;

/// Makes numbers read and written with "." whatever the user's locale is.
void useDecimalPoint();

/// The start of the viewer up to the running event loop: splash, paths, settings, translations
/// and the main window, which is shown. The window is never deleted.
DialogMain* startUp(QApplication& application);

} // namespace TARN
