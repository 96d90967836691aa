// Emoji in a text that is shown: one picture each, in colour.
#pragma once

#include <QFontMetrics>
#include <QObject>
#include <QTextLayout>

#include <optional>
#include <vector>

class QTextDocument;

namespace nimb
{

/// Characters of a text, by their places in it.
struct TextPlace {
    int start = 0;
    int length = 0;
    bool operator==(const TextPlace &) const = default;
};

/// Where a text shows emoji: characters that are pictures by themselves or are made so by the one behind them, with
/// all that belongs to them. Those that touch are one place.
std::vector<TextPlace> emojiIn(const QString &text);

/// Keeps the emoji of a document in the font of emoji. Left to itself the toolkit takes the first font that has the
/// character, often a black and white one, and breaks emoji of several characters at those that only join. This is the
/// layout's business: neither text nor formats of the document know of it.
class EmojiLook : public QObject
{
public:
    /// Owned by the document.
    explicit EmojiLook(QTextDocument &document);

private:
    void look(int from, int added);
    QList<QTextLayout::FormatRange> looksOf(const QString &text);
    bool isInFont(QStringView emoji);

    QTextDocument &m_document;
    std::optional<QFontMetrics> m_metrics; ///< of the font of emoji, once there is one
};

} // namespace nimb
