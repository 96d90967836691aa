// Where settings live between two runs.
#pragma once

#include <QString>

#include <optional>

namespace nimb
{

/// String values addressed by section and key; the application name is the store's own affair. Values may hold any
/// character, U+0000 included. Nothing is ever deleted.
class SettingsStore
{
public:
    virtual ~SettingsStore() = default;

    /// The stored value, or the given default when the key is missing or the store cannot be read.
    virtual QString read(const QString &section, const QString &key, const QString &defaultValue) const = 0;
    /// Notes a value for the next save(); read() does not see it before.
    virtual void write(const QString &section, const QString &key, const QString &value) = 0;
    /// Writes everything noted since the last save, all or nothing. Empty on success; otherwise one sentence for
    /// the user that says what failed, and the store is as it was before.
    [[nodiscard]] virtual std::optional<QString> save() = 0;
    /// What keeps the store from being read or written, as one sentence for the user; empty when all is well.
    virtual std::optional<QString> problem() const = 0;
};

} // namespace nimb
