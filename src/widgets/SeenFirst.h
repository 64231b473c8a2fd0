#pragma once

#include <QtCore/QTimer>

#include <functional>

class QWidget;

namespace TARN {

/// Begins work for a view at once where it is seen; for one that is hidden a little later, or when
/// it is shown, so that it does not take time from what somebody waits for.
class SeenFirst : public QObject
{
    Q_OBJECT

public:
    /// The view lives as long as this does.
    explicit SeenFirst(QWidget& view);
    ~SeenFirst() override;

    /// In place of work that has not begun.
    void run(std::function<void()> work);

    /// Whether work has not begun.
    bool isWaiting() const { return mWork != nullptr; }

    /// Forgets work that has not begun.
    void cancel();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void begin();

    QWidget& mView;
    std::function<void()> mWork;
    QTimer mTimer;
};

} // namespace TARN
