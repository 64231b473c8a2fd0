#include "base/OutputFile.h"
#include "display/DialogDataGraph.h"
#include "display/DialogGraphSetup.h"
#include "display/WidgetGraph.h"

#include <QtCore/QBuffer>
#include <QtCore/QFileInfo>
#include <QtCore/QScopedValueRollback>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace TARN {

namespace {

constexpr double DefaultRange = 60.0; // seconds

} // namespace

void DialogDataGraph::slotCommandPress(int command)
{
    mCommand = command;
    if (command == ZoomIn || command == ZoomOut) {
        mTimer.start();
    }
}

void DialogDataGraph::slotCommandRelease(int command)
{
    mTimer.stop();
    if (!mUpdating && mGraph != nullptr) {
        runCommand(command);
    }
    mCommand = NoCommand;
}

void DialogDataGraph::runCommand(int command)
{
    switch (command) {
    case ZoomOneToOne:
        setRange(DefaultRange);
        break;
    case ZoomMarker:
        mGraph->zoomToMarker();
        break;
    case ClearAll:
        mGraph->clear();
        break;
    case AutomaticMode:
        mData.graphMode = mButtons[AutomaticMode]->isChecked() ? GraphAutomatic : GraphManual;
        mGraph->setGraphMode(static_cast<eGraphMode>(mData.graphMode));
        updateControls();
        break;
    case SplitMode:
    case SingleMode:
        mData.displayMode = command == SplitMode ? DisplaySplit : DisplaySingle;
        mGraph->setDisplayMode(static_cast<eDisplayMode>(mData.displayMode));
        updateControls();
        break;
    case ResetAll:
        mData.displayMode = DisplaySplit;
        mGraph->setDisplayMode(DisplaySplit);
        setRange(DefaultRange);
        updateControls();
        break;
    case Setup:
        mSetup->updateDialog();
        mSetup->show();
        mSetup->raise();
        break;
    case Snapshot:
        saveSnapshot();
        break;
    default:
        break;
    }
}

void DialogDataGraph::setRange(double seconds)
{
    mGraph->setXrange(static_cast<float>(seconds));
    mData.xRange = seconds;
}

void DialogDataGraph::slotTimeout()
{
    constexpr double Step = 0.97;
    constexpr double WidestByZoomIn = 5000.0; // seconds
    constexpr double NarrowestByZoomOut = 1.0;
    const GraphView& view = mGraph->model().view();
    const double width = view.xmax - view.xmin;
    if (mCommand == ZoomIn) {
        setRange(std::min(width * Step, WidestByZoomIn));
    } else if (mCommand == ZoomOut) {
        setRange(std::max(width / Step, NarrowestByZoomOut));
    }
}

void DialogDataGraph::slotManMode()
{
    updateControls();
}

void DialogDataGraph::updateControls()
{
    if (mGraph == nullptr) {
        return;
    }
    const QScopedValueRollback updating(mUpdating, true);
    const bool split = mGraph->model().displayMode() != DisplaySingle;
    mButtons[SplitMode]->setChecked(split);
    mButtons[SingleMode]->setChecked(!split);
}

void DialogDataGraph::slotGraphSetup()
{
    if (mGraph == nullptr) {
        return;
    }
    const auto apply = [graph = mGraph](void (WidgetGraph::*setColor)(float, float, float),
                                        const QString& name) {
        const QColor color(name);
        (graph->*setColor)(color.redF(), color.greenF(), color.blueF());
    };
    mGraph->setXrange(static_cast<float>(mData.xRange));
    mGraph->setDisplayMode(static_cast<eDisplayMode>(mData.displayMode));
    mGraph->setGraphMode(static_cast<eGraphMode>(mData.graphMode));
    mGraph->setCursorMode(static_cast<eCursorMode>(mData.cursorMode));
    apply(&WidgetGraph::setBackColor, mData.backColor);
    mGraph->activateGrid(mData.gridOn);
    apply(&WidgetGraph::setGridColor, mData.gridColor);
    apply(&WidgetGraph::setLabelColor, mData.labelColor);
    apply(&WidgetGraph::setLabelBackColor, mData.labelBackColor);
    mGraph->activateCursor(mData.cursorOn);
    mGraph->activateLegend(mData.legendOn);
    mGraph->setAutoScaleY(mData.autoScale);
    mGraph->setYmin(static_cast<float>(mData.yMin));
    mGraph->setYmax(static_cast<float>(mData.yMax));
}

void DialogDataGraph::saveSnapshot()
{
    if (mGraph == nullptr) {
        return;
    }
    const QString file = QFileDialog::getSaveFileName(this, tr("Save Snapshot"), "./snapshot.bmp",
                                                      tr("BMP File (*.bmp);;All Files (*.*)"));
    if (!file.isEmpty() && !saveImage(file)) {
        QMessageBox::warning(this, tr("Save Snapshot"),
                             tr("The snapshot could not be saved as\n%1\nChoose a folder that can "
                                "be written, with enough free space, and a name that ends in "
                                ".bmp, .png or .jpg.")
                                 .arg(file));
    }
}

bool DialogDataGraph::saveImage(const QString& file)
{
    const QByteArray suffix = QFileInfo(file).suffix().toLatin1();
    const QImage image = mGraph->grabFramebuffer().convertToFormat(QImage::Format_RGB32);
    QBuffer encoded;
    OutputFile out(file);
    if (!encoded.open(QIODevice::WriteOnly) ||
        !image.save(&encoded, suffix.isEmpty() ? "BMP" : suffix.constData()) || !out.open()) {
        return false;
    }
    out.write(encoded.data().toStdString());
    return out.commit();
}

} // namespace TARN
