#include "store/next_start_file.h"

#include "print_qt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace nimb::test
{
namespace
{

class NextStartFileTest : public testing::Test
{
protected:
    const QTemporaryDir m_base;
    const QString file = m_base.filePath("settings.report");
};

TEST_F(NextStartFileTest, WhatIsToldIsTakenOnceInItsOrder)
{
    NextStartFile(m_base.path()).tell("The disk is full.");
    NextStartFile(m_base.path()).tell(QString::fromUtf8("J\u00fcrgen's\ncopy failed."));
    NextStartFile next(m_base.path());
    EXPECT_EQ(next.take(), (QStringList{"The disk is full.", QString::fromUtf8("J\u00fcrgen's copy failed.")}));
    EXPECT_EQ(next.take(), QStringList());
}

TEST_F(NextStartFileTest, IsForTheUserAlone)
{
    NextStartFile(m_base.path()).take();
    struct stat information = {};
    ASSERT_EQ(stat(file.toUtf8().constData(), &information), 0);
    EXPECT_EQ(information.st_mode & 0777, 0600u);
}

TEST_F(NextStartFileTest, WhatIsNoFileIsNeitherWaitedForNorWrittenTo)
{
    ASSERT_EQ(mkfifo(file.toUtf8().constData(), 0600), 0);
    NextStartFile notes(m_base.path());
    EXPECT_EQ(notes.take(), QStringList());
    notes.tell("The disk is full.");
    EXPECT_EQ(notes.take(), QStringList());
}

TEST_F(NextStartFileTest, NeedsNoRoomOnTheDiskOnceItIsThere)
{
    NextStartFile notes(m_base.path());
    EXPECT_EQ(notes.take(), QStringList());
    const qint64 size = QFileInfo(file).size();

    rlimit previous = {};
    getrlimit(RLIMIT_FSIZE, &previous);
    const auto previousHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit tight = {static_cast<rlim_t>(size), previous.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    notes.tell("The disk is full.");
    setrlimit(RLIMIT_FSIZE, &previous);
    std::signal(SIGXFSZ, previousHandler);

    EXPECT_EQ(QFileInfo(file).size(), size);
    EXPECT_EQ(notes.take(), QStringList("The disk is full."));
}

TEST_F(NextStartFileTest, ASentenceThatDoesNotFitIsLeftOut)
{
    NextStartFile notes(m_base.path());
    notes.tell("The disk is full.");
    notes.tell(QString(5000, u'x'));
    EXPECT_EQ(notes.take(), QStringList("The disk is full."));
}

TEST_F(NextStartFileTest, AFolderThatIsNotThereIsBorne)
{
    NextStartFile notes(m_base.filePath("nowhere"));
    notes.tell("The disk is full.");
    EXPECT_EQ(notes.take(), QStringList());
}

} // namespace
} // namespace nimb::test
