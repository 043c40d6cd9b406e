#include "ovk/docking/dock_settings.h"

namespace ovk {

namespace {

constexpr int c_default_gap = 7;
constexpr bool c_default_animated = true;
constexpr QRgb c_default_color = 0x7092BE;

} // namespace

ObservableValue<DockManager::EdgeGapMode>& DockSettings::EdgeGapMode()
{
    static ObservableValue<DockManager::EdgeGapMode> s_value(DockManager::Percent);
    return s_value;
}

ObservableValue<int>& DockSettings::LeftEdgeGap()
{
    static ObservableValue<int> s_value(c_default_gap);
    return s_value;
}

ObservableValue<int>& DockSettings::TopEdgeGap()
{
    static ObservableValue<int> s_value(c_default_gap);
    return s_value;
}

ObservableValue<int>& DockSettings::RightEdgeGap()
{
    static ObservableValue<int> s_value(c_default_gap);
    return s_value;
}

ObservableValue<int>& DockSettings::BotomEdgeGap()
{
    static ObservableValue<int> s_value(c_default_gap);
    return s_value;
}

ObservableValue<bool>& DockSettings::Animated()
{
    static ObservableValue<bool> s_value(c_default_animated);
    return s_value;
}

ObservableValue<QColor>& DockSettings::Color()
{
    static ObservableValue<QColor> s_value(QColor{c_default_color});
    return s_value;
}

void DockSettings::Reset()
{
    Animated().SetData(c_default_animated);
}

} // namespace ovk
