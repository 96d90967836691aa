#include "protocol/drop_counts.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>

namespace nimb
{
namespace
{

/// In the order of the summary.
constexpr std::array reasons
    = {Drop::stranger,   Drop::incomplete,      Drop::noFeature, Drop::noWindow,   Drop::noConference,
       Drop::badAddress, Drop::tooManyContacts, Drop::notSent,   Drop::notReceived};

QString label(Drop reason)
{
    switch (reason) {
    case Drop::stranger:
        return QCoreApplication::translate("DropCounts", "From addresses that are no contacts: %1");
    case Drop::incomplete:
        return QCoreApplication::translate("DropCounts", "Incomplete commands: %1");
    case Drop::noFeature:
        return QCoreApplication::translate("DropCounts", "Commands that nothing here takes: %1");
    case Drop::noWindow:
        return QCoreApplication::translate("DropCounts", "For private windows that are not open: %1");
    case Drop::noConference:
        return QCoreApplication::translate("DropCounts", "For conferences that are not there, or not to be had so: %1");
    case Drop::badAddress:
        return QCoreApplication::translate("DropCounts", "Addresses that cannot become contacts: %1");
    case Drop::tooManyContacts:
        return QCoreApplication::translate("DropCounts", "New contacts while the list was full: %1");
    case Drop::notSent:
        return QCoreApplication::translate("DropCounts", "Datagrams that could not be sent: %1");
    case Drop::notReceived:
        return QCoreApplication::translate("DropCounts", "Datagrams lost before they could be read: %1");
    }
    return {};
}

} // namespace

QString DropCounts::summary() const
{
    QStringList lines;
    for (const Drop reason : reasons) {
        if (of(reason) > 0)
            lines << label(reason).arg(of(reason));
    }
    return lines.join(u'\n');
}

} // namespace nimb
