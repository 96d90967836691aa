#include "options/options.h"

#include "base/avatar.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <algorithm>
#include <span>

namespace nimb
{
namespace
{

/// Nothing when it is no whole number from 1 to 65535.
std::optional<std::uint16_t> portOf(const QString &text)
{
    bool isNumber = false;
    const ushort port = text.trimmed().toUShort(&isNumber);
    return isNumber && port > 0 ? std::optional(port) : std::nullopt;
}

} // namespace

OptionControls OptionValues::Form_Load() const
{
    OptionControls controls;
    controls.nickname = m_parts.common.ownNickname;
    controls.options = m_parts.common.options;
    controls.keepHistory = m_parts.common.history.keep;
    controls.UDPPorttxt = QString::number(m_parts.common.udpPort);
    controls.ownCard = m_parts.common.ownCard;
    controls.language = m_parts.common.language;
    controls.startsWithDesktop = m_parts.autostart.isOn();
    controls.font = m_parts.common.logFont;
    controls.avatar = m_parts.common.avatarHead.isEmpty() ? AvatarChoice::none : AvatarChoice::still;
    if (const std::optional<PolledPicture> polled = m_parts.ownAvatar.source()) {
        controls.avatar = AvatarChoice::polled;
        controls.polled = *polled;
    }
    return controls;
}

QStringList OptionValues::states() const
{
    QStringList states;
    for (const OwnStateEntry &entry : std::span(m_parts.ownState.entries()).subspan(OwnState::plainEntries))
        states.append(entry.text);
    return states;
}

std::vector<OptionValues::Card> OptionValues::cards() const
{
    std::vector<Card> cards{{{}, tr("automatic")}};
    const auto isListed = [&cards](const QString &name) {
        return std::ranges::any_of(cards, [&name](const Card &card) { return card.name == name; });
    };
    for (const NetworkCard &card : m_parts.ownAddresses.cards()) {
        if (!isListed(card.name))
            cards.push_back({card.name, tr("%1 (%2)").arg(card.name, addressText(card.address))});
    }
    if (!isListed(m_parts.common.ownCard))
        cards.push_back(
            {m_parts.common.ownCard, tr("%1 (not connected)").arg(paintedName(remoteName(m_parts.common.ownCard)))});
    return cards;
}

std::optional<QString> OptionValues::CmdOK_Click(const OptionControls &controls)
{
    const std::optional<std::uint16_t> port = portOf(controls.UDPPorttxt);
    if (!port)
        return tr("The port must be a number from 1 to 65535.");
    if (controls.avatar == AvatarChoice::polled && m_parts.ownAvatar.source() != controls.polled) {
        std::unique_ptr<PictureSource> source = m_parts.sources.open(controls.polled);
        // Some know only by trying that they cannot work.
        source->frame();
        if (std::optional<QString> problem = source->problem())
            return problem;
        m_parts.ownAvatar.setSource(std::move(source));
    }
    if (std::optional<QString> problem = takeAutostart(controls))
        return problem;
    m_parts.common.options = controls.options;
    m_parts.common.udpPort = *port;
    m_parts.common.ownCard = controls.ownCard;
    m_parts.common.language = controls.language;
    m_parts.common.logFont = controls.font;
    takeAvatar(controls);
    // From the last one on, for those behind a removed one move up.
    for (auto state = controls.removedStates.rbegin(); state != controls.removedStates.rend(); ++state)
        m_parts.ownState.removePersonalized(OwnState::plainEntries + *state + 1);
    m_parts.changeNickname(controls.nickname);
    m_parts.keepHistory(controls.keepHistory);
    m_parts.taken();
    return std::nullopt;
}

/// The entry bears the nickname, so that nothing is asked at a login.
std::optional<QString> OptionValues::takeAutostart(const OptionControls &controls)
{
    const bool isOn = m_parts.autostart.isOn();
    const bool isRight
        = isOn == controls.startsWithDesktop && (!isOn || controls.nickname == m_parts.common.ownNickname);
    if (isRight)
        return std::nullopt;
    const std::optional<QString> reason
        = controls.startsWithDesktop ? m_parts.autostart.switchOn(controls.nickname) : m_parts.autostart.switchOff();
    return reason ? std::optional(tr("Starting with the desktop cannot be changed: %1").arg(*reason)) : std::nullopt;
}

void OptionValues::takeAvatar(const OptionControls &controls)
{
    if (controls.avatar == AvatarChoice::polled)
        return; // the still avatar waits behind it
    m_parts.ownAvatar.setSource(nullptr);
    if (controls.avatar == AvatarChoice::none) {
        m_parts.common.avatarHead.clear();
        m_parts.common.avatarBody.clear();
        return;
    }
    if (controls.loaded.size() != avatarBytes)
        return; // the one that is there stays, with its time
    m_parts.common.avatarHead = m_parts.clock.now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_parts.common.avatarBody = controls.loaded;
}

} // namespace nimb
