// The rules of the tip of the day.
#pragma once

#include "base/settings_store.h"
#include "welcome/tip_reader.h"

#include <QCoreApplication>

#include <cstdint>
#include <functional>

namespace nimb
{

/// What the dialog shows.
struct ShownTip {
    QString text; ///< line breaks are CR LF
    QString caption;
};

/// The engine half of frmTipOfTheDay.
class TipOfTheDay
{
    Q_DECLARE_TR_FUNCTIONS(TipOfTheDay)

public:
    /// Reads the whole file of tips; nothing when it is missing or cannot be read.
    using OpenFile = std::function<std::optional<QByteArray>()>;

    TipOfTheDay(SettingsStore &store, OpenFile openFile) : m_store(store), m_openFile(std::move(openFile)) { }

    /// What the check box shows first.
    bool showsAtStart() const;
    /// The next tip as a whole line. When the file cannot be read a sentence that says so, and no tip counts as shown.
    ShownTip Form_Load();
    /// The next item of the file, whose commas part a tip into pieces. Behind the last one the file is read anew.
    ShownTip nextbtn_Click();
    /// Saves the option and how many tips have been shown. Returns one sentence for the user when saving failed.
    [[nodiscard]] std::optional<QString> Form_Unload(bool showAtStart);

private:
    [[nodiscard]] bool open();
    QString readLineOfCounter();
    ShownTip shown(const QString &tip);
    static ShownTip unreadable();

    SettingsStore &m_store;
    OpenFile m_openFile;
    std::optional<TipReader> m_reader; ///< nothing while the file cannot be read
    std::int16_t m_counter = 0;        ///< tips shown, never negative
};

} // namespace nimb
