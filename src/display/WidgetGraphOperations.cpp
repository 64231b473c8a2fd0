#include "display/WidgetGraph.h"

using namespace TARN;

void WidgetGraph::setMaxParameters(unsigned n)
{
    mModel.setMaxParameters(n);
    mKeyCurve = 0;
    update();
}

void WidgetGraph::setParameterName(unsigned i, const QString& name)
{
    if (ParStruct* curve = mModel.curve(i)) {
        curve->name = name;
        update();
    }
}

void WidgetGraph::setParameterColor(unsigned i, float red, float green, float blue)
{
    if (ParStruct* curve = mModel.curve(i)) {
        curve->color = {red, green, blue};
        update();
    }
}

void WidgetGraph::setActive(unsigned i, bool active)
{
    mModel.setActive(i, active);
    update();
}

void WidgetGraph::activateSamples(unsigned i, bool on)
{
    if (ParStruct* curve = mModel.curve(i)) {
        curve->showSamples = on;
        update();
    }
}

void WidgetGraph::putSeries(unsigned i, std::span<const double> times,
                            std::span<const double> values)
{
    mModel.putSeries(i, times, values);
}

bool WidgetGraph::getValue(unsigned i, double time, double& value) const
{
    return mModel.getValue(i, time, value);
}

void WidgetGraph::getParameterRangeX(unsigned i, double& first, double& last) const
{
    mModel.getParameterRangeX(i, first, last);
}

void WidgetGraph::getParameterRangeY(unsigned i, double& min, double& max) const
{
    mModel.getParameterRangeY(i, min, max);
}

void WidgetGraph::clear()
{
    mModel.clear();
    update();
}

void WidgetGraph::setCursorPosition(double time)
{
    mModel.setCursorPosition(time);
    update();
}

void WidgetGraph::setMarker(double start, double stop)
{
    mModel.setMarker(start, stop);
    update();
}

void WidgetGraph::zoomToMarker()
{
    mModel.zoomToMarker();
    update();
}

void WidgetGraph::setT0(float time)
{
    mModel.setT0(time);
    update();
}

void WidgetGraph::setXmin(float time)
{
    mModel.setXmin(time);
    update();
}

void WidgetGraph::setXmax(float time)
{
    mModel.setXmax(time);
    update();
}

void WidgetGraph::setXrange(float width)
{
    mModel.setXrange(width);
    update();
}

void WidgetGraph::setYmin(float value)
{
    mModel.setYmin(value);
    update();
}

void WidgetGraph::setYmax(float value)
{
    mModel.setYmax(value);
    update();
}

void WidgetGraph::setCursorMode(eCursorMode mode)
{
    mModel.setCursorMode(mode);
    update();
}

void WidgetGraph::setGraphMode(eGraphMode mode)
{
    mModel.setGraphMode(mode);
    update();
}

void WidgetGraph::setDisplayMode(eDisplayMode mode)
{
    mModel.setDisplayMode(mode);
    update();
}

void WidgetGraph::recalcFrameBuffer()
{
    mModel.recalcFrameBuffer();
    update();
}

void WidgetGraph::setBackColor(float red, float green, float blue)
{
    mBackColor = {red, green, blue};
    update();
}

void WidgetGraph::setGridColor(float red, float green, float blue)
{
    mGridColor = {red, green, blue};
    update();
}

void WidgetGraph::setLabelColor(float red, float green, float blue)
{
    mLabelColor = {red, green, blue};
    update();
}

void WidgetGraph::setLabelBackColor(float red, float green, float blue)
{
    mLabelBackColor = {red, green, blue};
    update();
}

void WidgetGraph::activateGrid(bool on)
{
    mGridOn = on;
    update();
}

void WidgetGraph::activateCursor(bool on)
{
    mCursorOn = on;
    update();
}

void WidgetGraph::activateLegend(bool on)
{
    mLegendOn = on;
    update();
}
