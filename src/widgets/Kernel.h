#pragma once

class QApplication;
class QStyle;

namespace TARN {

class DialogMain;

/// The application's one set of shared objects. Knows the main window by name only.
class Kernel
{
public:
    static Kernel* instance();

    QStyle* getStyle() const { return mStyle; }   ///< of colour and option controls
    QStyle* getStyle2() const { return mStyle2; } ///< of splitter and data window

    DialogMain* mainWindow = nullptr;    ///< not owned; set by main
    QApplication* application = nullptr; ///< not owned; set by main

private:
    Kernel();

    QStyle* mStyle;
    QStyle* mStyle2;
};

} // namespace TARN
