// Makes the windows of conversations.
#pragma once

#include "conference/conference_view.h"
#include "conversation/emoji_stock.h"
#include "conversation/small_picture.h"
#include "conversation/spelling.h"
#include "log/RTFSubClass.h"
#include "log/log_room.h"
#include "private_chat/private_chat_view.h"
#include "widgets/scratch_folder.h"

namespace nimb
{

struct ConversationTools;

/// Each window is owned by its engine half, which lets it go.
class ConversationForms : public PrivateForms, public ConferenceForms
{
public:
    /// emojiUsed: called when what of common was used lately has changed.
    /// openHistory, openTransfers, folders: see ConversationTools.
    ConversationForms(LinkOpener &links, Common &common, std::function<void()> emojiUsed, Spelling &spelling,
                      std::function<void(const QString &, const QString &)> openHistory,
                      std::function<void()> openTransfers, LinkOpener &folders)
        : m_links(links), m_emoji(common, std::move(emojiUsed)), m_spelling(spelling),
          m_openHistory(std::move(openHistory)), m_openTransfers(std::move(openTransfers)), m_folders(folders)
    {
    }

    ViewPtr<PrivateChatView> makePrivateForm(PrivateChat &chat) override;
    ViewPtr<ConferenceView> makeConferenceForm(Conference &conference) override;

private:
    ConversationTools tools();

    RTFSubClass m_links;
    EmojiStock m_emoji;
    Spelling &m_spelling;
    LogRoom m_logRoom;
    std::function<void(const QString &, const QString &)> m_openHistory;
    std::function<void()> m_openTransfers;
    LinkOpener &m_folders;
    ScratchFolder m_scratch;
    SmallPictures m_pictures;
};

} // namespace nimb
