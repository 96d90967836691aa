// Every window of the program with realistic content, for whoever looks at them: pictures and tests.
#pragma once

#include <functional>

class QWidget;

namespace nimb::test
{

/// The window stands there as it is until the call returns.
using WindowVisitor = std::function<void(QWidget &window, const char *name)>;

/// Opens one after the other, some of them several times with something else in them; each name comes once.
void visitEveryWindow(const WindowVisitor &visitor);

} // namespace nimb::test
