// Where settings live between two runs.
#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace nimb
{

/// Where values go that are to be kept.
class SettingsSink
{
public:
    virtual ~SettingsSink() = default;
    virtual void write(const QString &section, const QString &key, const QString &value) = 0;
};

/// A change that is kept before it is saved. Without a value: what the key names is gone.
struct KeptChange {
    QString section;
    QString key;
    std::optional<QString> value;
    bool operator==(const KeptChange &) const = default;
};

/// What names a value.
struct SettingName {
    QString section;
    QString key;
};

/// What a run kept that did not come to save it.
struct RecoveredChanges {
    std::vector<KeptChange> changes; ///< in the order of section and key
    int unreadable = 0;              ///< further ones that were damaged
};

/// String values addressed by section and key; the application name is the store's own affair. Values may hold any
/// character, U+0000 included. Nothing is ever deleted.
class SettingsStore : public SettingsSink
{
public:
    /// What the last run kept or stored, or the given default when the key is missing or the store cannot be read.
    virtual QString read(const QString &section, const QString &key, const QString &defaultValue) const = 0;
    /// Notes a value for the next save(); read() does not see it before.
    void write(const QString &section, const QString &key, const QString &value) override = 0;
    /// Writes everything noted since the last save, all or nothing. Empty on success; otherwise one sentence for
    /// the user that says what failed, and the store is as it was before.
    [[nodiscard]] virtual std::optional<QString> save() = 0;
    /// What keeps the store from being read or written, as one sentence for the user; empty when all is well.
    virtual std::optional<QString> problem() const = 0;

    /// Keeps these changes beside the stored values until they are saved, and of what is undone nothing any more; all
    /// or nothing. A later change of the same key takes the place of an earlier one. Empty on success; otherwise one
    /// sentence for the user.
    [[nodiscard]] virtual std::optional<QString> keep(const std::vector<KeptChange> &changes,
                                                      const std::vector<SettingName> &undone)
        = 0;
    /// What an earlier run kept and nobody saved since. Nothing after an orderly end.
    virtual RecoveredChanges recovered() const = 0;
    /// The next save() saves whatever was kept, and read() does not see it any more.
    virtual void dropKept() = 0;
};

} // namespace nimb
