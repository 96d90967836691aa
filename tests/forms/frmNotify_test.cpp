#include "dialogs/frmNotify.h"

#include <gtest/gtest.h>

#include <QTreeView>

namespace nimb
{
namespace
{

TEST(FrmNotify, IsThereButNeverVisible)
{
    frmNotify window;
    EXPECT_EQ(window.objectName(), QStringLiteral("frmNotify"));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("NIMBChat Notify!"));
    EXPECT_FALSE(window.windowIcon().isNull());
    window.add(QStringLiteral("Ann is online"), Picture::green);
    window.startTimer();
    EXPECT_FALSE(window.isVisible());
}

TEST(FrmNotify, ListsWhatHappenedAndKeepsTheNewestHundred)
{
    frmNotify window;
    for (int i = 1; i <= 105; ++i)
        window.add(QStringLiteral("N%1 is online").arg(i), Picture::green);
    const QAbstractItemModel *const rows = window.findChild<QTreeView *>(QStringLiteral("ListViewNotify"))->model();
    EXPECT_EQ(rows->rowCount(), 100);
    EXPECT_EQ(rows->index(0, 0).data().toString(), QStringLiteral("N6 is online"));
    EXPECT_EQ(rows->index(99, 0).data(Qt::UserRole + 2).toString(), QStringLiteral("green"));
}

} // namespace
} // namespace nimb
