#include "widgets/band.h"

#include "widgets/muted_colour.h"

#include <QPainter>

namespace nimb
{
namespace
{

void dressBand(QLabel &band)
{
    band.setWordWrap(true);
    band.setMargin(form_layout::margin);
    band.setBackgroundRole(QPalette::ToolTipBase);
    band.setForegroundRole(QPalette::ToolTipText);
}

void paintBandEdge(QWidget &band)
{
    if (!isOfHighContrast(band.palette()))
        return;
    QPainter painter(&band);
    painter.setPen(band.palette().color(QPalette::ToolTipText));
    painter.drawRect(band.rect().adjusted(0, 0, -1, -1));
}

} // namespace

BandStrip::BandStrip(QWidget *parent) : QWidget(parent)
{
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
}

void BandStrip::paintEvent(QPaintEvent *)
{
    paintBandEdge(*this);
}

void BandLabel::paintEvent(QPaintEvent *event)
{
    QLabel::paintEvent(event);
    paintBandEdge(*this);
}

QLabel *makeBand(QWidget *parent)
{
    auto *const band = new BandLabel(parent);
    dressBand(*band);
    band->setAutoFillBackground(true);
    band->hide();
    return band;
}

QLabel *makeBandText(BandStrip &strip)
{
    auto *const text = new QLabel(&strip);
    dressBand(*text);
    text->hide();
    return text;
}

QLabel *makeBandWithLink(QWidget *parent)
{
    QLabel *const band = makeBand(parent);
    band->setTextFormat(Qt::RichText);
    band->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    keepLinkColours(*band);
    return band;
}

QString bandAnswer(const QString &name, const QString &words)
{
    QString together = words;
    together.replace(QLatin1Char(' '), QChar(QChar::Nbsp));
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(name, together);
}

QString bandAnswers(const QStringList &answers)
{
    return answers.join(QChar(QChar::Nbsp) + QLatin1String("/ "));
}

} // namespace nimb
