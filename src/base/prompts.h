// Message boxes, as the engine asks for them.
#pragma once

#include <QString>

#include <optional>

namespace nimb
{

/// The title of a box that is about the program and not about one of its windows.
inline const QString programTitle = QStringLiteral("NIMB-Chat");

class Prompts
{
public:
    virtual ~Prompts() = default;
    /// An OK/Cancel box; true for OK. Text and title are plain text.
    [[nodiscard]] virtual bool confirm(const QString &text, const QString &title) = 0;
    /// A Yes/No box; true for Yes.
    [[nodiscard]] virtual bool ask(const QString &text, const QString &title) = 0;
    /// The same; nothing when nobody was there to answer, as at the end of a session.
    [[nodiscard]] virtual std::optional<bool> decide(const QString &text, const QString &title) = 0;
    /// The same before what cannot be undone: Return means No, as Esc does.
    [[nodiscard]] virtual std::optional<bool> decideCarefully(const QString &text, const QString &title) = 0;
    /// The same for a question that comes up by itself, while the user may be typing: the box takes no focus, and
    /// Return means No.
    [[nodiscard]] virtual std::optional<bool> decideUnasked(const QString &text, const QString &title) = 0;
    /// A box with OK alone. False when nobody was there to read it, as at the end of a session.
    virtual bool tell(const QString &text, const QString &title) = 0;
};

} // namespace nimb
