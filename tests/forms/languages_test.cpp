// Every window in every language: each access key once, and nothing cut or left in English.
#include "base/program_languages.h"
#include "every_window.h"
#include "platform/translations.h"
#include "window_faults.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTabBar>
#include <QTreeView>

#include <map>
#include <set>

namespace nimb::test
{
namespace
{

using testing::IsEmpty;

/// The program speaks a language, and its windows run in its direction, as long as this is there.
class Spoken
{
public:
    explicit Spoken(const QString &code, const QString &folder)
    {
        m_translations.use(code, folder);
        QGuiApplication::setLayoutDirection(m_translations.language().textDirection());
    }
    ~Spoken()
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QLocale::setDefault(QLocale::system());
    }
    Spoken(const Spoken &) = delete;
    Spoken &operator=(const Spoken &) = delete;

private:
    Translations m_translations;
};

/// Nothing when the text has none.
QChar accessKeyOf(const QString &text)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    return key.isEmpty() ? QChar() : key.toString().back();
}

/// Each access key with what has it.
using AccessKeys = std::map<QChar, std::vector<std::string>>;

void take(AccessKeys &keys, const QString &text)
{
    if (const QChar key = accessKeyOf(text); !key.isNull())
        keys[key].push_back(text.toStdString());
}

/// Of a window that is worked with, or of a menu, whose keys count while it is open.
AccessKeys accessKeysOf(const QWidget &window)
{
    AccessKeys keys;
    if (const auto *const menu = qobject_cast<const QMenu *>(&window)) {
        for (const QAction *const entry : menu->actions()) {
            if (entry->isVisible())
                take(keys, entry->text());
        }
        return keys;
    }
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window) || widget->window() != &window)
            continue;
        const auto *const label = qobject_cast<const QLabel *>(widget);
        if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            take(keys, button->text());
        else if (label && label->buddy())
            take(keys, label->text());
        else if (const auto *const box = qobject_cast<const QGroupBox *>(widget))
            take(keys, box->title());
        else if (const auto *const bar = qobject_cast<const QMenuBar *>(widget)) {
            for (const QAction *const entry : bar->actions())
                take(keys, entry->text());
        }
    }
    return keys;
}

std::vector<std::string> sharedKeysOf(const QWidget &window)
{
    std::vector<std::string> shared;
    for (const auto &[key, texts] : accessKeysOf(window)) {
        if (texts.size() > 1)
            shared.push_back(QString(key).toStdString() + ": " + testing::PrintToString(texts));
    }
    return shared;
}

/// What a window says of its own, as opposed to what people wrote: captions, hints, tips, and what a screen reader
/// hears.
std::set<QString> captionsOf(const QWidget &window)
{
    std::set<QString> captions{window.windowTitle()};
    std::vector<const QWidget *> widgets{&window};
    for (const QWidget *const widget : window.findChildren<QWidget *>()) {
        if (widget->isVisibleTo(&window) && widget->window() == &window)
            widgets.push_back(widget);
    }
    for (const QWidget *const widget : widgets) {
        captions.insert({widget->toolTip(), widget->accessibleName(), widget->accessibleDescription()});
        if (const auto *const label = qobject_cast<const QLabel *>(widget))
            captions.insert(label->text());
        else if (const auto *const button = qobject_cast<const QAbstractButton *>(widget))
            captions.insert(button->text());
        else if (const auto *const box = qobject_cast<const QGroupBox *>(widget))
            captions.insert(box->title());
        else if (const auto *const line = qobject_cast<const QLineEdit *>(widget))
            captions.insert(line->placeholderText());
        else if (const auto *const area = qobject_cast<const QPlainTextEdit *>(widget))
            captions.insert(area->placeholderText());
        else if (const auto *const tabs = qobject_cast<const QTabBar *>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab)
                captions.insert(tabs->tabText(tab));
        } else if (const auto *const tree = qobject_cast<const QTreeView *>(widget); tree && !tree->isHeaderHidden()) {
            for (int column = 0; column < tree->model()->columnCount(); ++column)
                captions.insert(tree->model()->headerData(column, Qt::Horizontal).toString());
        }
        for (const QAction *const action : widget->actions())
            captions.insert({action->text(), action->toolTip()});
    }
    return captions;
}

