// The main window's measures, in twips, fixed so that it looks the same on every desktop. Sizes are without the frame;
// tops count from below the menu bar.
#pragma once

namespace nimb::main_layout
{

constexpr int widthWithLog = 9315;
constexpr int widthWithoutLog = 4575;
constexpr int lowestHeight = 4500;

constexpr int width(bool logShown)
{
    return logShown ? widthWithLog : widthWithoutLog;
}

constexpr double height(double wanted)
{
    return wanted < lowestHeight ? lowestHeight : wanted;
}

constexpr double listHeight(double windowHeight)
{
    return windowHeight - 2260 + 360;
}

constexpr double rescanTop(double windowHeight)
{
    return windowHeight - 1650;
}

constexpr double buzzmuteTop(double windowHeight)
{
    return rescanTop(windowHeight) + 60;
}

constexpr double logHeight(double windowHeight)
{
    return listHeight(windowHeight) + 300;
}

/// Column widths of the contact list that the details switch sets.
struct Columns {
    int workstation, ipAddress, stateText;
};

constexpr Columns columns(bool fullDetails)
{
    return fullDetails ? Columns{1350, 1250, 0} : Columns{0, 0, 2600};
}

} // namespace nimb::main_layout
