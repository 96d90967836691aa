// The languages that the program speaks.
#pragma once

#include <QLatin1String>
#include <QString>

#include <array>

namespace nimb
{

struct ProgramLanguage {
    const char *code;     ///< as the setting "Language" and the files of translations have it
    const char16_t *name; ///< in that language itself, so that who cannot read the others finds it
};

/// By the names' own order, those in other letters last.
inline constexpr std::array programLanguages = {
    ProgramLanguage{"de", u"Deutsch"},
    ProgramLanguage{"en", u"English"},
    ProgramLanguage{"es", u"Español"},
    ProgramLanguage{"fr", u"Français"},
    ProgramLanguage{"it", u"Italiano"},
    ProgramLanguage{"pl", u"Polski"},
    ProgramLanguage{"pt_BR", u"Português (Brasil)"},
    ProgramLanguage{"ru", u"Русский"},
    ProgramLanguage{"ar", u"العربية"},
    ProgramLanguage{"ja", u"日本語"},
    ProgramLanguage{"zh_CN", u"简体中文"},
};

/// The code itself if the program speaks that language, else empty, which stands for the desktop's.
inline QString knownLanguage(const QString &code)
{
    for (const ProgramLanguage &language : programLanguages) {
        if (code == QLatin1String(language.code))
            return code;
    }
    return {};
}

} // namespace nimb
