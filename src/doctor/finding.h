// What one of the doctor's checks has found.
#pragma once

#include <QString>

namespace nimb
{

/// In the order in which they are shown.
enum class Check { network, ownAddress, port, receiveBuffer, ownDatagram, broadcast, firewall, severalWays, contact };

/// The worse the later.
enum class Verdict { underWay, fine, doubtful, wrong };

struct Finding {
    Check check = Check::network;
    Verdict verdict = Verdict::underWay;
    QString sentence{}; ///< one plain sentence
    QString advice{};   ///< what to do; empty where there is nothing to do
    bool operator==(const Finding &) const = default;
};

/// The word for a check in reports that programs read.
const char *nameOf(Check check);
const char *nameOf(Verdict verdict);

} // namespace nimb
