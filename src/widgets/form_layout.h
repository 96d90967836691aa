// The rhythm of every window, in pixels, and how its controls get their names.
#pragma once

#include <QLatin1String>

namespace nimb
{

namespace form_layout
{
constexpr int margin = 9;
constexpr int spacing = 6;
constexpr int groupDistance = 12;
} // namespace form_layout

/// Gives a control its fixed name, by which tests and assistive tools find it; to be wrapped around its making.
template <class Widget> Widget *named(Widget *widget, const char *name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

} // namespace nimb
