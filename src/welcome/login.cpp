#include "welcome/login.h"

#include "base/settings.h"

namespace nimb
{
namespace
{
const QLatin1String nicknameKey("MyNickName");
}

QString Login::Form_Load()
{
    m_common.ownHostName = m_socket.LocalHostName();
    m_common.ownIP = m_socket.LocalIP();
    return m_store.read(QLatin1String(settingKey(nicknameKey).section), nicknameKey, m_common.ownHostName);
}

std::optional<QString> Login::CmdOK_Click(const QString &typed)
{
    m_common.ownNickname = typed.isEmpty() ? m_common.ownHostName : typed;
    writeSetting(m_store, nicknameKey, m_common.ownNickname);
    return m_store.save();
}

} // namespace nimb
