#include "widgets/elided_line.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace nimb
{

ElidedLine::ElidedLine(QWidget *parent) : QLineEdit(parent)
{
    setReadOnly(true);
    connect(this, &QLineEdit::textChanged, this, &ElidedLine::refreshToolTip);
}

QRect ElidedLine::textPlace() const
{
    constexpr int besideText = 2; // what the line edit itself leaves
    QStyleOptionFrame option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_LineEditContents, &option, this).adjusted(besideText, 0, -besideText, 0);
}

QString ElidedLine::shownText() const
{
    return fontMetrics().elidedText(text(), Qt::ElideRight, textPlace().width());
}

void ElidedLine::refreshToolTip()
{
    setToolTip(shownText() == text() ? QString() : text());
}

void ElidedLine::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (hasFocus() || shown == text())
        return QLineEdit::paintEvent(event);
    QPainter painter(this);
    QStyleOptionFrame option;
    initStyleOption(&option);
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(textPlace(),
                     static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)) | Qt::AlignVCenter
                         | Qt::TextSingleLine,
                     shown);
}

void ElidedLine::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    refreshToolTip();
}

} // namespace nimb
