#include "graph/Snapshot.h"

#include "base/OutputFile.h"
#include "graph/GraphCaption.h"
#include "graph/GraphPicture.h"
#include "graph/WidgetGraph.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct SnapshotTexts
{
    Q_DECLARE_TR_FUNCTIONS(Snapshot)
};

} // namespace

GraphPicture Snapshot::picture() const
{
    GraphPicture made{mGraph.graphStyle(), mGraph.gestures().keyCursor(), mGraph.size(), {}};
    if (mSettings.pictureTheme != GraphTheme::AsGraph) {
        made.style = themed(made.style, isLight(mSettings.pictureTheme));
    }
    if (mSession.flight() != nullptr) {
        const TimeWindow& window = mGraph.model().window();
        made.caption = captionOf(*mSession.flight(), {window.min(), window.max()});
    }
    return made;
}

void Snapshot::save(QWidget& window)
{
    const QString file = QFileDialog::getSaveFileName(
        &window, SnapshotTexts::tr("Save Snapshot"), "./snapshot.bmp",
        SnapshotTexts::tr("BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)"));
    if (!file.isEmpty() && !saveAs(file)) {
        QMessageBox::warning(
            &window, SnapshotTexts::tr("Save Snapshot"),
            SnapshotTexts::tr("The snapshot could not be saved as\n%1\nChoose a folder that can be "
                              "written, with enough free space, and a name that ends in .bmp, "
                              ".png, .svg or .jpg.")
                .arg(file));
    }
}

bool Snapshot::saveAs(const QString& file)
{
    const QByteArray bytes =
        encodePicture(picture(), mGraph.model(), file, mGraph.devicePixelRatioF());
    OutputFile out(file);
    if (bytes.isEmpty() || !out.open()) {
        return false;
    }
    out.write(bytes.toStdString());
    return out.commit();
}

void Snapshot::copy()
{
    QGuiApplication::clipboard()->setImage(
        picture().toImage(mGraph.model(), mGraph.devicePixelRatioF()));
}

} // namespace TARN
