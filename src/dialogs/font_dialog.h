// The dialog that chooses the font of the logs.
#pragma once

#include "core/Common.h"
#include "core/prompts.h"

#include <QFontDialog>

namespace nimb
{

/// Sizes from 6 to 24 points, in bold, italic or both: what the stored font can hold. The prompts outlive it.
class LogFontDialog : public QFontDialog
{
    Q_OBJECT

public:
    LogFontDialog(const LogFont &preset, Prompts &prompts, QWidget *parent);

    LogFont chosenFont() const;

    void done(int result) override;

private:
    void hideEffects();

    Prompts &m_prompts;
};

} // namespace nimb
