#include "widgets/clear_outlines.h"

#include "widgets/muted_colour.h"

#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyleOption>
#include <QTextEdit>
#include <QToolButton>

namespace nimb
{
namespace
{

const QString qtsOwnStyle = QStringLiteral("fusion");
/// How much darker than the window the style makes an outline, in per cent.
constexpr int stylesDarkening = 140;
/// Widgets have a handful of palettes; after a change of the desktop's colours the old ones are of no use.
constexpr int palettesKept = 32;

bool needsClearOutlines(const QPalette &palette)
{
    return isDark(palette.color(QPalette::Window)) || isOfHighContrast(palette);
}

bool isTypedInto(const QWidget *widget)
{
    if (const auto *const box = qobject_cast<const QPlainTextEdit *>(widget))
        return !box->isReadOnly();
    const auto *const box = qobject_cast<const QTextEdit *>(widget);
    return box && !box->isReadOnly();
}

/// Lists and logs stand out by their ground, unless everything is black.
bool isOutlined(QStyle::PrimitiveElement element, const QPalette &palette, const QWidget *widget)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorRadioButton:
    case QStyle::PE_FrameLineEdit:
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_PanelButtonCommand:
        return true;
    case QStyle::PE_Frame:
        return isTypedInto(widget) || isOfHighContrast(palette);
    default:
        return false;
    }
}

void drawEdge(QPainter &painter, const QRect &around, const QColor &colour)
{
    constexpr double corner = 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(colour);
    painter.drawRoundedRect(QRectF(around).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.restore();
}

/// In place of the style's own, a picture of black that is nearly transparent.
void drawGroupFrame(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    constexpr int aboveFrame = 3;
    const auto *const box = qobject_cast<const QGroupBox *>(widget);
    const bool hasHeading = !box || box->isCheckable() || !box->title().isEmpty();
    const int indicator = box ? box->style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight, &option, box) : 0;
    const int heading = hasHeading ? qMax(indicator, option.fontMetrics.height()) : 0;
    drawEdge(painter, option.rect.adjusted(0, heading + aboveFrame, 0, 0), outlineColour(option.palette));
}

/// Around three sides; the lower one belongs to what the tabs stand on.
void drawTabEdge(const QStyleOptionTab &tab, QPainter &painter)
{
    const bool selected = tab.state.testFlag(QStyle::State_Selected);
    constexpr int lowerThanSelected = 2;
    const QRect edge = tab.rect.adjusted(0, selected ? 0 : lowerThanSelected, 0, 0);
    painter.save();
    painter.setClipRect(edge, Qt::IntersectClip);
    drawEdge(painter, edge.adjusted(0, 0, 0, edge.height()), outlineColour(tab.palette));
    if (selected)
        painter.fillRect(QRect(edge.left() + 1, edge.top(), edge.width() - 2, 2), tab.palette.highlight());
    painter.restore();
}

/// A plain bar: the style's own is a shade away from what it moves on.
void drawHandle(const QRect &place, const QStyleOptionSlider &bar, QPainter &painter)
{
    constexpr int besideBar = 3, roundEnd = 3;
    const bool lies = bar.orientation == Qt::Horizontal;
    const QRect handle
        = place.adjusted(lies ? 1 : besideBar, lies ? besideBar : 1, lies ? -1 : -besideBar, lies ? -besideBar : -1);
    if (!bar.state.testFlag(QStyle::State_Enabled) || bar.maximum <= bar.minimum || handle.isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(outlineColour(bar.palette));
    painter.drawRoundedRect(handle, roundEnd, roundEnd);
    painter.restore();
}

/// Where the style itself shows nothing: around a text, and in a default button, which is edged as one with the focus.
void drawFocus(QStyle::PrimitiveElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    const bool isText = qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget);
    if (element == QStyle::PE_Frame && isText)
        drawEdge(painter, option.rect, focusColour(option.palette));
    const auto *const button = qobject_cast<const QPushButton *>(widget);
    const bool byKeys = option.state.testFlag(QStyle::State_KeyboardFocusChange);
    if (element == QStyle::PE_PanelButtonCommand && byKeys && button && button->isDefault())
        drawEdge(painter, option.rect.adjusted(3, 3, -3, -3), option.palette.color(QPalette::ButtonText));
}

