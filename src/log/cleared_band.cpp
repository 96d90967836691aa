#include "log/cleared_band.h"

#include "base/limits.h"
#include "widgets/band.h"
#include "widgets/form_layout.h"

#include <QTimer>

namespace nimb
{

ClearedBand::ClearedBand(RichTextLogEdit &log, const QString &sentence, QWidget *parent)
    : QObject(parent), m_log(log), m_strip(named(makeBandWithLink(parent), "clearedBand")),
      m_forGood(named(new QTimer(parent), "clearedForGood"))
{
    m_strip->setText(sentence + u' ' + bandAnswer(QStringLiteral("undo"), tr("Bring it back")));
    m_strip->setAccessibleName(sentence);
    m_forGood->setSingleShot(true);
    m_forGood->setInterval(limits::clearedKept);
    connect(m_strip, &QLabel::linkActivated, this, &ClearedBand::bringBack);
    connect(m_forGood, &QTimer::timeout, this, &ClearedBand::forget);
}

void ClearedBand::clear(const std::function<void()> &clearing)
{
    if (m_cleared)
        m_log.bringBack(*m_cleared, m_writtenInstead); // or clearing twice would lose it
    m_cleared = m_log.kept();
    clearing();
    m_writtenInstead = m_log.textLength();
    m_strip->show();
    m_forGood->start();
}

void ClearedBand::bringBack()
{
    if (m_cleared)
        m_log.bringBack(*m_cleared, m_writtenInstead);
    forget();
    Q_EMIT broughtBack();
}

void ClearedBand::forget()
{
    m_forGood->stop();
    m_cleared.reset();
    m_strip->hide();
}

} // namespace nimb
