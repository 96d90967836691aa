// How the desktop wants its programs to look.
#pragma once

namespace nimb
{

struct Appearance {
    enum class Scheme { unsaid, dark, light };

    Scheme scheme = Scheme::unsaid;
    bool highContrast = false;
    bool operator==(const Appearance &) const = default;
};

} // namespace nimb
