#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>

#include <list>

class QMimeData;
class QWidget;

namespace TARN {

/// Card folders, recordings, projects and profiles that are dropped on a window.
class DropHandler : public QObject
{
    Q_OBJECT

public:
    explicit DropHandler(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void cardDropped(const QString& folder);
    /// Recordings of one folder or of several, in their order.
    void recordingsDropped(const std::list<QString>& files);
    /// Recordings dropped with Control held.
    void referenceDropped(const std::list<QString>& files);
    void projectDropped(const QString& file);
    void profileDropped(const QString& file);
    /// An XML file that is neither.
    void otherDropped(const QString& file);

private:
    static QStringList openablePaths(const QMimeData* data);
    void open(const QStringList& paths, bool asReference);
    void openXml(const QString& path);
};

} // namespace TARN
