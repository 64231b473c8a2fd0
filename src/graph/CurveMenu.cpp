#include "graph/CurveMenu.h"

#include "graph/GraphActions.h"
#include "graph/RangeDialog.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QMenu>

#include <algorithm>

namespace TARN {

namespace {

/// The user's texts of this file, declared so that the extraction of texts finds them.
struct MenuTexts
{
    Q_DECLARE_TR_FUNCTIONS(CurveMenu)
};

} // namespace

void CurveMenu::addTo(QMenu& menu)
{
    const unsigned k = mModel.hints().pointed.value_or(mModel.curves().count());
    const ParStruct* curve = mModel.curves().curve(k);
    const auto all = mModel.curves().all();
    if (curve != nullptr && curve->active) {
        menu.addSection(curve->name);
        menu.addAction(curve->hidden ? MenuTexts::tr("&Show") : MenuTexts::tr("&Hide"),
                       [this, k] { toggleCurve(mModel, k); });
        menu.addAction(MenuTexts::tr("&Only This"), [this, k] { showOnly(mModel, k); });
        addOrder(menu, k);
        menu.addAction(MenuTexts::tr("&Color..."), [this, k] { askColor(k); });
        addRange(menu, k);
        menu.addSeparator();
    }
    QAction* showAll =
        menu.addAction(MenuTexts::tr("Show &All Curves"), [this] { showAllCurves(mModel); });
    showAll->setEnabled(std::ranges::any_of(
        all, [](const ParStruct& other) { return other.active && other.hidden; }));
}

void CurveMenu::addOrder(QMenu& menu, unsigned curve)
{
    const std::vector<unsigned> shown = mModel.curves().shown();
    const auto place = std::ranges::find(shown, curve);
    QAction* up = menu.addAction(MenuTexts::tr("Move &Up"), [this, curve] { moveBy(curve, -1); });
    up->setEnabled(place != shown.end() && place != shown.begin());
    QAction* down =
        menu.addAction(MenuTexts::tr("Move &Down"), [this, curve] { moveBy(curve, 1); });
    down->setEnabled(place != shown.end() && place + 1 != shown.end());
}

void CurveMenu::moveBy(unsigned curve, int step)
{
    const std::vector<unsigned> shown = mModel.curves().shown();
    const auto place = std::ranges::find(shown, curve);
    mModel.curves().moveTo(curve, *(place + step));
    tellLooks(mModel);
}

void CurveMenu::addRange(QMenu& menu, unsigned curve)
{
    menu.addAction(MenuTexts::tr("Own &Range..."), [this, curve] { askRange(curve); });
    const ParStruct& own = *mModel.curves().curve(curve);
    QAction* automatic = menu.addAction(MenuTexts::tr("Au&tomatic Range"), [this, curve] {
        mModel.curves().curve(curve)->zoomed.reset();
        mModel.curves().curve(curve)->ownRange.reset();
        tellLooks(mModel);
    });
    automatic->setEnabled(own.ownRange || own.zoomed);
}

void CurveMenu::askColor(unsigned curve)
{
    ParStruct& colored = *mModel.curves().curve(curve);
    const QColor color = QColorDialog::getColor(colored.color.toColor(), &mParent,
                                                MenuTexts::tr("Color of %1").arg(colored.name));
    if (color.isValid()) {
        mModel.curves().curve(curve)->color = GraphColor::of(color);
        tellLooks(mModel);
    }
}

void CurveMenu::askRange(unsigned curve)
{
    const ParStruct& asked = *mModel.curves().curve(curve);
    RangeDialog dialog(MenuTexts::tr("Range of %1").arg(asked.name),
                       asked.ownRange.value_or(ValueRange{asked.strip.min, asked.strip.max}),
                       &mParent);
    if (dialog.exec() == QDialog::Accepted) {
        mModel.curves().curve(curve)->zoomed.reset();
        mModel.curves().curve(curve)->ownRange = dialog.range();
        tellLooks(mModel);
    }
}

} // namespace TARN
