// What the engine shows in a private window, named after what is seen.
#pragma once

#include "base/presence.h"
#include "base/view_ptr.h"
#include "conversation/conversation_view.h"
#include "private_chat/mood.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace nimb
{

class PrivateChat;

/// Ways to bring a private window into view.
enum class ShowMode {
    active,    ///< normal, with the focus: the user asked for it
    minimised, ///< without taking the focus
    onTop,     ///< as it last was, above the others, without taking the focus
};

/// What becomes of what is written to a peer.
enum class Delivery {
    arrives,
    doubtful,    ///< nobody knows whether he is there
    lost,        ///< he is offline
    toNoContact, ///< he has been removed: what comes back is not shown
};

/// Who is talked to, as the head of the window shows him.
struct PeerShown {
    QString name;
    Presence presence = Presence::unknown;
    QString state{}; ///< as he has told it last
    QString workstation{};
    QString address{};
    Delivery delivery = Delivery::arrives;
    int waiting = 0;         ///< messages that will be sent when he is there
    bool canWait = false;    ///< there are others that could
    bool sendsLater = false; ///< so does what is written from now on
    bool operator==(const PeerShown &) const = default;
};

class PrivateChatView
{
public:
    virtual ~PrivateChatView() = default;
    /// What it has in common with the other conversations.
    virtual ConversationView &conversation() = 0;
    virtual void setPeerAddress(const QString &ip) = 0;
    virtual void setPeer(const PeerShown &peer) = 0;
    /// The second panel of the status bar.
    virtual void setPeerActivity(const QString &text) = 0;
    /// Shows what the peer is typing; an empty text hides the preview.
    virtual void setLiveType(const QString &text) = 0;
    virtual void setLiveTypeOn(bool on) = 0;
    /// Whether the peer is to see what is typed.
    virtual bool isLiveTypeOn() const = 0;
    /// The peer's avatar; nothing: the picture that stands for none. marker: what AvatarCh holds.
    virtual void setAvatar(const QString &marker, const std::optional<QByteArray> &picture) = 0;
    virtual void setOwnMood(const MoodMark &mood) = 0;
    virtual void setPeersMood(const MoodMark &mood) = 0;

    virtual bool isHidden() const = 0;
    virtual void showWindow(ShowMode mode) = 0;
    virtual void hideWindow() = 0;
    /// The window is unloaded; see LetGo.
    virtual void letGo() = 0;
};

/// Makes forms of private windows, hidden. The chat outlives its form's use of it.
class PrivateForms
{
public:
    virtual ~PrivateForms() = default;
    virtual ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) = 0;
};

} // namespace nimb
