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

    /// A picture that is pasted is told of; otherwise it is nothing, as in every box for text.
    void setTakesPictures(bool takes) { m_takesPictures = takes; }

Q_SIGNALS:
    void entered();
    /// The Up key was pressed in an empty box.
    void recallWanted();
    /// More was pasted than the box holds; rest: what has been cut.
    void pasteCut(const QString &rest);
    /// A picture was pasted, and no text with it.
    void picturePasted(const QImage &picture);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    void cut();
    bool m_takesPictures = false;

    SpellingMarks *m_spelling = nullptr;
};

} // namespace nimb
