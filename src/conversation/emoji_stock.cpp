#include "conversation/emoji_stock.h"

#include "base/limits.h"

#include <QLocale>

namespace nimb
{

const EmojiTable &EmojiStock::table()
{
    if (!m_table)
        m_table.emplace(QLocale().uiLanguages());
    return *m_table;
}

void EmojiStock::use(const QString &emoji)
{
    QStringList &recent = m_common.recentEmoji;
    if (!recent.isEmpty() && recent.front() == emoji)
        return;
    recent.removeAll(emoji);
    recent.prepend(emoji);
    if (recent.size() > limits::recentEmoji)
        recent.resize(limits::recentEmoji);
    m_used();
}

} // namespace nimb
