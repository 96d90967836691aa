#include "base/own_presence.h"

namespace nimb
{
namespace
{

struct Expression {
    QLatin1String word;
    QLatin1String name;
    Picture picture;
};

Expression expressionOf(BaseState state)
{
    switch (state) {
    case BaseState::unchosen:
        return {QLatin1String("Online"), QLatin1String("Online"), Picture::green};
    case BaseState::online:
        return {QLatin1String("ONLINE"), QLatin1String("Online"), Picture::green};
    case BaseState::busy:
        return {QLatin1String("BUSY"), QLatin1String("Busy"), Picture::busy};
    case BaseState::away:
        return {QLatin1String("AWAY"), QLatin1String("Away"), Picture::away};
    case BaseState::invisible:
        break;
    }
    return {QLatin1String("Invisible"), QLatin1String("Invisible"), Picture::invisible};
}

const QLatin1String beforeOwnWords(" - ");

} // namespace

QLatin1String stateWord(BaseState state)
{
    return expressionOf(state).word;
}

QLatin1String baseName(BaseState state)
{
    return expressionOf(state).name;
}

Picture pictureOf(BaseState state)
{
    return expressionOf(state).picture;
}

std::optional<BaseState> baseStateOf(Picture picture)
{
    for (const BaseState state : {BaseState::online, BaseState::busy, BaseState::away, BaseState::invisible}) {
        if (pictureOf(state) == picture)
            return state;
    }
    return std::nullopt;
}

Presence presenceOfStateWord(const QString &word)
{
    const auto begins = [&word](QLatin1String known) { return word.left(known.size()).toUpper() == known; };
    if (begins(stateWord(BaseState::busy)))
        return Presence::busy;
    if (begins(stateWord(BaseState::away)))
        return Presence::away;
    return Presence::online;
}

QString withOwnWords(const QString &state, const QString &words)
{
    return state + beforeOwnWords + words;
}

QString ownWordsOf(const QString &state)
{
    for (const BaseState base : {BaseState::online, BaseState::busy, BaseState::away, BaseState::invisible}) {
        const QLatin1String word = stateWord(base);
        if (state.compare(word, Qt::CaseInsensitive) == 0)
            return {};
        if (state.startsWith(word + beforeOwnWords, Qt::CaseInsensitive))
            return state.mid(word.size() + beforeOwnWords.size());
    }
    return state;
}

} // namespace nimb
