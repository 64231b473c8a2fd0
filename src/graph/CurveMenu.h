#pragma once

#include <QtCore/QPoint>

class QMenu;
class QWidget;

namespace TARN {

class GraphModel;

/// What can be done with the curve of a graph that was last pointed at: hide it, show it alone,
/// move it, give it a colour or a range. Everything works from the keyboard.
class CurveMenu
{
public:
    /// Both live as long. \p parent of the questions.
    CurveMenu(GraphModel& model, QWidget& parent) : mModel(model), mParent(parent) {}

    /// Adds the commands, which work as long as the menu is open.
    void addTo(QMenu& menu);

private:
    void addOrder(QMenu& menu, unsigned curve);
    void addRange(QMenu& menu, unsigned curve);
    void moveBy(unsigned curve, int step);
    void askColor(unsigned curve);
    void askRange(unsigned curve);

    GraphModel& mModel;
    QWidget& mParent;
};

} // namespace TARN
