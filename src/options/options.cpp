#include "options/options.h"

#include "base/avatar.h"
#include "base/remote_text.h"
#include "protocol/address_text.h"

#include <algorithm>

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
    controls.options = m_common.options;
    controls.UDPPorttxt = QString::number(m_common.udpPort);
    controls.ownCard = m_common.ownCard;
    controls.font = m_common.logFont;
    controls.avatar = m_common.avatarHead.isEmpty() ? AvatarChoice::none : AvatarChoice::still;
    if (const std::optional<PolledPicture> polled = m_ownAvatar.source()) {
        controls.avatar = AvatarChoice::polled;
        controls.polled = *polled;
    }
    return controls;
}

std::vector<OptionValues::Card> OptionValues::cards() const
{
    std::vector<Card> cards{{{}, tr("automatic")}};
    const auto isListed = [&cards](const QString &name) {
        return std::ranges::any_of(cards, [&name](const Card &card) { return card.name == name; });
    };
    for (const NetworkCard &card : m_ownAddresses.cards()) {
        if (!isListed(card.name))
            cards.push_back({card.name, tr("%1 (%2)").arg(card.name, addressText(card.address))});
    }
    if (!isListed(m_common.ownCard))
        cards.push_back({m_common.ownCard, tr("%1 (not connected)").arg(paintedName(remoteName(m_common.ownCard)))});
    return cards;
}

std::optional<QString> OptionValues::CmdOK_Click(const OptionControls &controls)
{
    const std::optional<std::uint16_t> port = portOf(controls.UDPPorttxt);
    if (!port)
        return tr("The port must be a number from 1 to 65535.");
    if (controls.avatar == AvatarChoice::polled && m_ownAvatar.source() != controls.polled) {
        std::unique_ptr<PictureSource> source = m_sources.open(controls.polled);
        // Some know only by trying that they cannot work.
        source->frame();
        if (std::optional<QString> problem = source->problem())
            return problem;
        m_ownAvatar.setSource(std::move(source));
    }
    m_common.options = controls.options;
    m_common.udpPort = *port;
    m_common.ownCard = controls.ownCard;
    m_common.logFont = controls.font;
    takeAvatar(controls);
    m_taken();
    return std::nullopt;
}

void OptionValues::takeAvatar(const OptionControls &controls)
{
    if (controls.avatar == AvatarChoice::polled)
        return; // the still avatar waits behind it
    m_ownAvatar.setSource(nullptr);
    if (controls.avatar == AvatarChoice::none) {
        m_common.avatarHead.clear();
        m_common.avatarBody.clear();
        return;
    }
    if (controls.loaded.size() != avatarBytes)
        return; // the one that is there stays, with its time
    m_common.avatarHead = m_clock.now().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    m_common.avatarBody = controls.loaded;
}

} // namespace nimb
