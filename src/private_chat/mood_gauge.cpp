#include "private_chat/mood_gauge.h"

#include "widgets/muted_colour.h"

#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>

namespace nimb
{
namespace
{

constexpr int pixelsAUnit = 2;
constexpr int widthInUnits = 10;
constexpr double markerColumn = 5, markerRadius = 2; ///< units

/// The colours that the names of the moods promise.
QGradientStops scaleColours()
{
    const auto at = [](double value, const QColor &colour) { return QGradientStop(value / Mood::scaleEnd, colour); };
    return {at(0, Qt::white),
            at(8, QColor(170, 255, 170)),
            at(18, QColor(0, 190, 60)),
            at(26, QColor(120, 210, 40)),
            at(34, QColor(255, 235, 0)),
            at(41, QColor(255, 190, 0)),
            at(50, QColor(215, 0, 0)),
            at(57, QColor(80, 0, 0)),
            at(62, Qt::black)};
}

} // namespace

MoodGauge::MoodGauge(QWidget *parent) : QWidget(parent)
{
    setFixedSize(widthInUnits * pixelsAUnit, Mood::scaleEnd * pixelsAUnit);
}

void MoodGauge::setMood(const MoodMark &mood)
{
    m_mood = mood;
    update();
}

void MoodGauge::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QLinearGradient scale(0, 0, 0, height());
    scale.setStops(scaleColours());
    // A frame that is filled rather than drawn: at a scale of 2 a line would leave a strip beside it.
    painter.fillRect(rect(), outlineColour(palette()));
    painter.fillRect(rect().adjusted(1, 1, -1, -1), scale);
    if (!m_mood)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_mood->bright ? Qt::white : Qt::black, 1.5));
    painter.drawEllipse(QPointF(markerColumn, m_mood->value) * pixelsAUnit, markerRadius * pixelsAUnit,
                        markerRadius * pixelsAUnit);
}

void MoodGauge::mousePressEvent(QMouseEvent *event)
{
    const auto value = static_cast<float>(event->position().y() / pixelsAUnit);
    if (event->button() == Qt::LeftButton && value >= 0 && value < Mood::scaleEnd)
        Q_EMIT pressed(value);
}

} // namespace nimb
