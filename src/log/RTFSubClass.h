// Opens the links of the logs: the hooks between logs and the system's handler for addresses.
#pragma once

#include "base/link_opener.h"

#include <QMetaObject>

#include <vector>

class QWidget;

namespace nimb
{

class RichTextLogEdit;

/// Every window with a conversation hooks its log when it loads and unhooks it when it unloads. Windows do not disturb
/// each other.
class RTFSubClass
{
public:
    explicit RTFSubClass(LinkOpener &opener) : m_opener(opener) { }

    /// Switches on link detection in the log of this window, and the opening of what is pressed.
    void HookRichText(RichTextLogEdit &control, QWidget &parent);
    /// Undoes it; a log that is not hooked is ignored.
    void UnhookRichText(RichTextLogEdit &control);

    /// Entries ever made, removed ones included.
    std::size_t count() const { return m_hooks.size(); }
    bool isHooked(const RichTextLogEdit &control) const;

private:
    /// A removed one is blank.
    struct Hook {
        QMetaObject::Connection procedure;
        RichTextLogEdit *control = nullptr;
        QWidget *parent = nullptr;
    };

    void RichTextHookProc(const QUrl &target, QWidget &parent);

    LinkOpener &m_opener;
    std::vector<Hook> m_hooks; ///< only grows
};

} // namespace nimb
