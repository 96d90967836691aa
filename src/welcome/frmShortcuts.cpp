#include "welcome/frmShortcuts.h"

#include "widgets/dialog_parts.h"
#include "widgets/pictures.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <array>
#include <span>

namespace nimb
{
namespace
{

struct Shortcut {
    const char *keys;
    const char *purpose;
};

struct ShortcutGroup {
    const char *place;
    std::span<const Shortcut> shortcuts;
};

constexpr std::array everywhereShortcuts{
    Shortcut{"F1", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Open the manual at the page of the window")},
};
constexpr std::array mainShortcuts{
    Shortcut{"Ctrl+K", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Find a contact; typing in the list does the same")},
    Shortcut{"Ctrl+H", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "What was kept of conversations")},
    Shortcut{"Enter", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Open the private window of the selected contact")},
    Shortcut{"Del", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Remove the selected contacts, after a question")},
    Shortcut{"Esc", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Leave the search for a contact")},
};
constexpr std::array conversationShortcuts{
    Shortcut{"Enter", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Send the message")},
    Shortcut{"Shift+Enter", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Begin another line")},
    Shortcut{"Up", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "In an empty box: bring back the last message")},
    Shortcut{"Ctrl+.", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Choose an emoji")},
    Shortcut{"Ctrl+G", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Buzz (private windows)")},
    Shortcut{"Ctrl+W", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Close the window")},
    Shortcut{"Esc", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Leave the search, the emoticons or the emoji")},
};
constexpr std::array logShortcuts{
    Shortcut{"Ctrl+F", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Search in the log")},
    Shortcut{"Ctrl+C", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Copy what is selected")},
    Shortcut{"Ctrl++", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Larger letters")},
    Shortcut{"Ctrl+-", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Smaller letters")},
    Shortcut{"Ctrl+0", QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Letters of their own size")},
};

const std::array shortcutGroups{
    ShortcutGroup{QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Every window"), everywhereShortcuts},
    ShortcutGroup{QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Main window"), mainShortcuts},
    ShortcutGroup{QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Conversations"), conversationShortcuts},
    ShortcutGroup{QT_TRANSLATE_NOOP("nimb::frmShortcuts", "Logs"), logShortcuts},
};

QTreeWidget *makeList(QWidget *parent)
{
    auto *const list = named(new QTreeWidget(parent), "shortcuts");
    list->setAccessibleName(frmShortcuts::tr("Keyboard shortcuts"));
    list->setColumnCount(2);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setItemsExpandable(false);
    list->setIndentation(0);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const ShortcutGroup &group : shortcutGroups) {
        auto *const heading = new QTreeWidgetItem(list, {frmShortcuts::tr(group.place)});
        heading->setFirstColumnSpanned(true);
        QFont bold = list->font();
        bold.setBold(true);
        heading->setFont(0, bold);
        for (const Shortcut &shortcut : group.shortcuts) {
            const QKeySequence keys(QString::fromLatin1(shortcut.keys), QKeySequence::PortableText);
            new QTreeWidgetItem(heading, {keys.toString(QKeySequence::NativeText), frmShortcuts::tr(shortcut.purpose)});
        }
    }
    list->expandAll();
    return list;
}

/// All rows are seen, whatever the font.
QSize sizeOf(const QTreeWidget &list)
{
    int height = 2 * list.frameWidth(), width = 2 * list.frameWidth();
    for (QTreeWidgetItem *row = list.topLevelItem(0); row; row = list.itemBelow(row))
        height += list.visualItemRect(row).height();
    for (int column = 0; column < list.columnCount(); ++column)
        width += list.columnWidth(column);
    return {width, height};
}

} // namespace

frmShortcuts::frmShortcuts(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmShortcuts"));
    setWindowTitle(tr("NIMB-Chat - Keyboard Shortcuts"));
    setWindowIcon(programIcon());
    setAttribute(Qt::WA_DeleteOnClose);
    QTreeWidget *const list = makeList(this);
    auto *const buttons = new QDialogButtonBox(this);
    QPushButton *const close = addButton(*buttons, "closeBtn", tr("Close"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto *const column = new QVBoxLayout(this);
    column->setContentsMargins(form_layout::margin, form_layout::margin, form_layout::margin, form_layout::margin);
    column->setSpacing(form_layout::groupDistance);
    column->addWidget(list);
    column->addWidget(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    for (int i = 0; i < list->columnCount(); ++i)
        list->resizeColumnToContents(i);
    list->setFixedSize(sizeOf(*list));
}

} // namespace nimb
