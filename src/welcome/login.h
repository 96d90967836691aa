// The login dialog's rules: who we are.
#pragma once

#include "base/Common.h"
#include "base/prompts.h"
#include "base/settings_store.h"
#include "protocol/winsock.h"

namespace nimb
{

/// The engine half of frmLogin.
class Login
{
public:
    Login(Common &common, SettingsStore &store, const Winsock &socket)
        : m_common(common), m_store(store), m_socket(socket)
    {
    }

    /// Learns the own host name and address. Returns what the box offers: the last nickname, or the host name.
    QString Form_Load();
    /// Takes the nickname typed, or the host name when nothing was, and saves it. Returns one sentence for the user
    /// when saving failed; the nickname holds for this session all the same.
    [[nodiscard]] std::optional<QString> CmdOK_Click(const QString &typed);

private:
    Common &m_common;
    SettingsStore &m_store;
    const Winsock &m_socket;
};

} // namespace nimb
