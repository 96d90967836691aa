#include "log/RTFSubClass.h"

#include "log/link_finder.h"
#include "log/rich_text_log.h"

#include <algorithm>

namespace nimb
{

void RTFSubClass::HookRichText(RichTextLogEdit &control, QWidget &parent)
{
    control.setLinkDetection(true);
    m_hooks.push_back({QObject::connect(&control, &RichTextLogEdit::linkPressed, &parent,
                                        [this](const QUrl &target) { RichTextHookProc(target); }),
                       &control, &parent});
}

void RTFSubClass::UnhookRichText(RichTextLogEdit &control)
{
    const auto hook = std::find_if(m_hooks.begin(), m_hooks.end(),
                                   [&control](const Hook &entry) { return entry.control == &control; });
    if (hook == m_hooks.end())
        return;
    control.setLinkDetection(false);
    QObject::disconnect(hook->procedure);
    *hook = {};
}

bool RTFSubClass::isHooked(const RichTextLogEdit &control) const
{
    return std::any_of(m_hooks.begin(), m_hooks.end(),
                       [&control](const Hook &entry) { return entry.control == &control; });
}

/// The log holds links that may be opened and no others; the target is judged once more all the same.
void RTFSubClass::RichTextHookProc(const QUrl &target)
{
    if (const std::optional<QUrl> allowed = linkTarget(QString::fromLatin1(target.toEncoded())))
        m_opener.open(*allowed);
}

} // namespace nimb
