// Outlines of controls that are seen on a dark ground as well.
#pragma once

#include <QHash>
#include <QPalette>
#include <QProxyStyle>

namespace nimb
{

/// Qt's own style derives every outline from the colour of the window by making it darker, which on a dark ground
/// leaves boxes, radio buttons and fields without an edge. This one hands it a window from which the darker colour is
/// what is wanted. On a light ground of ordinary contrast nothing is different.
class ClearOutlines : public QProxyStyle
{
    Q_OBJECT

public:
    ClearOutlines();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;

private:
    const QPalette &outlined(const QPalette &palette) const;

    /// By the palette's cache key. The same colours are the same palette, for the style keeps pictures by it.
    mutable QHash<qint64, QPalette> m_outlined;
};

/// The accent, or half of it where it is as black as an outline without the focus.
QColor focusColour(const QPalette &palette);

/// Lets the whole program use it where the desktop brings no style of its own; other styles know their grounds. To be
/// called before there are windows.
void makeOutlinesClear();

} // namespace nimb
