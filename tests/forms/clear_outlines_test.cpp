// Outlines on dark grounds: measured in what is drawn.
#include "widgets/clear_outlines.h"

#include "widgets/appearance_palette.h"
#include "widgets/focus_edge.h"
#include "widgets/muted_colour.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>

namespace nimb::test
{
namespace
{

using Scheme = Appearance::Scheme;

/// What an edge must have against both sides of it.
constexpr double visible = 3;

Appearance appearanceCalled(const std::string &name)
{
    if (name == "dark")
        return {Scheme::dark, false};
    return {name == "whiteOnBlack" ? Scheme::dark : Scheme::light, true};
}

/// The program's style, and what was there before afterwards.
class ClearOutlinesTest : public testing::TestWithParam<const char *>
{
protected:
    ClearOutlinesTest()
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        makeOutlinesClear();
        // A desktop that is the opposite, so that the program brings its own colours.
        const Appearance wanted = appearanceCalled(GetParam());
        const QPalette desktop(wanted.scheme == Scheme::dark ? QColor(0xEF, 0xEF, 0xEF) : QColor(0x20, 0x20, 0x20));
        QApplication::setPalette(*paletteFor(wanted, desktop));
    }
    ~ClearOutlinesTest() override
    {
        QApplication::setPalette({});
        QApplication::setStyle(QStringLiteral("fusion"));
    }

    static QImage drawn(QWidget &widget)
    {
        // Around it the window in which it stands, of which it is no part itself.
        QWidget window;
        widget.setParent(&window);
        widget.move(8, 8);
        widget.resize(widget.sizeHint().expandedTo({40, 0}));
        window.resize(widget.size() + QSize(16, 16));
        const QImage image = window.grab().toImage();
        widget.setParent(nullptr);
        return image;
    }
    static QColor window() { return QApplication::palette().color(QPalette::Window); }
    static QColor field() { return QApplication::palette().color(QPalette::Base); }

    /// Of the pixels on the way from a point to the right, the one that stands out most from both grounds.
    static double clearest(const QImage &image, QPoint from, int length)
    {
        double best = 0;
        for (int i = 0; i < length; ++i) {
            const QColor pixel = image.pixelColor(from + QPoint(i, 0));
            best = qMax(best, qMin(contrast(pixel, window()), contrast(pixel, field())));
        }
        return best;
    }
    /// The left edge of a control, in the middle of its height; its inside is empty.
    static double leftEdge(QWidget &widget)
    {
        const QImage image = drawn(widget);
        return clearest(image, {4, 8 + widget.height() / 2}, 10);
    }
};

TEST_P(ClearOutlinesTest, OfACheckBox)
{
    QCheckBox box(QStringLiteral("Mute"));
    EXPECT_GE(leftEdge(box), visible);
}

TEST_P(ClearOutlinesTest, OfARadioButton)
{
    QRadioButton button(QStringLiteral("No avatar"));
    EXPECT_GE(leftEdge(button), visible);
}

TEST_P(ClearOutlinesTest, OfAField)
{
    QLineEdit box;
    EXPECT_GE(leftEdge(box), visible);
}

TEST_P(ClearOutlinesTest, OfABoxForSeveralLines)
{
    QPlainTextEdit box;
    EXPECT_GE(leftEdge(box), visible);
}

TEST_P(ClearOutlinesTest, OfAComboBox)
{
    QComboBox combo;
    EXPECT_GE(leftEdge(combo), visible);
}

/// How much of what is drawn changes when the widget gets the focus by the Tab key.
int changedByFocus(QWidget &widget)
{
    QWidget window;
    QLineEdit other(&window);
    widget.setParent(&window);
    widget.setGeometry(8, 40, 100, 60);
    window.resize(120, 110);
    window.show();
    other.setFocus();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    // Its edge alone: a caret is no frame.
    const auto edge = [&widget] { return widget.grab().toImage().copy(0, 3, 6, 50); };
    const QImage without = edge();
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as the key itself does
    widget.setFocus(Qt::TabFocusReason);
    const QImage with = edge();
    int changed = 0;
    for (int y = 0; y < with.height(); ++y) {
        double most = 1;
        for (int x = 0; x < with.width(); ++x)
            most = qMax(most, contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
        changed += most > 1.5 ? 1 : 0;
    }
    widget.setParent(nullptr);
    return changed;
}

TEST_P(ClearOutlinesTest, OfATextWithTheFocusAreSeen)
{
    QTextEdit log;
    log.setReadOnly(true);
    EXPECT_GT(changedByFocus(log), 40);
}

TEST_P(ClearOutlinesTest, OfAFramelessListWithTheFocusAreSeen)
{
    QListWidget list;
    list.setFrameShape(QFrame::NoFrame);
    new FocusEdge(list);
    EXPECT_GT(changedByFocus(list), 40);
}

TEST_P(ClearOutlinesTest, OfAFlatToolButtonWithTheFocusAreSeen)
{
    QToolButton button;
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::StrongFocus);
    EXPECT_GT(changedByFocus(button), 40);
}

TEST_P(ClearOutlinesTest, OfADefaultButtonWithTheFocusAreSeen)
{
    QPushButton send(QStringLiteral("Send"));
    send.setDefault(true);
    EXPECT_GT(changedByFocus(send), 40);
}

TEST_P(ClearOutlinesTest, OfAGroup)
{
    QGroupBox group(QStringLiteral("You"));
    group.setMinimumHeight(80);
    group.resize(100, 80);
    EXPECT_GE(leftEdge(group), visible);
}

INSTANTIATE_TEST_SUITE_P(, ClearOutlinesTest, testing::Values("dark", "whiteOnBlack", "blackOnWhite"),
                         [](const auto &palette) { return std::string(palette.param); });

class HighContrastTest : public ClearOutlinesTest
{
};

TEST_P(HighContrastTest, TheHandleOfAScrollBarStandsOutFromWhatItMovesOn)
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(100);
    bar.resize(bar.sizeHint().width(), 200);
    const QImage image = bar.grab().toImage();
    const int middle = bar.width() / 2;
    EXPECT_GE(contrast(image.pixelColor(middle, 60), image.pixelColor(middle, 150)), visible);
}

