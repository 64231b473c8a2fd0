#include "graph/GraphData.h"

#include "base/Property.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QPalette>

#include <algorithm>

namespace TARN {

namespace {

constexpr const char* ThemeKey = "GraphTheme";
constexpr const char* PictureThemeKey = "PictureTheme";

struct SwitchKey
{
    const char* key;
    bool GraphData::*on;
};

constexpr SwitchKey Switches[] = {{"GraphThresholds", &GraphData::thresholdsOn},
                                  {"GraphEvents", &GraphData::eventsOn},
                                  {"GraphLanes", &GraphData::lanesOn},
                                  {"GraphWords", &GraphData::wordsOn}};

GraphTheme themeAt(const char* key, GraphTheme otherwise, GraphTheme last)
{
    const int number = Property::instance()->getInt(key, static_cast<int>(otherwise));
    return static_cast<GraphTheme>(std::clamp(number, 0, static_cast<int>(last)));
}

} // namespace

bool isLight(GraphTheme theme)
{
    return theme == GraphTheme::Light ||
           (theme == GraphTheme::Desktop &&
            QGuiApplication::palette().color(QPalette::Window).lightness() >= 128);
}

void GraphData::load()
{
    theme = themeAt(ThemeKey, theme, GraphTheme::Desktop);
    pictureTheme = themeAt(PictureThemeKey, pictureTheme, GraphTheme::AsGraph);
    for (const auto& [key, on] : Switches) {
        this->*on = Property::instance()->getSwitch(key, this->*on);
    }
}

void GraphData::store() const
{
    Property::instance()->setInt(ThemeKey, static_cast<int>(theme));
    Property::instance()->setInt(PictureThemeKey, static_cast<int>(pictureTheme));
    for (const auto& [key, on] : Switches) {
        Property::instance()->setSwitch(key, this->*on);
    }
    Property::instance()->writeXmlFile();
}

} // namespace TARN
