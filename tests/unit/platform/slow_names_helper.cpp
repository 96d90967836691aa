// A second process for a test: it ends while it waits for a name that is never found.
#include "platform/name_resolver.h"
#include "slow_names.h"

#include <QCoreApplication>
#include <QTimer>

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    nimb::HostNameResolver resolver;
    int answers = 0;
    resolver.resolve(QStringLiteral("slow.invalid"), [&](std::optional<nimb::Ipv4Address>) { ++answers; });
    QTimer reached;
    QObject::connect(&reached, &QTimer::timeout, &application, [&] {
        if (nimb::test::slowQuestions() == 1)
            QCoreApplication::exit(answers == 0 ? 7 : 1);
    });
    reached.start(1);
    return QCoreApplication::exec();
}
