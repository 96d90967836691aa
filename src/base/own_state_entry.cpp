#include "base/own_state_entry.h"

namespace nimb
{
namespace
{

QString nameOf(Picture picture)
{
    if (const std::optional<BaseState> base = baseStateOf(picture))
        return baseName(*base);
    QString name = pictureKey(picture);
    name[0] = name[0].toUpper();
    return name;
}

OwnStateEntry entryWith(Picture picture, const QString &text)
{
    return {.text = withOwnWords(nameOf(picture), text),
            .picture = picture,
            .key = {},
            .personalizedText = text,
            .base = baseStateOf(picture)};
}

} // namespace

OwnStateEntry personalizedEntry(BaseState base, const QString &text)
{
    return entryWith(pictureOf(base), text);
}

std::optional<OwnStateEntry> entryOfStored(const QString &value)
{
    const std::optional<Picture> picture = value.isEmpty() ? std::nullopt : pictureAt(value.front().digitValue());
    if (!picture)
        return std::nullopt;
    return entryWith(*picture, value.mid(1));
}

QString storedForm(const OwnStateEntry &entry)
{
    return QString::number(picturePosition(*entry.picture)) + entry.personalizedText;
}

} // namespace nimb
