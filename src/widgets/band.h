// A strip that says what the user should know before he goes on.
#pragma once

#include "widgets/form_layout.h"
#include "widgets/link_colours.h"

#include <QLabel>
#include <QStringList>

namespace nimb
{

/// A line around it where colours of high contrast leave its ground like any other.
class BandStrip : public QWidget
{
public:
    explicit BandStrip(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// The same as a text.
class BandLabel : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Hidden at first. The desktop's colours for what explains something.
QLabel *makeBand(QWidget *parent);

/// The text of a band that is a strip with more than a text.
QLabel *makeBandText(BandStrip &strip);

/// The same for a text that holds a link and nothing that is not the program's own.
QLabel *makeBandWithLink(QWidget *parent);

/// An answer that a band offers: a link whose words stay on one line.
QString bandAnswer(const QString &name, const QString &words);

/// "this / that / no", broken only between two of them.
QString bandAnswers(const QStringList &answers);

} // namespace nimb
