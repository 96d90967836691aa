// A box for several lines of plain text.
#pragma once

#include <QPlainTextEdit>

namespace nimb
{

/// Takes the text alone of what is pasted or dropped. Qt 6.4 crashes when somebody pastes and no program owns the
/// clipboard; here nothing is inserted then.
class PlainTextBox : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
};

} // namespace nimb
