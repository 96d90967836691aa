#include "log/RTFSubClass.h"

#include "log/link_finder.h"
#include "log/rich_text_log.h"
#include "widgets/message_box.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace nimb
{

void RTFSubClass::HookRichText(RichTextLogEdit &control, QWidget &parent)
{
    control.setLinkDetection(true);
    m_hooks.push_back({QObject::connect(&control, &RichTextLogEdit::linkPressed, &parent,
                                        [this, &parent](const QUrl &target) { RichTextHookProc(target, parent); }),
                       &control, &parent});
}

void RTFSubClass::UnhookRichText(RichTextLogEdit &control)
{
    const auto hook = std::ranges::find(m_hooks, &control, &Hook::control);
    if (hook == m_hooks.end())
        return;
    control.setLinkDetection(false);
    QObject::disconnect(hook->procedure);
    *hook = {};
}

bool RTFSubClass::isHooked(const RichTextLogEdit &control) const
{
    return std::ranges::find(m_hooks, &control, &Hook::control) != m_hooks.end();
}

/// The target is whole and cut already: the log holds what its search for links allows and nothing else.
void RTFSubClass::RichTextHookProc(const QUrl &target, QWidget &parent)
{
    const auto complain = [window = QPointer<QWidget>(parent.window()), target] {
        if (window)
            warn(*window,
                 QCoreApplication::translate("RTFSubClass", "Nothing on this computer opens %1.")
                     .arg(readableAddress(target)));
    };
    if (!m_opener.open(target, complain))
        complain();
}

} // namespace nimb
