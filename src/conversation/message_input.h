// The box in which a message is typed.
#pragma once

#include "widgets/plain_text_box.h"

namespace nimb
{

class Spelling;
class SpellingMarks;

/// Enter sends, Shift+Enter breaks the line, Tab leaves the box. Never holds more than limits::messageLength
/// characters, a line break counted as two: what is beyond is cut and the caret goes to the end.
class MessageInput : public PlainTextBox
{
    Q_OBJECT

public:
    explicit MessageInput(QWidget *parent = nullptr);
    QSize sizeHint() const override;

    /// Misspelt words are marked from now on. Called once; spelling outlives the box.
    void setSpelling(Spelling &spelling);

Q_SIGNALS:
    void entered();
    /// The Up key was pressed in an empty box.
    void recallWanted();
    /// More was pasted than the box holds; rest: what has been cut.
    void pasteCut(const QString &rest);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void cut();

    SpellingMarks *m_spelling = nullptr;
};

} // namespace nimb
