#include "base/leading_number.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <limits>

namespace nimb
{

double leadingNumber(const QString &text)
{
    static const QRegularExpression number(
        QStringLiteral(R"(\A[ \t]*([+-]?(?:\d++(?:\.\d*+)?|\.\d++)(?:[eE][+-]?\d++)?))"));
    const QRegularExpressionMatch match = number.match(text);
    return match.hasMatch() ? QLocale::c().toDouble(match.captured(1)) : 0;
}

std::int16_t within16Bits(double number)
{
    using Range = std::numeric_limits<std::int16_t>;
    const double rounded = std::nearbyint(number); // halves to even is the way floating point rounds by default
    return static_cast<std::int16_t>(std::clamp<double>(rounded, Range::min(), Range::max()));
}

} // namespace nimb
