// Shows the manual: F1 in every window, and the entry of the menu Help.
#pragma once

#include "base/link_opener.h"

#include <QObject>
#include <QString>

#include <array>
#include <optional>

class QWidget;

namespace nimb
{

struct ManualPage {
    const char *window; ///< object name
    const char *file;   ///< in the folder of the manual
};

inline constexpr auto firstManualPage = "index.html";
/// What message boxes say, of whatever window they are.
inline constexpr auto messagesManualPage = "messages.html";
inline constexpr std::array manualPages = {
    ManualPage{"frmMain", "main-window.html"},
    ManualPage{"frmPrivate", "private-chat.html"},
    ManualPage{"frmConference", "conference.html"},
    ManualPage{"frmConfInvitations", "invitations.html"},
    ManualPage{"frmNetworkscan", "find-people.html"},
    ManualPage{"frmAddUser", "add-user.html"},
    ManualPage{"frmSendContact", "send-contacts.html"},
    ManualPage{"frmInvite", "invite-user.html"},
    ManualPage{"frmHistory", "history.html"},
    ManualPage{"frmOptions", "options.html"},
    ManualPage{"frmLogin", "first-start.html"},
    ManualPage{"frmTipOfTheDay", "tip-of-the-day.html"},
    ManualPage{"frmDoctor", "network-doctor.html"},
    ManualPage{"frmShortcuts", "shortcuts.html"},
    ManualPage{"frmTransfers", "files.html"},
    ManualPage{"frmAbout", "about.html"},
    ManualPage{"frmNotify", "notices.html"},
};

/// Hears the key F1 wherever it is pressed, so that no window has to know of the manual.
class ManualOpener : public QObject
{
    Q_OBJECT

public:
    /// folder: where the pages are; without one there is no manual, and nothing happens. The opener gets addresses of
    /// local files.
    ManualOpener(std::optional<QString> folder, LinkOpener &opener);

    bool hasManual() const { return m_folder.has_value(); }
    /// Opens the page of the window that holds this control.
    void openFor(QWidget &control);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    std::optional<QString> m_folder;
    LinkOpener &m_opener;
};

} // namespace nimb
