#include "window_faults.h"

#include "widgets/elided_label.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QToolButton>

namespace nimb::test
{
namespace
{

constexpr int panelOfDesktop = 40;
/// Of a window manager, around a window: what the test's own platform draws may be less.
constexpr QSize frameOfWindow(4, 32);

std::string nameOf(const QWidget &widget)
{
    const QString text = widget.property("text").toString();
    return QStringLiteral("%1 \"%2\" (%3 x %4)")
        .arg(widget.objectName().isEmpty() ? QLatin1String(widget.metaObject()->className()) : widget.objectName(),
             text.left(30))
        .arg(widget.width())
        .arg(widget.height())
        .toStdString();
}

std::string needs(const QSize &size)
{
    return " needs " + std::to_string(size.width()) + " x " + std::to_string(size.height());
}

bool hasRoomFor(const QWidget &widget, const QSize &size)
{
    return widget.width() >= size.width() && widget.height() >= size.height();
}

/// What is wrong with a window, as sentences.
class Faults
{
public:
    explicit Faults(const QWidget &window) : m_window(window)
    {
        checkWidget(window);
        for (const QWidget *const widget : window.findChildren<QWidget *>()) {
            if (widget->isVisibleTo(&window) && widget->window() == &window)
                checkWidget(*widget);
        }
        checkFrame();
    }

    const std::vector<std::string> &found() const { return m_found; }

private:
    void checkWidget(const QWidget &widget)
    {
        if (const auto *const label = qobject_cast<const QLabel *>(&widget))
            checkLabel(*label);
        else if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
            checkButton(*button);
        else if (const auto *const box = qobject_cast<const QGroupBox *>(&widget))
            checkTitle(*box);
        else if (const auto *const tabs = qobject_cast<const QTabBar *>(&widget))
            checkTabs(*tabs);
        else if (const auto *const bar = qobject_cast<const QMenuBar *>(&widget))
            checkMenus(*bar);
        else if (qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget))
            checkField(widget);
        if (const QLayout *const layout = widget.layout())
            checkLayout(*layout);
        else
            checkPlaced(widget);
    }

    /// One that elides does so in its width alone.
    void checkLabel(const QLabel &label)
    {
        if (label.wordWrap()) {
            if (label.height() < label.heightForWidth(label.width()))
                m_found.push_back(nameOf(label) + needs({label.width(), label.heightForWidth(label.width())}));
            return;
        }
        const bool elides = qobject_cast<const ElidedLabel *>(&label);
        const QSize wanted(elides ? 0 : label.sizeHint().width(), label.sizeHint().height());
        if (!label.text().isEmpty() && !hasRoomFor(label, wanted))
            m_found.push_back(nameOf(label) + needs(wanted));
    }

    /// A style's hint has generous room around a caption; what must not be less is the caption itself.
    void checkButton(const QAbstractButton &button)
    {
        const QFontMetrics metrics = button.fontMetrics();
        const auto *const tool = qobject_cast<const QToolButton *>(&button);
        const bool hasText = !button.text().isEmpty()
            && (!tool || button.icon().isNull() || tool->toolButtonStyle() != Qt::ToolButtonIconOnly);
        const QSize caption = hasText ? metrics.size(Qt::TextShowMnemonic, button.text()) : QSize(0, 0);
        const QSize picture = button.icon().isNull() ? QSize(0, 0) : button.iconSize();
        QSize wanted(caption.width() + picture.width(), qMax(caption.height(), picture.height()));
        if (button.inherits("QCheckBox") || button.inherits("QRadioButton"))
            wanted.setWidth(button.sizeHint().width());
        else if (button.inherits("QPushButton"))
            wanted += QSize(6, 2);
        if (!hasRoomFor(button, wanted))
            m_found.push_back(nameOf(button) + needs(wanted));
    }

    void checkTitle(const QGroupBox &box)
    {
        QStyleOptionGroupBox option;
        option.initFrom(&box);
        option.text = box.title();
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        const QRect place = box.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box);
        const int end = place.left() + box.fontMetrics().horizontalAdvance(box.title());
        if (end > box.width() || !box.rect().contains(place))
            m_found.push_back(nameOf(box) + " '" + box.title().toStdString() + "' ends at " + std::to_string(end));
    }

