// The main window's log: which lines it has, and in which colours.
#pragma once

#include "base/rich_text.h"
#include "base/timers.h"

#include <QCoreApplication>

namespace nimb
{

/// Words in a line of the log that open something when they are clicked.
struct LogCommand {
    QString words;
    QString name; ///< see RichTextLog::setSelCommand()
};

/// Opens the network doctor.
inline const QString networkDoctorCommand = QStringLiteral("networkDoctor");
/// Opens the window of transfers.
inline const QString transfersCommand = QStringLiteral("transfers");

class MainLog
{
    Q_DECLARE_TR_FUNCTIONS(MainLog)

public:
    MainLog(RichTextLog &log, const WallClock &clock) : m_log(log), m_clock(clock) { }

    /// The line with which a log begins.
    void banner();
    /// Empties the log down to its banner.
    void clear();

    void changedName(const QString &from, const QString &to);
    void wentOnline(const QString &name);
    void wentOffline(const QString &name);
    /// state: the state word alone.
    void changedState(const QString &name, const QString &state);
    /// A buzz that no window shows.
    void buzzed(const QString &name);
    /// sender: who sent the contact of that name.
    void sentContact(const QString &sender, const QString &name, const QString &address);
    /// data: the whole datagram.
    void unsupportedCommand(const QString &data);
    void garbage(const QString &data);
    /// Further ones of this sender, which have no line of their own.
    void moreUnknown(const QString &sender, int count);
    /// A fault of the program's own surroundings (port, store), one sentence.
    void fault(const QString &sentence);
    /// What the program does, or has done, because the user has asked for it: a part of a sentence.
    void note(const QString &text);
    /// The same with a command in the place of "%1".
    void note(const QString &text, const LogCommand &command);
    /// Something worth knowing that is no fault.
    void remark(const QString &sentence);

private:
    void line(const QString &text, Colour colour);
    /// "--- date @ time - "
    QString opening() const;

    RichTextLog &m_log;
    const WallClock &m_clock;
};

} // namespace nimb
