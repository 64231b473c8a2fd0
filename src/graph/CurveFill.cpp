#include "graph/CurveFill.h"

#include <algorithm>
#include <map>

namespace TARN {

void nameCurves(CurveSet& curves, const std::vector<const ProfileParameter*>& parameters)
{
    for (unsigned k = 0; k < curves.count(); ++k) {
        const bool isShown = k < parameters.size();
        ParStruct& curve = *curves.curve(k);
        curve.active = isShown;
        curve.name = isShown ? parameters[k]->name : QString();
        curve.unit = isShown ? parameters[k]->unit : QString();
    }
}

void fillCurve(CurveSet& curves, unsigned place, const DecodedCurve& decoded)
{
    ParStruct& curve = *curves.curve(place);
    curve.isSingle = decoded.facts->isSingle();
    curve.facts = decoded.facts;
    curves.setSeries(place, decoded.samples);
}

void applyLooks(CurveSet& curves, const CurveLooks& looks, const std::vector<GraphColor>& colors)
{
    std::map<std::string, unsigned> places;
    for (unsigned k = 0; k < curves.count(); ++k) {
        ParStruct& curve = *curves.curve(k);
        const auto found = looks.byName.find(curve.name.toStdString());
        const CurveLook look = found != looks.byName.end() ? found->second : CurveLook();
        curve.hidden = look.hidden;
        curve.color = look.color.isValid() ? GraphColor::of(look.color) : colors[k];
        curve.ownRange = look.range
                             ? std::optional(ValueRange{look.range->first, look.range->second})
                             : std::nullopt;
        if (curve.active) {
            places.emplace(curve.name.toStdString(), k);
        }
    }
    std::vector<unsigned> order;
    for (const std::string& name : looks.order) {
        if (const auto node = places.extract(name)) {
            order.push_back(node.mapped());
        }
    }
    curves.setOrder(order);
}

CurveLooks looksOf(const CurveSet& curves, const CurveLooks& before,
                   const std::vector<GraphColor>& colors)
{
    CurveLooks looks = before;
    std::vector<std::string> order;
    const std::vector<unsigned>& places = curves.order();
    for (const unsigned k : places) {
        const ParStruct& curve = *curves.curve(k);
        if (!curve.active) {
            continue;
        }
        CurveLook look;
        look.hidden = curve.hidden;
        look.color = curve.color == colors[k] ? QColor() : QColor(curve.color.toColor().rgb());
        if (curve.ownRange) {
            look.range = std::pair(curve.ownRange->low, curve.ownRange->high);
        }
        const std::string name = curve.name.toStdString();
        looks.byName.erase(name);
        if (look != CurveLook()) {
            looks.byName[name] = look;
        }
        order.push_back(name);
    }
    std::ranges::copy_if(looks.order, std::back_inserter(order), [&](const std::string& name) {
        return std::ranges::find(order, name) == order.end();
    });
    looks.order = std::ranges::is_sorted(places) ? std::vector<std::string>() : order;
    return looks;
}

} // namespace TARN
