// What was said before the window was opened, painted above a log.
#pragma once

#include "base/history.h"

#include <QPalette>
#include <QTextDocument>

class QPainter;

namespace nimb
{

/// A text of its own above that of the log: it can be read, and is counted, copied and searched nowhere.
class EarlierMessages
{
public:
    EarlierMessages();

    bool isEmpty() const { return m_first.isNull(); }
    /// In front of those that are there.
    void add(const std::vector<StoredMessage> &messages);
    void clear();
    /// The height of all in pixels, in this width and font, with a gap below.
    int layOut(int width, const QFont &font);
    /// place: what of it is to be painted. The colours are paler than those of the log.
    void paint(QPainter &painter, const QRect &place, const QPalette &palette);

private:
    QTextDocument m_text;
    QDate m_first; ///< day of the first message
};

} // namespace nimb
