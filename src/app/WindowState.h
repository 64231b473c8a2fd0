#pragma once

class QSplitter;
class QWidget;

namespace TARN {

class DialogData;

/// Size, panes and view of the window, from one start of the program to the next.
class WindowState
{
public:
    WindowState(QWidget& window, QSplitter& panes, DialogData& views);

    void save() const;
    /// The first time 1000 by 800 pixels; never larger than the free area of the screen.
    void restore();

private:
    QWidget& mWindow;
    QSplitter& mPanes;
    DialogData& mViews;
};

} // namespace TARN
