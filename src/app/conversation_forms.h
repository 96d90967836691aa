// Makes the windows of conversations.
#pragma once

#include "conference/conference_view.h"
#include "conversation/emoji_stock.h"
#include "conversation/spelling.h"
#include "log/RTFSubClass.h"
#include "log/log_room.h"
#include "private_chat/private_chat_view.h"

namespace nimb
{

/// Each window is owned by its engine half, which lets it go.
class ConversationForms : public PrivateForms, public ConferenceForms
{
public:
    /// emojiUsed: called when what of common was used lately has changed.
    /// openHistory: see ConversationTools.
    ConversationForms(LinkOpener &links, Common &common, std::function<void()> emojiUsed, Spelling &spelling,
                      std::function<void(const QString &)> openHistory)
        : m_links(links), m_emoji(common, std::move(emojiUsed)), m_spelling(spelling),
          m_openHistory(std::move(openHistory))
    {
    }

    ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) override;
    ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) override;

private:
    RTFSubClass m_links;
    EmojiStock m_emoji;
    Spelling &m_spelling;
    LogRoom m_logRoom;
    std::function<void(const QString &)> m_openHistory;
};

} // namespace nimb
