// What the user has copied.
#pragma once

#include <QString>

namespace nimb::test
{

/// The text in the clipboard of the screen; empty when there is none.
QString clipboard();

} // namespace nimb::test
