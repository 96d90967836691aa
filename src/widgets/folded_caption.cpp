#include "widgets/folded_caption.h"

#include <QPushButton>

namespace nimb
{
namespace
{

/// As it is where it is one word.
QString onTwoLines(const QString &caption)
{
    const qsizetype middle = caption.size() / 2;
    const qsizetype before = caption.lastIndexOf(u' ', middle), after = caption.indexOf(u' ', middle);
    const bool isBeforeNearer = after < 0 || (before >= 0 && middle - before <= after - middle);
    const qsizetype blank = isBeforeNearer ? before : after;
    return blank < 0 ? caption : QString(caption).replace(blank, 1, u'\n');
}

} // namespace

void showCaption(QPushButton &button, const QString &caption, int room)
{
    button.setText(caption);
    if (button.sizeHint().width() > room)
        button.setText(onTwoLines(caption));
}

} // namespace nimb
