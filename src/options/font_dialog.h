// The dialog that chooses the font of the logs.
#pragma once

#include "base/Common.h"
#include "base/prompts.h"

#include <QFontDialog>

namespace nimb
{

/// Sizes from 6 to 24 points, in bold, italic or both: what the stored font can hold. A style that the face lacks (it
/// is drawn all the same) is kept as long as no other one is chosen. The prompts outlive it.
class LogFontDialog : public QFontDialog
{
    Q_OBJECT

public:
    LogFontDialog(const LogFont &preset, Prompts &prompts, QWidget *parent);

    LogFont chosenFont() const;

    void done(int result) override;

private:
    void hideEffects();

    const LogFont m_preset;
    QFont m_shownFirst;
    Prompts &m_prompts;
};

} // namespace nimb
