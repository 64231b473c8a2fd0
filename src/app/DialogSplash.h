#pragma once

#include <QtCore/QStringList>
#include <QtCore/QTimer>
#include <QtWidgets/QSplashScreen>

namespace TARN {

/// The start-up picture with the last messages of the start over it. Shows itself when made.
class DialogSplash : public QSplashScreen
{
    Q_OBJECT

public:
    static DialogSplash* instance();

    /// Adds a line and paints it at once; the last 15 lines stay.
    void addEntry(const QString& text);
    const QStringList& entries() const { return mEntries; }

    /// Closes the splash after three seconds; a click closes it before.
    void finish();

protected:
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
