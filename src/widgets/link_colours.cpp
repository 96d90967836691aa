#include "widgets/link_colours.h"

#include <QEvent>
#include <QLabel>
#include <QTimer>

namespace nimb
{
namespace
{

class LinkRepainter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        // Links have the colour of the program's palette, which follows those of its widgets.
        if (event->type() == QEvent::PaletteChange)
            QTimer::singleShot(0, watched, [watched] { setAnew(static_cast<QLabel &>(*watched)); });
        return QObject::eventFilter(watched, event);
    }

private:
    static void setAnew(QLabel &label)
    {
        const QString text = label.text();
        label.setText({}); // the same text would change nothing
        label.setText(text);
    }
};

} // namespace

void keepLinkColours(QLabel &label)
{
    label.installEventFilter(new LinkRepainter(&label));
}

} // namespace nimb
