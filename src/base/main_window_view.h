// What the engine shows in the main window, named after what is seen.
#pragma once

#include "base/Common.h"
#include "base/own_state_entry.h"
#include "base/rich_text.h"

#include <QString>

#include <optional>

namespace nimb
{

class MainLogView
{
public:
    virtual ~MainLogView() = default;
    virtual RichTextLog &outtext() = 0;
};

class AnnouncementView
{
public:
    virtual ~AnnouncementView() = default;
    virtual void setRescanEnabled(bool enabled) = 0;
    /// The captions of the context menu are to be read again for the selected contact.
    virtual void refreshContextMenu() = 0;
};

/// What the automatic-reply controls show; see OwnState.
struct AutoReplyPanel {
    bool on = false;
    QString text;
    QString caption;
};

class OwnStateView
{
public:
    virtual ~OwnStateView() = default;
    virtual void addOwnState(const OwnStateEntry &entry) = 0;
    /// The entries behind it move up. position: counted from 1, here and below.
    virtual void removeOwnState(int position) = 0;
    virtual void selectOwnState(int position) = 0;
    virtual void setStatusPanel(const QString &text) = 0;
    virtual void setRescanEnabled(bool enabled) = 0;
    virtual void setRescanToolTip(const QString &text) = 0;
    /// Empty: the automatic-reply controls and their frame are hidden.
    virtual void setAutoReply(const std::optional<AutoReplyPanel> &panel) = 0;
    virtual void setPersonalizedStateVisible(bool visible) = 0;
};

class ActivityView
{
public:
    virtual ~ActivityView() = default;
    virtual void setActivityPanel(const QString &text) = 0;
    /// The row of this contact flashes; one that is not shown does not.
    virtual void flashContact(const QString &ip) = 0;
};

/// How far a search through many addresses has come.
struct SearchProgress {
    int asked = 0;
    int all = 0;
    bool operator==(const SearchProgress &) const = default;
};

class SearchView
{
public:
    virtual ~SearchView() = default;
    /// With a way to stop it; empty: nothing is to be waited for.
    virtual void setSearchProgress(const std::optional<SearchProgress> &progress) = 0;
};

class NetworkView
{
public:
    virtual ~NetworkView() = default;
    /// One sentence about the networks of this machine; empty when there is nothing to say.
    virtual void setNetworkPanel(const QString &text) = 0;
};

/// The entries of the contact menu that invite to a conference.
class ConferenceMenuView
{
public:
    virtual ~ConferenceMenuView() = default;
    /// slot: 1 to 5.
    virtual void setInvite2ConfVisible(int slot, bool visible) = 0;
};

class MainWindowView : public MainLogView,
                       public AnnouncementView,
                       public OwnStateView,
                       public ActivityView,
                       public SearchView,
                       public NetworkView,
                       public ConferenceMenuView
{
public:
    void setRescanEnabled(bool enabled) override = 0;

    virtual void setCaption(const QString &caption) = 0;
    virtual QString caption() const = 0;
    virtual void setPlace(const WindowPlace &place) = 0;
    /// The place of the normal window, also while it is minimised or hidden.
    virtual WindowPlace place() const = 0;
    /// Something that is wrong for as long as it stands in the status bar; empty when all is well.
    virtual void setTroublePanel(const QString &text) = 0;
};

} // namespace nimb
