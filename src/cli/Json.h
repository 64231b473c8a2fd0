#pragma once

#include <QtGui/QColor>

#include <nlohmann/json.hpp>

namespace TARN {

/// Keeps its fields in the order in which they are written; NaN and infinities become null.
using Json = nlohmann::ordered_json;

/// "#rrggbb", null for an invalid colour.
inline Json jsonOf(const QColor& color)
{
    return color.isValid() ? Json(color.name().toStdString()) : Json(nullptr);
}

} // namespace TARN
