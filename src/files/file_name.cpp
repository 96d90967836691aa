#include "files/file_name.h"

#include "base/limits.h"
#include "base/remote_text.h"
#include "base/shown_name.h"

#include <QCryptographicHash>
#include <QStringList>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

constexpr QStringView forbiddenInNames = u"/\\:*?\"<>|";

bool isReservedOnWindows(const QString &name)
{
    static const QStringList devices{QStringLiteral("CON"),    QStringLiteral("PRN"),    QStringLiteral("AUX"),
                                     QStringLiteral("NUL"),    QStringLiteral("CLOCK$"), QStringLiteral("CONIN$"),
                                     QStringLiteral("CONOUT$")};
    const QString stem = name.section(u'.', 0, 0).trimmed().toUpper();
    if (devices.contains(stem))
        return true;
    const bool isPort
        = stem.size() == 4 && (stem.startsWith(QLatin1String("COM")) || stem.startsWith(QLatin1String("LPT")));
    // The raised digits count as digits there.
    return isPort && (stem[3].isDigit() || QStringView(u"\u00B9\u00B2\u00B3").contains(stem[3]));
}

/// Hidden files begin with a dot; what comes from elsewhere is to be seen.
QString withoutOuterDots(QString name)
{
    const auto isDotOrBlank = [](QChar c) { return c == u'.' || c.isSpace(); };
    while (!name.isEmpty() && isDotOrBlank(name.back()))
        name.chop(1);
    while (!name.isEmpty() && isDotOrBlank(name.front()))
        name.remove(0, 1);
    return name;
}

/// Where the suffix begins; the length of the name where there is none, or one that is none.
qsizetype suffixStart(const QString &name)
{
    constexpr qsizetype longestSuffix = 12;
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 && name.size() - dot <= longestSuffix ? dot : name.size();
}

bool isTooLong(const QString &name)
{
    return name.size() > limits::fileNameLength || name.toUtf8().size() > limits::fileNameBytes
        || encodedFileName(name).size() > limits::fileNameEncoded;
}

QString shortened(const QString &name)
{
    if (!isTooLong(name))
        return name;
    const qsizetype suffix = suffixStart(name);
    QString stem = name.left(suffix);
    while (!stem.isEmpty() && isTooLong(stem + name.mid(suffix)))
        stem = cutText(stem, stem.size() - 1);
    return stem.trimmed() + name.mid(suffix);
}

} // namespace

QString cleanFileName(const QString &name)
{
    QString clean = withoutInvisible(remoteLine(name.section(u'/', -1).section(u'\\', -1)));
    for (QChar &c : clean) {
        if (forbiddenInNames.contains(c) || !c.isPrint())
            c = c.isSurrogate() ? c : QChar(u'_');
    }
    clean = withoutOuterDots(clean);
    if (!clean.isValidUtf16() || clean.contains(QChar::ReplacementCharacter))
        clean = QString::fromUtf8(clean.toUtf8()).replace(QChar::ReplacementCharacter, u'_');
    clean = withoutOuterDots(shortened(clean));
    if (clean.isEmpty())
        return QStringLiteral("file");
    return isReservedOnWindows(clean) ? shortened(QLatin1Char('_') + clean) : clean;
}

QString numberedFileName(const QString &name, int number)
{
    if (number <= 1)
        return name;
    const qsizetype suffix = suffixStart(name);
    return name.left(suffix) + QLatin1String(" (") + QString::number(number) + QLatin1Char(')') + name.mid(suffix);
}

QString unfinishedFileName(const QString &name, Ipv4Address sender, const QByteArray &path)
{
    const QByteArray offer = QByteArray::number(sender.number()) + '/' + path.split('/').value(1);
    const QByteArray hash = QCryptographicHash::hash(offer, QCryptographicHash::Sha256).toHex().left(16);
    return QStringLiteral("%1.%2.part").arg(name, QString::fromLatin1(hash));
}

QByteArray encodedFileName(const QString &name)
{
    return name.toUtf8().toPercentEncoding();
}

std::optional<QByteArray> decodedPart(std::string_view part)
{
    const auto digit = [](char c) {
        if (c >= '0' && c <= '9')
            return c - '0';
        const char lower = static_cast<char>(c | 0x20);
        return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
    };
    QByteArray decoded;
    for (std::size_t i = 0; i < part.size(); ++i) {
        if (part[i] != '%') {
            decoded += part[i];
            continue;
        }
        const int high = i + 2 < part.size() ? digit(part[i + 1]) : -1;
        const int low = i + 2 < part.size() ? digit(part[i + 2]) : -1;
        if (high < 0 || low < 0)
            return std::nullopt;
        decoded += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return decoded;
}

QString fileSizeText(quint64 bytes)
{
    static const std::array units{"kB", "MB", "GB", "TB"};
    if (bytes == 1)
        return QStringLiteral("1 byte");
    if (bytes < 1000)
        return QStringLiteral("%1 bytes").arg(bytes);
    double size = static_cast<double>(bytes) / 1000;
    std::size_t unit = 0;
    // What would be shown as 1000.0 is one of the next unit.
    while (size >= 999.95 && unit + 1 < units.size()) {
        size /= 1000;
        ++unit;
    }
    return QString::number(size, 'f', 1) + QLatin1Char(' ') + QLatin1String(units.at(unit));
}

bool isPictureName(const QString &name)
{
    static const QStringList suffixes{QStringLiteral(".png"), QStringLiteral(".jpg"), QStringLiteral(".jpeg"),
                                      QStringLiteral(".gif"), QStringLiteral(".webp")};
    return std::ranges::any_of(suffixes,
                               [&](const QString &suffix) { return name.endsWith(suffix, Qt::CaseInsensitive); });
}

} // namespace nimb
