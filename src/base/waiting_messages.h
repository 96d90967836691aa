// Messages that wait until those to whom they were written are there, as windows show them.
#pragma once

#include "base/contact_address.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <cstdint>
#include <vector>

namespace nimb
{

struct WaitingMessage {
    std::int64_t number = 0; ///< grows, and never comes again in one profile
    ContactAddress ip;       ///< whom it was written to, as he was called then
    QString nickname{};
    QString workstation{};
    QString text{}; ///< line breaks are CR LF
    QDateTime written{};
    bool isGivenUp = false; ///< it waited too long, and is only shown
    bool operator==(const WaitingMessage &) const = default;
};

class WaitingMessages : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The one that was written first comes first.
    virtual const std::vector<WaitingMessage> &messages() const = 0;
    /// The user wants it to be sent no more, nor shown; a number that is not there is ignored.
    virtual void forget(std::int64_t number) = 0;
    /// The same, and afterwards it is in no file any more.
    virtual void erase(std::int64_t number) = 0;

Q_SIGNALS:
    void changed();
};

} // namespace nimb