/// What people, files and other programs are called in these windows, what the tests themselves say in them, and what
/// is the toolkit's.
const std::set<QString> notOurs = {
    QStringLiteral("Ann"),
    QStringLiteral("Дмитрий"),
    QStringLiteral("NIMB-Chat 1.2 - Me"),
    QStringLiteral("Cat.png"),
    QStringLiteral("Photos.zip"),
    QStringLiteral("Photos.zip (1.2 GB)"),
    QStringLiteral("Plan of the basement.pdf"),
    QStringLiteral("Plan of the basement.pdf (2.3 MB)"),
    QStringLiteral("Me wants you to join him in NIMB-Chat"),
    // of dictionaries and of the emoji's own
    QStringLiteral("basement"),
    QStringLiteral("basements"),
    QStringLiteral("casement"),
    QStringLiteral("British English"),
    QStringLiteral("Deutsch"),
    QStringLiteral("Français"),
    QStringLiteral("grinning face"),
    QStringLiteral("party popper"),
    QStringLiteral("partying face"),
    // of every_window.cpp
    QStringLiteral("Port 5549 is taken"),
    QStringLiteral("Please confirm user removal"),
    QStringLiteral("Are you sure you want to remove the user 'Ann' on workstation 'PC-ANN' (192.168.1.12) ?"),
};

bool isEntryOfToolkit(const QString &caption)
{
    static const QRegularExpression entry(
        QStringLiteral("^(&?Undo|&?Redo|Cu&?t|&?Copy|&?Paste|Delete|Select All|OK|Cancel)(\t.*)?$"));
    return entry.match(caption).hasMatch();
}

/// Without what is no language: tags of pages, keys, names, addresses and numbers.
bool hasWords(QString caption)
{
    if (notOurs.contains(caption) || isEntryOfToolkit(caption))
        return false;
    static const QRegularExpression noWords(QStringLiteral("<[^>]*>|&[a-z]+;|\\bCtrl\\+\\S+|\\b(F1|Esc|Del|Enter|"
                                                           "Shift\\+Enter|Return)\\b|NIMB-?Chat( 1\\.2)?|\\[unknown\\]|"
                                                           "\\(unknown\\)|[0-9.:/]+"));
    caption.remove(noWords);
    return caption.contains(QRegularExpression(QStringLiteral("\\p{L}{2}")));
}

class Languages : public testing::TestWithParam<const char *>
{
};

TEST_P(Languages, EachAccessKeyStandsOnceInAWindow)
{
    const Spoken language(QLatin1String(GetParam()), QStringLiteral(NIMB_TRANSLATIONS));
    visitEveryWindow([](QWidget &window, const char *name) {
        if (!isToolkits(window)) {
            EXPECT_THAT(sharedKeysOf(window), IsEmpty()) << name;
        }
    });
}

std::vector<const char *> everyLanguage()
{
    std::vector<const char *> codes;
    for (const ProgramLanguage &language : programLanguages)
        codes.push_back(language.code);
    return codes;
}

INSTANTIATE_TEST_SUITE_P(Of, Languages, testing::ValuesIn(everyLanguage()),
                         [](const auto &one) { return std::string(one.param); });

/// A language whose texts are longer by two fifths and stand between brackets.
class PseudoLanguage : public testing::TestWithParam<int>
{
protected:
    const Spoken m_language{QStringLiteral("pseudo"), QStringLiteral(NIMB_PSEUDO_LANGUAGE)};
};

TEST_P(PseudoLanguage, NothingIsCutOrCovered)
{
    const QFont usual = QApplication::font();
    QFont font = usual;
    font.setPointSize(GetParam());
    QApplication::setFont(font);
    visitEveryWindow([](QWidget &window, const char *name) { EXPECT_THAT(faultsOf(window), IsEmpty()) << name; });
    QApplication::setFont(usual);
}

TEST_F(PseudoLanguage, NoCaptionIsLeftInEnglish)
{
    visitEveryWindow([](QWidget &window, const char *name) {
        if (isToolkits(window))
            return;
        for (const QString &caption : captionsOf(window)) {
            if (hasWords(caption)) {
                EXPECT_TRUE(caption.contains(u'[')) << name << ": " << caption.toStdString();
            }
        }
    });
}

INSTANTIATE_TEST_SUITE_P(Points, PseudoLanguage, testing::Values(9, 11, 14));

} // namespace
} // namespace nimb::test
