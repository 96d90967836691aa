#include "widgets/plain_text_box.h"

#include <QMimeData>

namespace nimb
{

bool PlainTextBox::canInsertFromMimeData(const QMimeData *source) const
{
    return source && source->hasText();
}

void PlainTextBox::insertFromMimeData(const QMimeData *source)
{
    if (!canInsertFromMimeData(source) || isReadOnly())
        return;
    insertPlainText(source->text());
    ensureCursorVisible();
}

} // namespace nimb
