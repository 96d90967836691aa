// What may go wrong with the texts of a window.
#pragma once

#include <QLabel>

#include <string>
#include <vector>

namespace nimb::test
{

/// Texts of labels that would be taken for markup, or of which a piece is cut off.
inline std::vector<std::string> badLabels(const QWidget &window)
{
    std::vector<std::string> bad;
    for (const QLabel *const label : window.findChildren<QLabel *>()) {
        const bool guesses = label->textFormat() != Qt::PlainText && Qt::mightBeRichText(label->text());
        const bool cut = label->wordWrap() && label->height() < label->heightForWidth(label->width());
        if (guesses || cut)
            bad.push_back(label->objectName().toStdString());
    }
    return bad;
}

} // namespace nimb::test
