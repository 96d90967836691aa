// What the store's tests put into a store: enough of everything to fill many pages of the file.
#pragma once

#include "base/settings_store.h"

#include <algorithm>
#include <utility>

namespace nimb::test
{

/// NIMB_STORE_FAULTS=long: the file has a thousand pages.
inline bool faultsAreLong()
{
    static const bool areLong = qEnvironmentVariable("NIMB_STORE_FAULTS") == QLatin1String("long");
    return areLong;
}

inline int contactsOfAGeneration()
{
    return faultsAreLong() ? 3000 : 60;
}

/// Which call to the disk is made to fail after this one, counted from 1: the next one. A store of a thousand pages
/// makes so many that each of them would take a day: there a twentieth further each time.
inline int nextFault(int call)
{
    return faultsAreLong() ? call + 1 + call / 20 : call + 1;
}

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
    for (int n = 1; n <= contactsOfAGeneration(); ++n)
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
    for (int n = 1; n <= contactsOfAGeneration(); ++n) {
        const QString expected = generation == missing
            ? missing
            : QString("%1 contact %2 %3").arg(generation).arg(n).arg(QString(100, u'.'));
        whole = whole && store.read("Users", QString("Nn%1").arg(n), missing) == expected;
    }
    if (!whole)
        return "mixed";
    return generation == missing ? "none" : generation;
}

/// Changes that all belong together, as a run keeps them that learns and forgets contacts.
inline std::vector<KeptChange> changesOfGeneration(const QString &generation)
{
    std::vector<KeptChange> changes
        = {{"Settings", "AvatarBody", avatarData(generation[0].unicode())}, {"Settings", "UDPPort", generation}};
    for (int n = 1; n <= contactsOfAGeneration() / 2; ++n)
        changes.push_back({"Users", QString("Nn:10.0.%1.%2").arg(n / 256).arg(n % 256),
                           n % 5 == 0 ? std::nullopt : std::optional(generation + QString(100, u'.'))});
    return changes;
}

/// The generation to which all that was kept belongs, "none" when there is nothing, "mixed" for anything else.
inline QString generationKept(const SettingsStore &store)
{
    const RecoveredChanges recovered = store.recovered();
    if (recovered.changes.empty() && recovered.unreadable == 0)
        return "none";
    const QString generation = store.read("Settings", "UDPPort", "nothing");
    std::vector<KeptChange> expected = changesOfGeneration(generation);
    const auto byName = [](const KeptChange &left, const KeptChange &right) {
        return std::pair(left.section, left.key) < std::pair(right.section, right.key);
    };
    std::sort(expected.begin(), expected.end(), byName);
    return recovered.changes == expected && recovered.unreadable == 0 ? generation : "mixed";
}

} // namespace nimb::test
