// What the store's tests put into a store: enough of everything to fill many pages of the file.
#pragma once

#include "base/settings_store.h"

namespace nimb::test
{

constexpr int generationContacts = 60;

/// 7500 characters, U+0000 to U+00FF over and over, starting at the given one.
inline QString avatarData(char16_t first)
{
    QString data(7500, QChar(0));
    for (qsizetype i = 0; i < data.size(); ++i)
        data[i] = QChar(static_cast<char16_t>((first + i) & 0xFF));
    return data;
}

/// Values that all belong together: a store holds either all of one generation or all of another.
inline void writeGeneration(SettingsStore &store, const QString &generation)
{
    store.write("Settings", "MyNickName", generation);
    store.write("Settings", "AvatarHead", avatarData(generation.isEmpty() ? u'\0' : generation[0].unicode()));
    for (int n = 1; n <= generationContacts; ++n)
        store.write("Users", QString("Nn%1").arg(n),
                    QString("%1 contact %2 %3").arg(generation).arg(n).arg(QString(100, u'.')));
}

/// The generation that the store holds whole, "none" for an empty store, "mixed" for anything else.
inline QString generationIn(const SettingsStore &store)
{
    const QString missing = "<missing>";
    const QString generation = store.read("Settings", "MyNickName", missing);
    bool whole = generation == missing ? store.read("Settings", "AvatarHead", missing) == missing
                                       : store.read("Settings", "AvatarHead", missing)
            == avatarData(generation.isEmpty() ? u'\0' : generation[0].unicode());
    for (int n = 1; n <= generationContacts; ++n) {
        const QString expected = generation == missing
            ? missing
            : QString("%1 contact %2 %3").arg(generation).arg(n).arg(QString(100, u'.'));
        whole = whole && store.read("Users", QString("Nn%1").arg(n), missing) == expected;
    }
    if (!whole)
        return "mixed";
    return generation == missing ? "none" : generation;
}

} // namespace nimb::test
