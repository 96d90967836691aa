// What a key press takes on the thread of the windows: typing_bench [presses [words of the dictionary]]
// Types into an input box of 2,000 characters, without spelling, with spelling that has nothing to say, and where every
// other word is misspelt. "key" is the press itself, "turn" the press and all that the event loop does after it,
// painting included. Prints one JSON object, in microseconds. Needs a screen or QT_QPA_PLATFORM=offscreen.
#include "base/Common.h"
#include "conversation/message_input.h"
#include "conversation/spelling_marks.h"
#include "platform/hunspell_spelling.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <optional>
#include <vector>

namespace
{

using namespace nimb;
using Clock = std::chrono::steady_clock;

constexpr int patience = 60000;        ///< milliseconds
constexpr qsizetype textLength = 1980; ///< a press more is at home in a box of 2,000

const QString typedKeys = QStringLiteral("baaaa q");
constexpr int keysOfTurn = 14; ///< these, and as many to take them back

/// "aaaaa", "baaaa" and so on, of which a dictionary can hold any number.
QString wordNumber(int number)
{
    QString word(5, u'a');
    for (QChar &letter : word) {
        letter = QChar(u'a' + number % 26);
        number /= 26;
    }
    return word;
}

bool writeDictionary(const QString &path, int words)
{
    QFile affixes(path + QLatin1String(".aff"));
    QFile list(path + QLatin1String(".dic"));
    if (!affixes.open(QIODevice::WriteOnly) || !list.open(QIODevice::WriteOnly))
        return false;
    affixes.write("SET UTF-8\nTRY esianrtolcdugmphbyfvkwz\n");
    list.write(QByteArray::number(words) + '\n');
    for (int i = 0; i < words; ++i)
        list.write(wordNumber(i).toUtf8() + '\n');
    return affixes.flush() && list.flush();
}

/// Of the words every misspeltEach-th is in no dictionary; 0: none is.
QString textOf(int words, int misspeltEach)
{
    QString text;
    for (int i = 0; text.size() < textLength; ++i)
        text += (misspeltEach > 0 && i % misspeltEach == 0 ? QStringLiteral("qq") : QString())
            + wordNumber(i * 37 % words) + u' ';
    return text.left(text.lastIndexOf(u' ', textLength - 1) + 1);
}

struct Times {
    std::vector<double> key;
    std::vector<double> turn;
};

/// A word and a letter, each press by itself, and all of it taken back before the box is full.
Times press(MessageInput &box, int presses)
{
    Times times;
    for (int i = 0; i < presses; ++i) {
        const int place = i % keysOfTurn;
        const bool back = place >= typedKeys.size();
        const auto begin = Clock::now();
        if (back)
            QTest::keyClick(&box, Qt::Key_Backspace);
        else
            QTest::keyClick(&box, typedKeys[place].toLatin1());
        const auto pressed = Clock::now();
        QCoreApplication::processEvents();
        const auto done = Clock::now();
        times.key.push_back(std::chrono::duration<double, std::micro>(pressed - begin).count());
        times.turn.push_back(std::chrono::duration<double, std::micro>(done - begin).count());
    }
    return times;
}

int marksOf(const MessageInput &box)
{
    return int(box.findChild<SpellingMarks *>()->marks().size());
}

QJsonObject summary(std::vector<double> times)
{
    std::ranges::sort(times);
    const auto at = [&times](double share) { return times[std::size_t(share * double(times.size() - 1))]; };
    const auto tenths = [](double value) { return std::round(value * 10) / 10; };
    return {{QStringLiteral("p50"), tenths(at(0.5))},
            {QStringLiteral("p99"), tenths(at(0.99))},
            {QStringLiteral("max"), tenths(times.back())}};
}

/// checked: with spelling.
QJsonObject measure(const QString &folder, const QString &text, bool checked, int presses)
{
    Common common;
    HunspellSpelling checker(QStringList{folder});
    Spelling spelling(checker, common, QStringLiteral("en_GB"));
    MessageInput box;
    if (checked)
        box.setSpelling(spelling);
    box.resize(420, box.sizeHint().height());
    box.show();
    box.activateWindow();
    if (!QTest::qWaitForWindowActive(&box, patience))
        qFatal("no window");
    box.setPlainText(text);
    box.moveCursor(QTextCursor::End);
    const bool settled
        = QTest::qWaitFor([&] { return !checked || spelling.find(box.toPlainText()).areComplete; }, patience);
    if (!settled)
        qFatal("the dictionary does not answer");
    press(box, keysOfTurn);
    const Times times = press(box, presses);
    std::vector<double> looks;
    for (int i = 0; checked && i < presses; ++i) {
        const auto begin = Clock::now();
        spelling.find(text);
        looks.push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
    return {{QStringLiteral("characters"), text.size()},
            {QStringLiteral("find_us"), checked ? summary(looks) : QJsonValue()},
            {QStringLiteral("marks"), checked ? marksOf(box) : 0},
            {QStringLiteral("key_us"), summary(times.key)},
            {QStringLiteral("turn_us"), summary(times.turn)}};
}

/// While the dictionary is read and the whole text looked up: the longest that a press takes from the first one on.
QJsonObject measureFirst(const QString &folder, const QString &text)
{
    Common common;
    HunspellSpelling checker(QStringList{folder});
    Spelling spelling(checker, common, QStringLiteral("en_GB"));
    MessageInput box;
    box.setSpelling(spelling);
    box.resize(420, box.sizeHint().height());
    box.show();
    box.setPlainText(text);
    const auto begin = Clock::now();
    Times times;
    while (marksOf(box) == 0 && Clock::now() - begin < std::chrono::milliseconds(patience)) {
        const Times more = press(box, keysOfTurn);
        times.turn.insert(times.turn.end(), more.turn.begin(), more.turn.end());
    }
    return {
        {QStringLiteral("until_marked_ms"), std::chrono::duration<double, std::milli>(Clock::now() - begin).count()},
        {QStringLiteral("turn_us"), summary(times.turn)}};
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const int presses = (argc > 1 ? std::atoi(argv[1]) : 3000) / keysOfTurn * keysOfTurn;
    const int words = argc > 2 ? std::atoi(argv[2]) : 100000;
    QTemporaryDir folder;
    if (presses < 1 || words < 1 || !writeDictionary(folder.filePath(QStringLiteral("en_GB")), words))
        qFatal("typing_bench [presses [words of the dictionary]]");
    const QJsonObject result{
        {QStringLiteral("presses"), presses},
        {QStringLiteral("without"), measure(folder.path(), textOf(words, 0), false, presses)},
        {QStringLiteral("with"), measure(folder.path(), textOf(words, 0), true, presses)},
        {QStringLiteral("with_half_misspelt"), measure(folder.path(), textOf(words, 2), true, presses)},
        {QStringLiteral("while_dictionary_is_read"), measureFirst(folder.path(), textOf(words, 2))},
    };
    std::printf("%s", QJsonDocument(result).toJson().constData());
    return 0;
}
