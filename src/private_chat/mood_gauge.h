// A mood gauge on the screen.
#pragma once

#include "private_chat/mood.h"

#include <QWidget>

namespace nimb
{

/// A scale of two pixels a unit, white at the top and black at the bottom, with a marker once a mood is known.
class MoodGauge : public QWidget
{
    Q_OBJECT

public:
    explicit MoodGauge(QWidget *parent);

    void setMood(const MoodMark &mood);
    const std::optional<MoodMark> &mood() const { return m_mood; }

Q_SIGNALS:
    /// The left button was pressed at this height, in units of the scale: 0 to below Mood::scaleEnd.
    void pressed(float value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    std::optional<MoodMark> m_mood;
};

} // namespace nimb
