// The emoji for all conversations together, and those that were used lately.
#pragma once

#include "base/Common.h"
#include "conversation/emoji_table.h"

#include <functional>
#include <optional>

namespace nimb
{

class EmojiStock
{
public:
    /// used: called when what was used lately has changed.
    EmojiStock(Common &common, std::function<void()> used) : m_common(common), m_used(std::move(used)) { }

    /// Read at the first call, in the language that the user has then.
    const EmojiTable &table();
    /// The latest first, no more than limits::recentEmoji.
    const QStringList &recent() const { return m_common.recentEmoji; }
    void use(const QString &emoji);

private:
    Common &m_common;
    std::function<void()> m_used;
    std::optional<EmojiTable> m_table;
};

} // namespace nimb
