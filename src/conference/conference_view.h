// What the engine shows in a conference window, named after what is seen.
#pragma once

#include "base/attention.h"
#include "base/rich_text.h"
#include "base/view_ptr.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace nimb
{

class Conference;

class ConferenceView : public AttentionView
{
public:
    virtual RichTextLog &outtext() = 0;
    virtual void setCaption(const QString &caption) = 0;
    /// Font of the input box and of the log.
    virtual void setLogFont(const LogFont &font) = 0;
    /// The first panel of the status bar.
    virtual void setPanel(const QString &text) = 0;
    /// The input box and the send button; off once the conference is over.
    virtual void setInputEnabled(bool enabled) = 0;
    /// Whose avatar is in the avatar frame; without a picture the one that stands for none.
    virtual void showAvatar(const QString &name, const std::optional<QByteArray> &picture) = 0;
    /// The colour of own messages: the system's window-text colour.
    virtual Colour windowTextColour() const = 0;
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
