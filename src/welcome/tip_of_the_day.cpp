#include "welcome/tip_of_the_day.h"

#include "base/line_break.h"
#include "base/remote_text.h"
#include "base/settings.h"

#include <limits>

namespace nimb
{
namespace
{

const QLatin1String showKey("TipOTDay");
const QLatin1String counterKey("TipOTDayNum");

/// The counter has 16 bits; the tip after this one is the first again.
constexpr std::int16_t highestCounter = std::numeric_limits<std::int16_t>::max();

std::int16_t storedCounter(const SettingsStore &store)
{
    bool isNumber = false;
    const std::int16_t stored = readSetting(store, counterKey).trimmed().toShort(&isNumber);
    return isNumber && stored > 0 ? stored : std::int16_t{0};
}

} // namespace

bool TipOfTheDay::showsAtStart() const
{
    return tipsAtStart(m_store);
}

ShownTip TipOfTheDay::Form_Load()
{
    m_counter = storedCounter(m_store);
    if (!open())
        return unreadable();
    return shown(readLineOfCounter());
}

ShownTip TipOfTheDay::nextbtn_Click()
{
    std::optional<QString> item;
    if (m_reader && m_counter < highestCounter)
        item = m_reader->readItem();
    if (item)
        return shown(*item);
    if (!open())
        return unreadable();
    m_counter = 0;
    return shown(m_reader->readLine().value_or(QString()));
}

std::optional<QString> TipOfTheDay::Form_Unload(bool showAtStart)
{
    writeSetting(m_store, showKey, showAtStart ? QStringLiteral("1") : QStringLiteral("0"));
    writeSetting(m_store, counterKey, QString::number(m_counter));
    return m_store.save();
}

bool TipOfTheDay::open()
{
    m_reader.reset();
    if (std::optional<QByteArray> bytes = m_openFile())
        m_reader.emplace(*std::move(bytes));
    return m_reader.has_value();
}

/// Counts on at the first line behind the last one. The counter is 0 again then, but as many lines are read as it said
/// at first; whole rounds among them change nothing and are left out, or a long file would be gone through for minutes.
QString TipOfTheDay::readLineOfCounter()
{
    std::int16_t skipped = 0;
    while (skipped < m_counter && m_reader->skipLine())
        ++skipped;
    if (m_counter < highestCounter && !m_reader->atEnd())
        return *m_reader->readLine();
    const int rest = skipped > 0 ? m_counter % skipped : 0;
    m_reader->rewind();
    m_counter = 0;
    for (int i = 0; i < rest; ++i)
        m_reader->skipLine();
    return m_reader->readLine().value_or(QString());
}

ShownTip TipOfTheDay::shown(const QString &tip)
{
    ++m_counter;
    const QString lines = QString(tip).replace(QLatin1String("||"), lineBreak);
    return {lineBreak + shownText(remoteBody(lines)) + lineBreak, tr("Tip of the Day - Tip #%1").arg(m_counter)};
}

ShownTip TipOfTheDay::unreadable()
{
    const QString sentence = tr("There are no tips to show: the file TOTD.txt, which came with the program, is missing "
                                "or cannot be read.");
    return {lineBreak + sentence + lineBreak, tr("Tip of the Day")};
}

} // namespace nimb
