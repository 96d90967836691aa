#include "log/emoticons.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "log/emoticon_tables.h"
#include "log/metafile.h"

#include <algorithm>
#include <optional>

namespace nimb
{
namespace
{

struct Match {
    std::size_t picture; ///< from 1
    qsizetype length;
};

bool beginsInUpperCase(QStringView rest, QLatin1String text)
{
    return rest.size() >= text.size() && std::equal(text.begin(), text.end(), rest.begin(), [](char letter, QChar c) {
               return QChar::fromLatin1(letter).toUpper() == c;
           });
}

/// The first emoticon of the table with which the text begins, as it is written there or all in upper case.
std::optional<Match> emoticonAt(QStringView rest)
{
    for (std::size_t i = 0; i < emoticonTables.texts.size(); ++i) {
        const QLatin1String text = emoticonTables.texts[i];
        if (rest.startsWith(text) || beginsInUpperCase(rest, text))
            return Match{i / 2 + 1, text.size()};
    }
    return std::nullopt;
}

qsizetype firstTrigger(QStringView rest)
{
    const auto found = std::ranges::find_if(rest, [](QChar c) { return c == u':' || c == u';'; });
    return found == rest.end() ? -1 : found - rest.begin();
}

} // namespace

void splitAtEmoticons(QStringView rest, const std::function<void(QStringView text, std::size_t picture)> &take)
{
    int pictures = 0;
    for (;;) {
        const qsizetype trigger = firstTrigger(rest);
        if (trigger < 0)
            return take(rest, 0);
        take(rest.left(trigger), 0);
        rest = rest.mid(trigger);

        const std::optional<Match> match = emoticonAt(rest);
        const qsizetype length = match ? match->length : 1;
        const bool isPicture = match && pictures < limits::messagePictures;
        take(rest.left(length), isPicture ? match->picture : 0);
        pictures += isPicture ? 1 : 0;
        rest = rest.mid(length);
    }
}

void AddTextWithEmoticons(RichTextLog &log, const QString &text, Colour colour)
{
    log.setSelContinues(true);
    splitAtEmoticons(shownText(text), [&log, colour](QStringView piece, std::size_t picture) {
        if (picture > 0)
            appendPicture(log, emoticonFragment(picture), piece.toString());
        else
            appendText(log, piece.toString(), colour);
    });
    log.setSelContinues(false);
}

} // namespace nimb
