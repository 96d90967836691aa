// Writes any text into a real log as conversations do, pictures and links included, and checks what the log then
// holds. The first byte says whether the log finds links and when it writes what it gathered; zero bytes part messages.
#include "base/limits.h"
#include "base/remote_text.h"
#include "log/emoticons.h"
#include "log/log_pictures.h"
#include "log/rich_text_log.h"
#include "require.h"

#include <QAccessible>
#include <QApplication>
#include <QTextBlock>

namespace
{

using namespace nimb;

/// What a log should hold, kept by a second log that only notes what it is told.
class Notes : public RichTextLog
{
public:
    qsizetype textLength() const override { return m_length; }
    void setSelStart(qsizetype position) override { require(position == m_length, "text is only appended"); }
    void setSelColor(Colour) override { }
    void setSelFont(const LogFont &) override { }
    void setSelContinues(bool) override { }
    void setSelCommand(const QString &) override { }
    void setSelMessage(const std::optional<LogMessage> &) override { }
    void setSelBold(bool) override { }
    void markNew() override { }
    void unmarkNew() override { }
    void setFate(int, MessageFate) override { }
    void setSelText(const QString &piece) override { note(piece, false); }
    void setSelRtf(const QString &, const QString &alternative) override { note(alternative, true); }
    void clear() override { }

    QString text;
    int pictures = 0;

private:
    void note(const QString &piece, bool picture)
    {
        text += piece;
        pictures += picture;
        m_length += picture ? 1 : piece.size();
    }
    qsizetype m_length = 0;
};

/// The log's text with the pictures as their texts, and how many there are.
struct Held {
    QString text;
    int pictures = 0;
};

Held heldBy(const RichTextLogEdit &log)
{
    Held held;
    for (QTextBlock line = log.document()->begin(); line.isValid(); line = line.next()) {
        for (auto it = line.begin(); !it.atEnd(); ++it) {
            const QTextFragment fragment = it.fragment();
            const QTextCharFormat format = fragment.charFormat();
            const QString alternative = alternativeText(format);
            held.text += alternative.isEmpty() ? fragment.text() : alternative.repeated(fragment.length());
            held.pictures += alternative.isEmpty() ? 0 : fragment.length();
            if (!format.isAnchor())
                continue;
            const QString scheme = QUrl(format.anchorHref(), QUrl::StrictMode).scheme();
            require(QStringList({"http", "https", "ftp", "mailto"}).contains(scheme), "a link has a harmless scheme");
        }
        if (line.next().isValid())
            held.text += QLatin1Char('\n');
    }
    return held;
}

/// As a document keeps it: one character per line break, and none that it takes for a frame.
QString asHeld(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n').replace(QChar(0x2029), u'\n');
    return text.replace(QChar(0xFDD0), QChar(0xFFFD)).replace(QChar(0xFDD1), QChar(0xFFFD));
}

/// Qt's list of those who watch for screen readers is made first and so outlives it, which looks into it at its end.
QApplication &application()
{
    static int count = 1;
    static char name[] = "log_fuzz";
    static char *arguments[] = {name, nullptr};
    static const bool hasList = (QAccessible::removeActivationObserver(nullptr), true);
    static QApplication instance(count, arguments);
    Q_UNUSED(hasList)
    return instance;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    application();
    static RichTextLogEdit log;
    log.clear();
    Notes notes;
    const int choice = size > 0 ? data[0] : 0;
    log.setLinkDetection(choice & 1);
    const QByteArray bytes(reinterpret_cast<const char *>(data) + (size > 0 ? 1 : 0),
                           static_cast<qsizetype>(size > 0 ? size - 1 : 0));
    for (const QByteArray &message : bytes.split('\0')) {
        const QString body = remoteBody(QString::fromUtf8(message));
        for (RichTextLog *const writer : {static_cast<RichTextLog *>(&log), static_cast<RichTextLog *>(&notes)}) {
            const qsizetype before = writer->textLength();
            appendText(*writer, QStringLiteral("Ann> "), 0xC00000);
            AddTextWithEmoticons(*writer, body, 0xC00000);
            require(writer->textLength() - before <= limits::shownTextLength + 100, "a message has its limit");
            appendText(*writer, QStringLiteral("\r\n"), 0xC00000);
        }
        if (choice & 2)
            log.writeGathered();
    }
    log.writeGathered();
    require(log.textLength() == log.document()->characterCount() - 1, "the length is the document's");
    const Held held = heldBy(log);
    require(held.text == asHeld(notes.text), "everything that was written is there, and nothing else");
    require(held.pictures == notes.pictures, "every picture is there");
    return 0;
}
