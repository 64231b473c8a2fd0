#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWidgets/QSplashScreen>

namespace TARN {

/// The start-up picture with the last messages of the start over it. Shows itself when made, in
/// front of the program's window, and gives way at once to a question that needs an answer.
class DialogSplash : public QSplashScreen
{
    Q_OBJECT

public:
    static DialogSplash* instance();

    /// Adds a line and paints it at once, where the screen has the window already; the last 15
    /// lines stay.
    void addEntry(const QString& text);
    const QStringList& entries() const { return mEntries; }

    /// Closes the splash after three seconds; a click closes it before.
    void finish();

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private Q_SLOTS:
    void slotTimeout();

private:
    DialogSplash();

    QStringList mEntries;
    QTimer mTimer;
};

} // namespace TARN
