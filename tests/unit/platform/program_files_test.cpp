#include "platform/program_files.h"

#include "print_qt.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace nimb::test
{
namespace
{

class ProgramFiles : public testing::Test
{
protected:
    ProgramFiles() { QDir(m_folder.path()).mkpath("moved/bin"); }

    /// An empty file below the folder of the test; its full path.
    QString put(const char *path) const
    {
        const QFileInfo place(m_folder.filePath(QLatin1String(path)));
        QDir().mkpath(place.path());
        QFile file(place.filePath());
        EXPECT_TRUE(file.open(QFile::WriteOnly)) << path;
        return place.filePath();
    }
    std::optional<QString> found(const char *name) const
    {
        return findProgramFile(QLatin1String(name), m_folder.filePath("moved/bin"));
    }
    std::optional<QString> foundManual() const { return findManual(m_folder.filePath("moved/bin")); }

    const QTemporaryDir m_folder;
};

TEST_F(ProgramFiles, AreNowhereAtFirst)
{
    EXPECT_EQ(found("alarm.wav"), std::nullopt);
}

TEST_F(ProgramFiles, AreFoundBesideTheProgram)
{
    const QString path = put("moved/bin/alarm.wav");
    EXPECT_EQ(found("alarm.wav"), path);
    EXPECT_EQ(found("TOTD.txt"), std::nullopt);
}

TEST_F(ProgramFiles, AreFoundInTheDataFolderOfAnInstallationThatWasMoved)
{
    const QString path = put("moved/share/nimb-chat/TOTD.txt");
    EXPECT_EQ(found("TOTD.txt"), path);
}

TEST_F(ProgramFiles, BesideTheProgramComeFirst)
{
    put("moved/share/nimb-chat/alarm.wav");
    const QString path = put("moved/bin/alarm.wav");
    EXPECT_EQ(found("alarm.wav"), path);
}

TEST_F(ProgramFiles, AreFilesAndNoFolders)
{
    QDir().mkpath(m_folder.filePath("moved/bin/alarm.wav"));
    const QString path = put("moved/share/nimb-chat/alarm.wav");
    EXPECT_EQ(found("alarm.wav"), path);
}

TEST_F(ProgramFiles, OfTheManualAreNowhereAtFirst)
{
    EXPECT_EQ(foundManual(), std::nullopt);
    put("moved/bin/manual/options.html");
    EXPECT_EQ(foundManual(), std::nullopt) << "without its first page it is no manual";
}

TEST_F(ProgramFiles, OfTheManualAreFoundAmongTheDocumentsOfAnInstallation)
{
    const QString page = put("moved/share/doc/nimb-chat/manual/index.html");
    EXPECT_EQ(foundManual(), QFileInfo(page).path());
}

TEST_F(ProgramFiles, OfTheManualBesideTheProgramComeFirst)
{
    put("moved/share/doc/nimb-chat/manual/index.html");
    const QString page = put("moved/bin/manual/index.html");
    EXPECT_EQ(foundManual(), QFileInfo(page).path());
}

TEST_F(ProgramFiles, OfTheBuiltProgramStandBesideIt)
{
    EXPECT_EQ(findProgramFile("alarm.wav"), QCoreApplication::applicationDirPath() + "/alarm.wav");
}

} // namespace
} // namespace nimb::test
