// What the engine shows in a conference window, named after what is seen.
#pragma once

#include "base/view_ptr.h"
#include "conversation/conversation_view.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace nimb
{

class Conference;

class ConferenceView
{
public:
    virtual ~ConferenceView() = default;
    /// What it has in common with the other conversations.
    virtual ConversationView &conversation() = 0;
    /// Whose avatar is in the avatar frame; without a picture the one that stands for none.
    virtual void showAvatar(const QString &name, const std::optional<QByteArray> &picture) = 0;
    /// Shows the window, or brings it to the front.
    virtual void showWindow() = 0;
    /// The window is unloaded; see LetGo.
    virtual void letGo() = 0;
};

/// Makes forms of conference windows, hidden. The conference outlives its form's use of it.
class ConferenceForms
{
public:
    virtual ~ConferenceForms() = default;
    virtual ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) = 0;
};

} // namespace nimb