template <class Option> Option inColours(const Option &option, const QPalette &palette)
{
    Option copy(option);
    copy.palette = palette;
    copy.palette.setCurrentColorGroup(option.palette.currentColorGroup());
    return copy;
}

} // namespace

QColor focusColour(const QPalette &palette)
{
    constexpr double toldApart = 1.5;
    const QColor accent = palette.color(QPalette::Highlight), ground = palette.color(QPalette::Base);
    if (contrast(accent, outlineColour(palette)) >= toldApart)
        return accent;
    return {(accent.red() + ground.red()) / 2, (accent.green() + ground.green()) / 2,
            (accent.blue() + ground.blue()) / 2};
}

ClearOutlines::ClearOutlines() : QProxyStyle(qtsOwnStyle) { }

const QPalette &ClearOutlines::outlined(const QPalette &palette) const
{
    const auto known = m_outlined.constFind(palette.cacheKey());
    if (known != m_outlined.constEnd())
        return *known;
    if (m_outlined.size() >= palettesKept)
        m_outlined.clear();
    QPalette made = palette;
    made.setColor(QPalette::Window, outlineColour(palette).lighter(stylesDarkening));
    m_outlined.insert(made.cacheKey(), made); // a part of a control comes with the palette of the whole
    return *m_outlined.insert(palette.cacheKey(), made);
}

void ClearOutlines::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    const bool clear = option && needsClearOutlines(option->palette);
    // The style's own is the accent, nearly transparent.
    if (clear && element == PE_FrameFocusRect && qobject_cast<const QToolButton *>(widget))
        return drawEdge(*painter, option->rect, focusColour(option->palette));
    if (clear && element == PE_FrameGroupBox)
        return drawGroupFrame(*option, *painter, widget);
    if (clear && isOutlined(element, option->palette, widget)) {
        const QPalette &colours = outlined(option->palette);
        if (const auto *const button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            const QStyleOptionButton copy = inColours(*button, colours);
            QProxyStyle::drawPrimitive(element, &copy, painter, widget);
            return drawFocus(element, *option, *painter, widget);
        }
        if (const auto *const frame = qstyleoption_cast<const QStyleOptionFrame *>(option)) {
            const QStyleOptionFrame copy = inColours(*frame, colours);
            QProxyStyle::drawPrimitive(element, &copy, painter, widget);
            return drawFocus(element, *option, *painter, widget);
        }
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isPressedTool = element == PE_PanelButtonTool && option && option->state.testFlag(State_On);
    if (option)
        drawFocus(element, *option, *painter, widget);
    if (clear && (element == PE_FrameMenu || element == PE_PanelMenu || isPressedTool))
        drawEdge(*painter, option->rect, outlineColour(option->palette));
}

void ClearOutlines::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    const auto *const tab = qstyleoption_cast<const QStyleOptionTab *>(option);
    if (element == CE_TabBarTabShape && tab && tab->shape == QTabBar::RoundedNorth && needsClearOutlines(tab->palette))
        drawTabEdge(*tab, *painter);
}

void ClearOutlines::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                       const QWidget *widget) const
{
    if (option && needsClearOutlines(option->palette)) {
        if (const auto *const combo = qstyleoption_cast<const QStyleOptionComboBox *>(option)) {
            const QStyleOptionComboBox copy = inColours(*combo, outlined(combo->palette));
            return QProxyStyle::drawComplexControl(control, &copy, painter, widget);
        }
        if (const auto *const spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option)) {
            const QStyleOptionSpinBox copy = inColours(*spin, outlined(spin->palette));
            return QProxyStyle::drawComplexControl(control, &copy, painter, widget);
        }
        const auto *const bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
        if (control == CC_ScrollBar && bar && isOfHighContrast(bar->palette)) {
            const QStyleOptionSlider copy = inColours(*bar, outlined(bar->palette));
            QProxyStyle::drawComplexControl(control, &copy, painter, widget);
            return drawHandle(proxy()->subControlRect(control, bar, SC_ScrollBarSlider, widget), *bar, *painter);
        }
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void makeOutlinesClear()
{
    if (QApplication::style()->name() == qtsOwnStyle)
        QApplication::setStyle(new ClearOutlines);
}

} // namespace nimb
