#include "widgets/muted_text.h"

#include "widgets/muted_colour.h"

#include <QEvent>
#include <QWidget>

namespace nimb
{
namespace
{

void takeMutedColour(QWidget &text)
{
    QPalette colours = text.palette();
    const QColor muted = mutedTextColour(colours);
    // To set a palette is a change of it again.
    if (colours.color(QPalette::WindowText) == muted)
        return;
    colours.setColor(QPalette::WindowText, muted);
    text.setPalette(colours);
}

class PaletteFollower : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::PaletteChange)
            takeMutedColour(static_cast<QWidget &>(*watched));
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void keepMuted(QWidget &text)
{
    text.installEventFilter(new PaletteFollower(&text));
    takeMutedColour(text);
}

} // namespace nimb
