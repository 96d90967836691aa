// Ownership of a form by its engine half.
#pragma once

#include <memory>

namespace nimb
{

/// Lets a form go instead of deleting it, for the call may come from one of the form's own events. A form that has
/// been let go hides itself, calls its engine half no more, and dies when control is back in the event loop.
struct LetGo {
    template <class View> void operator()(View *view) const { view->letGo(); }
};

template <class View> using ViewPtr = std::unique_ptr<View, LetGo>;

} // namespace nimb
