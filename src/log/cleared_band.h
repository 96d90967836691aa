// A strip that brings back what was cleared.
#pragma once

#include "log/rich_text_log.h"

#include <QLabel>
#include <QObject>

#include <functional>
#include <optional>

class QTimer;

namespace nimb
{

/// Clears a log and keeps what stood there for limits::clearedKept. What comes meanwhile stands behind it when it is
/// brought back. Clearing again meanwhile loses nothing.
class ClearedBand : public QObject
{
    Q_OBJECT

public:
    /// sentence: says that it was cleared. log: outlives this, as does parent, whose child the strip is.
    ClearedBand(RichTextLogEdit &log, const QString &sentence, QWidget *parent);

    /// The strip, for the parent to place. Visible while there is something to bring back.
    QLabel *strip() const { return m_strip; }
    /// clearing: empties the log, and may write into it.
    void clear(const std::function<void()> &clearing);

Q_SIGNALS:
    void broughtBack();

private:
    void bringBack();
    void forget();

    RichTextLogEdit &m_log;
    QLabel *m_strip;
    QTimer *m_forGood;
    std::optional<RichTextLogEdit::Kept> m_cleared;
    qsizetype m_writtenInstead = 0; ///< characters that clearing has written
};

} // namespace nimb