TEST_P(HighContrastTest, AFramelessListHasAnEdgeWithoutTheFocusToo)
{
    QListWidget list;
    list.setFrameShape(QFrame::NoFrame);
    const FocusEdge *const edge = new FocusEdge(list);
    EXPECT_GE(leftEdge(list), visible);
    EXPECT_TRUE(edge->isVisibleTo(&list));
}

INSTANTIATE_TEST_SUITE_P(, HighContrastTest, testing::Values("whiteOnBlack", "blackOnWhite"),
                         [](const auto &palette) { return std::string(palette.param); });

TEST(ClearOutlinesOnLight, AreThoseOfTheStyleItself)
{
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication::setPalette(*paletteFor({Scheme::light, false}, QPalette(QColor(0x20, 0x20, 0x20))));
    const auto draw = [] {
        QWidget window;
        QCheckBox box(QStringLiteral("Mute"), &window);
        QComboBox combo(&window);
        combo.move(0, 40);
        QGroupBox group(QStringLiteral("You"), &window);
        group.setGeometry(0, 80, 100, 60);
        window.resize(160, 150);
        return window.grab().toImage();
    };
    const QImage before = draw();
    makeOutlinesClear();
    EXPECT_EQ(draw(), before);
    QApplication::setPalette({});
    QApplication::setStyle(QStringLiteral("fusion"));
}

TEST(ClearOutlinesOnLight, OtherStylesAreLeftAsTheyAre)
{
    QApplication::setStyle(QStringLiteral("windows"));
    const QStyle *const before = QApplication::style();
    makeOutlinesClear();
    EXPECT_EQ(QApplication::style(), before);
    QApplication::setStyle(QStringLiteral("fusion"));
    makeOutlinesClear();
    EXPECT_NE(dynamic_cast<ClearOutlines *>(QApplication::style()), nullptr);
    QApplication::setStyle(QStringLiteral("fusion"));
}

} // namespace
} // namespace nimb::test
