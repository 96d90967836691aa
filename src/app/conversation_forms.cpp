#include "app/conversation_forms.h"

#include "conference/frmConference.h"
#include "conversation/conversation_pane.h"
#include "private_chat/frmPrivate.h"

namespace nimb
{

ConversationTools ConversationForms::tools()
{
    return {m_links, m_emoji, m_spelling, m_logRoom, m_openHistory, m_openTransfers, m_folders, m_scratch, m_pictures};
}

ViewPtr<PrivateChatView> ConversationForms::makePrivateForm(PrivateChat &chat)
{
    return ViewPtr<PrivateChatView>(new frmPrivate(chat, tools()));
}

ViewPtr<ConferenceView> ConversationForms::makeConferenceForm(Conference &conference)
{
    return ViewPtr<ConferenceView>(new frmConference(conference, tools()));
}

} // namespace nimb
