#include "base/look_alike.h"

#include "base/shown_name.h"

#include <QList>

#include <algorithm>
#include <array>

namespace nimb
{
namespace
{

struct LookAlike {
    char32_t letter;
    char32_t latin;
};

/// As they are written: a capital may look like another letter than its small one. Sorted.
constexpr std::array lookAlikes = {
    LookAlike{U'ı', U'i'},  LookAlike{U'ɑ', U'a'}, LookAlike{U'ɡ', U'g'}, LookAlike{U'ɩ', U'i'}, LookAlike{U'ʟ', U'l'},
    LookAlike{U'Ϳ', U'j'}, LookAlike{U'Α', U'a'}, LookAlike{U'Β', U'b'}, LookAlike{U'Ε', U'e'}, LookAlike{U'Ζ', U'z'},
    LookAlike{U'Η', U'h'},  LookAlike{U'Ι', U'i'}, LookAlike{U'Κ', U'k'}, LookAlike{U'Μ', U'm'}, LookAlike{U'Ν', U'n'},
    LookAlike{U'Ο', U'o'},  LookAlike{U'Ρ', U'p'}, LookAlike{U'Τ', U't'}, LookAlike{U'Υ', U'y'}, LookAlike{U'Χ', U'x'},
    LookAlike{U'α', U'a'},  LookAlike{U'γ', U'y'}, LookAlike{U'ε', U'e'}, LookAlike{U'η', U'n'}, LookAlike{U'ι', U'i'},
    LookAlike{U'κ', U'k'},  LookAlike{U'ν', U'v'}, LookAlike{U'ο', U'o'}, LookAlike{U'ρ', U'p'}, LookAlike{U'τ', U't'},
    LookAlike{U'υ', U'u'},  LookAlike{U'χ', U'x'}, LookAlike{U'ω', U'w'}, LookAlike{U'ϲ', U'c'}, LookAlike{U'ϳ', U'j'},
    LookAlike{U'Ϲ', U'c'},  LookAlike{U'Ѕ', U's'}, LookAlike{U'І', U'i'}, LookAlike{U'Ї', U'ï'}, LookAlike{U'Ј', U'j'},
    LookAlike{U'А', U'a'},  LookAlike{U'В', U'b'}, LookAlike{U'Е', U'e'}, LookAlike{U'К', U'k'}, LookAlike{U'М', U'm'},
    LookAlike{U'Н', U'h'},  LookAlike{U'О', U'o'}, LookAlike{U'Р', U'p'}, LookAlike{U'С', U'c'}, LookAlike{U'Т', U't'},
    LookAlike{U'У', U'y'},  LookAlike{U'Х', U'x'}, LookAlike{U'Ь', U'b'}, LookAlike{U'а', U'a'}, LookAlike{U'в', U'b'},
    LookAlike{U'г', U'r'},  LookAlike{U'е', U'e'}, LookAlike{U'к', U'k'}, LookAlike{U'м', U'm'}, LookAlike{U'н', U'h'},
    LookAlike{U'о', U'o'},  LookAlike{U'п', U'n'}, LookAlike{U'р', U'p'}, LookAlike{U'с', U'c'}, LookAlike{U'т', U't'},
    LookAlike{U'у', U'y'},  LookAlike{U'х', U'x'}, LookAlike{U'ь', U'b'}, LookAlike{U'ё', U'ë'}, LookAlike{U'ѕ', U's'},
    LookAlike{U'і', U'i'},  LookAlike{U'ї', U'ï'}, LookAlike{U'ј', U'j'}, LookAlike{U'Ү', U'y'}, LookAlike{U'ү', U'y'},
    LookAlike{U'Һ', U'h'},  LookAlike{U'һ', U'h'}, LookAlike{U'Ӏ', U'l'}, LookAlike{U'ӏ', U'l'}, LookAlike{U'Ԁ', U'd'},
    LookAlike{U'ԁ', U'd'},  LookAlike{U'Ԍ', U'g'}, LookAlike{U'ԍ', U'g'}, LookAlike{U'Ԛ', U'q'}, LookAlike{U'ԛ', U'q'},
    LookAlike{U'Ԝ', U'w'},  LookAlike{U'ԝ', U'w'},
};
static_assert(std::ranges::is_sorted(lookAlikes, {}, &LookAlike::letter));

char32_t latinFor(char32_t letter)
{
    const auto found = std::ranges::lower_bound(lookAlikes, letter, {}, &LookAlike::letter);
    return found != lookAlikes.end() && found->letter == letter ? found->latin : letter;
}

/// In nearly every font one of a capital i, a small l, a one and a bar looks like another, and so do nought and o.
char32_t withoutTwin(char32_t letter)
{
    switch (letter) {
    case U'0':
        return U'o';
    case U'1':
    case U'|':
    case U'i':
        return U'l';
    default:
        return letter;
    }
}

} // namespace

QString lookOf(const QString &name)
{
    std::u32string look;
    for (const uint c : name.normalized(QString::NormalizationForm_KC).simplified().toUcs4()) {
        if (!isInvisible(c))
            look += withoutTwin(latinFor(QChar::toCaseFolded(latinFor(c))));
    }
    QString text = QString::fromUcs4(look.data(), static_cast<qsizetype>(look.size())).simplified();
    return text.replace(QLatin1String("rn"), QLatin1String("m")).replace(QLatin1String("vv"), QLatin1String("w"));
}

} // namespace nimb
