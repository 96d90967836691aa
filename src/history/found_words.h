// Where the words of a search stand in a text.
#pragma once

#include <QStringList>

#include <vector>

namespace nimb
{

struct FoundWord {
    qsizetype begin = 0, end = 0; ///< behind its last character

    bool operator==(const FoundWord &) const = default;
};

/// Wherever one of them occurs, as the history finds them: in any case, and Latin letters without regard to their
/// accents. Marks that follow a letter belong to it.
std::vector<FoundWord> findWords(const QStringList &words, const QString &text);

} // namespace nimb
