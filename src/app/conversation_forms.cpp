#include "app/conversation_forms.h"

#include "conference/frmConference.h"
#include "conversation/conversation_pane.h"
#include "private_chat/frmPrivate.h"

namespace nimb
{

ViewPtr<PrivateChatView> ConversationForms::makePrivateForm(PrivateChat &chat)
{
    return ViewPtr<PrivateChatView>(new frmPrivate(chat, {m_links, m_emoji, m_spelling, m_logRoom, m_openHistory}));
}

ViewPtr<ConferenceView> ConversationForms::makeConferenceForm(Conference &conference)
{
    return ViewPtr<ConferenceView>(
        new frmConference(conference, {m_links, m_emoji, m_spelling, m_logRoom, m_openHistory}));
}

} // namespace nimb
