// What is wrong with the looks of a window: what is cut, covered, or too large for a small screen.
#pragma once

#include <QSize>

#include <string>
#include <vector>

class QWidget;

namespace nimb::test
{

constexpr QSize smallScreen(1280, 720);

/// A sentence for each fault; none for a window that is the toolkit's own, for those are as they are.
std::vector<std::string> faultsOf(const QWidget &window);

/// File and printer dialogs of the toolkit, in whose place most desktops put theirs.
bool isToolkits(const QWidget &window);

} // namespace nimb::test
