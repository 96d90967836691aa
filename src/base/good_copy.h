// The settings as they were when they could last be read back.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace nimb
{

/// One whole copy of the store beside it, for the day on which the store is damaged or empty.
class GoodCopy
{
public:
    virtual ~GoodCopy() = default;
    /// When the copy was made that could take the store's place. Nothing where there is none, where the store is well
    /// and was so at all starts before, or after somebody has decided.
    virtual std::optional<QDateTime> offeredCopy() const = 0;
    /// Puts the copy in the store's place; what stood there is kept beside it under another name. Empty on success,
    /// otherwise one sentence for the user, and the store is as it was before.
    [[nodiscard]] virtual std::optional<QString> takeCopy() = 0;
    /// It is kept under another name.
    virtual void declineCopy() = 0;
    /// Replaces the copy by what is stored now, once that could be read back. Empty on success; otherwise one sentence
    /// for the user, and the copy is as it was before.
    [[nodiscard]] virtual std::optional<QString> renewCopy() = 0;
    /// What was read and yet differs from what was saved, as one sentence for the user.
    virtual std::optional<QString> damage() const = 0;
};

} // namespace nimb
