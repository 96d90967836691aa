// The emoji of Unicode, in its order, with their names in the user's language.
#pragma once

#include <QCoreApplication>
#include <QStringList>

#include <optional>
#include <vector>

namespace nimb
{

/// Read as a whole when it is made, which takes some milliseconds and half a megabyte: not before somebody wants one.
class EmojiTable
{
    Q_DECLARE_TR_FUNCTIONS(EmojiTable)

public:
    /// Both live as long as their table.
    struct Emoji {
        QStringView text; ///< what is written
        QStringView name; ///< for tool tips and screen readers
        int group = 0;
    };
    static constexpr int groups = 9;

    /// Whether the program was built with Unicode's data; without it the table is empty.
    static bool isThere();

    /// uiLanguages: as QLocale has them, the dearest first. In English where none of them is known.
    explicit EmojiTable(const QStringList &uiLanguages);
    EmojiTable(const EmojiTable &) = delete;
    EmojiTable &operator=(const EmojiTable &) = delete;

    const std::vector<Emoji> &all() const { return m_all; }
    /// The place of an emoji in all().
    std::optional<std::size_t> find(QStringView text) const;
    /// Those with all the words that were typed in name or keywords, in the user's language or in English, whatever
    /// their case and accents: first those whose name has a word that begins so, then those of keywords, then those
    /// that have it within a word. Places in all().
    std::vector<std::size_t> search(const QString &typed) const;

    static QString groupName(int group);

private:
    /// The lines of a language, made comparable.
    struct Searched {
        QString text;
        std::vector<QStringView> lines;
    };

    static Searched searchedOf(const QString &text);

    QString m_order;
    QString m_names;
    std::vector<Emoji> m_all;
    std::vector<Searched> m_searched; ///< the user's language, and English
};

} // namespace nimb