    void checkTabs(const QTabBar &tabs)
    {
        for (int tab = 0; tab < tabs.count(); ++tab) {
            const QRect place = tabs.tabRect(tab);
            const QSize wanted = tabs.fontMetrics().size(Qt::TextShowMnemonic, tabs.tabText(tab)) + QSize(4, 0);
            if (!tabs.rect().contains(place) || place.width() < wanted.width() || place.height() < wanted.height())
                m_found.push_back(nameOf(tabs) + " '" + tabs.tabText(tab).toStdString() + "'" + needs(wanted));
        }
    }

    void checkMenus(const QMenuBar &bar)
    {
        for (QAction *const action : bar.actions()) {
            if (!bar.rect().contains(bar.actionGeometry(action)) || bar.actionGeometry(action).isEmpty())
                m_found.push_back("the menu '" + action->text().toStdString() + "' is cut");
        }
    }

    void checkField(const QWidget &field)
    {
        if (field.height() < field.fontMetrics().height() + 2)
            m_found.push_back(nameOf(field) + " is lower than its letters");
        // One that is read alone cannot be scrolled by whoever does not know that it can.
        const auto *const box = qobject_cast<const QLineEdit *>(&field);
        const int letters = box ? box->fontMetrics().horizontalAdvance(box->text()) : 0;
        if (box && box->isReadOnly() && field.width() < letters)
            m_found.push_back(nameOf(field) + needs({letters, field.height()}));
    }

    void checkLayout(const QLayout &layout)
    {
        const QRect room = layout.parentWidget()->rect();
        std::vector<const QLayoutItem *> shown;
        for (int i = 0; i < layout.count(); ++i) {
            QLayoutItem *const item = layout.itemAt(i);
            if (const QLayout *const inner = item->layout())
                checkLayout(*inner);
            if (item->isEmpty() || item->spacerItem())
                continue;
            shown.push_back(item);
            if (!room.contains(item->geometry()))
                m_found.push_back(nameOf(*item) + " reaches beyond its parent");
        }
        for (std::size_t i = 0; i < shown.size(); ++i) {
            for (std::size_t j = i + 1; j < shown.size(); ++j) {
                if (shown[i]->geometry().intersects(shown[j]->geometry()))
                    m_found.push_back(nameOf(*shown[i]) + " and " + nameOf(*shown[j]) + " overlap");
            }
        }
    }

    /// Controls that are placed by hand, as those of the main window are. Panels may lie over them.
    void checkPlaced(const QWidget &parent)
    {
        std::vector<const QWidget *> controls;
        for (const QWidget *const child : parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            const bool isControl = qobject_cast<const QAbstractButton *>(child)
                || qobject_cast<const QLineEdit *>(child) || qobject_cast<const QComboBox *>(child)
                || qobject_cast<const QTabBar *>(child);
            if (isControl && child->isVisibleTo(&parent))
                controls.push_back(child);
        }
        for (std::size_t i = 0; i < controls.size(); ++i) {
            if (!parent.rect().contains(controls[i]->geometry()))
                m_found.push_back(nameOf(*controls[i]) + " reaches beyond its parent");
            for (std::size_t j = i + 1; j < controls.size(); ++j) {
                if (controls[i]->geometry().intersects(controls[j]->geometry()))
                    m_found.push_back(nameOf(*controls[i]) + " and " + nameOf(*controls[j]) + " overlap");
            }
        }
    }

    static std::string nameOf(const QWidget &widget) { return test::nameOf(widget); }
    static std::string nameOf(const QLayoutItem &item)
    {
        auto &known = const_cast<QLayoutItem &>(item);
        return known.widget() ? nameOf(*known.widget()) : "a part";
    }

    void checkFrame()
    {
        const QSize frame
            = m_window.windowFlags().testFlag(Qt::FramelessWindowHint) || qobject_cast<const QMenu *>(&m_window)
            ? QSize(0, 0)
            : frameOfWindow;
        const QSize whole = m_window.size() + frame;
        if (whole.width() > smallScreen.width() || whole.height() > smallScreen.height() - panelOfDesktop)
            m_found.push_back("with its frame" + needs(whole));
    }

    const QWidget &m_window;
    std::vector<std::string> m_found;
};

} // namespace

bool isToolkits(const QWidget &window)
{
    return qobject_cast<const QFileDialog *>(&window) || qobject_cast<const QPageSetupDialog *>(&window);
}

std::vector<std::string> faultsOf(const QWidget &window)
{
    return isToolkits(window) ? std::vector<std::string>() : Faults(window).found();
}

} // namespace nimb::test
