// A rich-text log, as the engine writes it.
#pragma once

#include "base/Common.h"
#include "base/colour.h"

#include <QDateTime>
#include <QString>

#include <optional>

namespace nimb
{

/// What becomes of a message of one's own, as far as is known.
enum class MessageFate {
    sent,
    lost,  ///< nobody was there
    waits, ///< until somebody is
};

/// A message, as far as a log shows it beside its text and above it.
struct LogMessage {
    QString writer;
    QDateTime time;
    bool isOwn = false;
    MessageFate fate = MessageFate::sent;
    QString receiver{}; ///< whom it has not reached
    int number = 0;     ///< by which it is found again, where it is not sent; 0: none
};

/// A log to which text is only ever appended. Text is plain text always: nothing in it is taken for markup.
class RichTextLog
{
public:
    virtual ~RichTextLog() = default;

    virtual qsizetype textLength() const = 0;
    /// Places the caret before the character at this position.
    virtual void setSelStart(qsizetype position) = 0;
    /// Colour of what is inserted from now on.
    virtual void setSelColor(Colour colour) = 0;
    virtual void setSelFont(const LogFont &font) = 0;
    /// Whether the lines that are begun from now on go on with what stands before them, as those of a message do. They
    /// are shown so that nobody takes one for a line of its own.
    virtual void setSelContinues(bool continues) = 0;
    /// What is inserted from now on is a command: a click on it asks for what has this name. Empty: it is none.
    virtual void setSelCommand(const QString &name) = 0;
    /// Lines that are begun from now on are those of this message; with nothing they are of none.
    virtual void setSelMessage(const std::optional<LogMessage> &message) = 0;
    virtual void setSelBold(bool bold) = 0;
    /// Replaces the selection by plain text; CR LF is a line break.
    virtual void setSelText(const QString &text) = 0;
    /// Replaces the selection by a fragment of rich text, which may be a picture; see log/metafile.h for its form.
    /// alternative: the text it stands for, for whoever copies or cannot see it, and for a fragment that is none.
    virtual void setSelRtf(const QString &fragment, const QString &alternative) = 0;
    /// The message of this number has another fate now; one that has gone is ignored.
    virtual void setFate(int message, MessageFate fate) = 0;
    /// What is inserted from now on is new to the reader, which is shown above it and stands in no text.
    virtual void markNew() = 0;
    /// Nothing is shown as new any more.
    virtual void unmarkNew() = 0;
    virtual void clear() = 0;
};

/// Appends text at the end of the log in this colour and leaves the caret behind it.
inline void appendText(RichTextLog &log, const QString &text, Colour colour)
{
    log.setSelStart(log.textLength());
    log.setSelColor(colour);
    log.setSelText(text);
}

/// The same, with a command; see RichTextLog::setSelCommand().
inline void appendCommand(RichTextLog &log, const QString &text, Colour colour, const QString &name)
{
    log.setSelCommand(name);
    appendText(log, text, colour);
    log.setSelCommand({});
}

/// Appends a picture at the end of the log and leaves the caret behind it.
inline void appendPicture(RichTextLog &log, const QString &fragment, const QString &alternative)
{
    log.setSelStart(log.textLength());
    log.setSelRtf(fragment, alternative);
}

} // namespace nimb
