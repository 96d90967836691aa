// What the engine shows in the window of every conversation, named after what is seen.
#pragma once

#include "base/history.h"
#include "base/rich_text.h"

#include <QString>

namespace nimb
{

class ConversationView
{
public:
    virtual ~ConversationView() = default;

    virtual RichTextLog &outtext() = 0;
    virtual void setCaption(const QString &caption) = 0;
    /// Font of the input box and of the log.
    virtual void setLogFont(const LogFont &font) = 0;
    /// What was said before the window was opened, or before what is shown of that already: above the log, and no part
    /// of its text. readTo: those with a higher number are new to the reader.
    virtual void addEarlier(const std::vector<StoredMessage> &messages, std::optional<std::int64_t> readTo) = 0;
    /// A file that the writer of the last message offers; see ReceivedFiles.
    virtual void addReceivedFile(int number) = 0;
    /// Why a file was not sent.
    virtual void showFileTrouble(const QString &sentence) = 0;
    /// It does not hold any more.
    virtual void withdrawFileTrouble(const QString &sentence) = 0;
    /// The first panel of the status bar.
    virtual void setLastMessage(const QString &text) = 0;
    /// The input box as it is now, line breaks as CR LF.
    virtual QString typedText() const = 0;
    /// In its place another text, which nobody has typed just now.
    virtual void setDraft(const QString &text) = 0;
    /// The input box and the send button; off once the conversation is over.
    virtual void setInputEnabled(bool enabled) = 0;
    /// The caret goes to the end.
    virtual void focusInput() = 0;
    /// The colour of own messages: the system's window-text colour.
    virtual Colour windowTextColour() const = 0;

    virtual bool isMinimisedOrInactive() const = 0;
    /// The window is the active one, and what is added to its log comes into sight.
    virtual bool isEndSeen() const = 0;
    /// Flashes the window's task-bar button, the button only, as often and as fast as the system does.
    virtual void flash() = 0;
};

} // namespace nimb
