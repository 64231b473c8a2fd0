#include "app/DropHandler.h"

#include "base/XmlHandler.h"
#include "record/CardInfo.h"

#include <QtCore/QFileInfo>
#include <QtCore/QMimeData>
#include <QtCore/QTimer>
#include <QtGui/QDragEnterEvent>
#include <QtWidgets/QWidget>

namespace TARN {

namespace {

/// Name of an XML file's root element; empty when it is none.
QString rootName(const QString& path)
{
    XmlHandler xml;
    QDomDocument document;
    xml.xmlReadFile(document, path);
    return document.documentElement().tagName();
}

} // namespace

DropHandler::DropHandler(QWidget& window) : QObject(&window)
{
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

/// The local files and folders dragged that the window can open.
QStringList DropHandler::openablePaths(const QMimeData* data)
{
    QStringList paths;
    for (const QUrl& url : data->urls()) {
        const QFileInfo file(url.toLocalFile());
        if (url.isLocalFile() && (file.isDir() || isRecordingName(file.fileName()) ||
                                  file.fileName().endsWith(".xml"))) {
            paths.append(file.absoluteFilePath());
        }
    }
    return paths;
}

bool DropHandler::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::DragEnter) {
        auto* drag = static_cast<QDragEnterEvent*>(event);
        if (!openablePaths(drag->mimeData()).isEmpty()) {
            drag->acceptProposedAction();
        }
        return true;
    }
    if (event->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(event);
        drop->acceptProposedAction();
        // Later, so that whoever dropped it need not wait for answers to questions.
        QTimer::singleShot(0, this,
                           [this, paths = openablePaths(drop->mimeData()),
                            asReference = drop->modifiers().testFlag(Qt::ControlModifier)] {
                               open(paths, asReference);
                           });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void DropHandler::open(const QStringList& paths, bool asReference)
{
    std::list<QString> recordings;
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir()) {
            Q_EMIT cardDropped(path);
        } else if (isRecordingName(path)) {
            recordings.push_back(path);
        } else {
            openXml(path);
        }
    }
    if (!recordings.empty()) {
        asReference ? Q_EMIT referenceDropped(recordings) : Q_EMIT recordingsDropped(recordings);
    }
}

void DropHandler::openXml(const QString& path)
{
    const QString root = rootName(path);
    if (root == "CanAerospaceProfile") {
        Q_EMIT profileDropped(path);
    } else if (root == "TarnProject") {
        Q_EMIT projectDropped(path);
    } else {
        Q_EMIT otherDropped(path);
    }
}

} // namespace TARN
