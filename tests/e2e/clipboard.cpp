#include "clipboard.h"

#include "child_process.h"
#include "desktop.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QProcessEnvironment>

namespace nimb::test
{

QString clipboard()
{
    QProcess helper;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    helper.setProcessEnvironment(environment);
    endWithParent(helper);
    helper.start(QStringLiteral(CLIPBOARD_HELPER), QStringList());
    EXPECT_TRUE(helper.waitForFinished(static_cast<int>(patience().count())));
    return QString::fromUtf8(helper.readAllStandardOutput());
}

} // namespace nimb::test
