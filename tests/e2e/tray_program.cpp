#include "tray_program.h"

#include "child_process.h"

#include <QRegularExpression>
#include <QStandardPaths>

namespace nimb::test
{
namespace
{

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(static_cast<int>(patience().count()))) << program.toStdString();
    return process.readAllStandardOutput();
}

/// One of the programs that systems have.
struct Program {
    QString name; ///< of the file, and the class of its windows
    QString caption;
    QStringList arguments;
};

const Program &installed()
{
    static const Program trayer{"trayer",
                                "panel",
                                {"--edge", "bottom", "--align", "right", "--widthtype", "pixel", "--width", "200",
                                 "--heighttype", "pixel", "--height", "32"}};
    static const Program stalonetray{"stalonetray", "stalonetray", {"--geometry", "5x1-0-0", "--icon-size", "32"}};
    return QStandardPaths::findExecutable(trayer.name).isEmpty() ? stalonetray : trayer;
}

/// Its window; empty when the screen has none.
QByteArray area()
{
    const Program &program = installed();
    return outputOf(QStringLiteral("xdotool"), {"search", "--class", '^' + program.name + '$'}).contains('\n')
        ? outputOf(QStringLiteral("xdotool"), {"search", "--name", '^' + program.caption + '$'})
              .split('\n')
              .first()
              .trimmed()
        : QByteArray();
}

} // namespace

TrayProgram::TrayProgram()
{
    endWithParent(m_process);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start(installed().name, installed().arguments);
    EXPECT_TRUE(waitUntil([] { return !area().isEmpty(); }))
        << installed().name.toStdString() << " does not start: " << m_process.errorString().toStdString();
}

TrayProgram::~TrayProgram()
{
    if (m_process.state() != QProcess::NotRunning)
        kill();
}

Window TrayProgram::icon() const
{
    Window found;
    EXPECT_TRUE(waitUntil([&] { return !(found = iconNow()).isNull(); })) << "no icon in the notification area";
    return found;
}

Window TrayProgram::iconNow() const
{
    const QString tree = QString::fromUtf8(outputOf(QStringLiteral("xwininfo"), {"-id", area(), "-tree"}));
    // The icon is a window of the program within one of the tray's.
    const QRegularExpressionMatch icon
        = QRegularExpression(QStringLiteral("0x([0-9a-f]+) \"[^\"]*\": \\(\"nimb-chat\"")).match(tree);
    return icon.hasMatch() ? Window(QByteArray::number(icon.captured(1).toUInt(nullptr, 16))) : Window();
}

void TrayProgram::kill()
{
    m_process.kill();
    EXPECT_TRUE(m_process.waitForFinished(static_cast<int>(patience().count())));
    EXPECT_TRUE(waitUntil([] { return area().isEmpty(); })) << "the notification area is still there";
}

} // namespace nimb::test
