// All that the doctor knows as text, for somebody who is asked for help, and for programs.
#pragma once

#include "doctor/finding.h"
#include "protocol/datagram_trace.h"

#include <QByteArray>

#include <vector>

namespace nimb
{

/// A datagram as a line of a table.
struct TraceLine {
    QString time;      ///< "14:05:09.120"
    QString direction; ///< "in" or "out"
    QString address;
    QString size; ///< bytes
    QString kind; ///< the command word, or what it is
    QString text; ///< the datagram on one line; empty where people's words are left out
    bool operator==(const TraceLine &) const = default;
};

/// withTexts: also what people wrote, and the names of their states.
TraceLine traceLine(const TracedDatagram &datagram, bool withTexts);

/// A line for each finding, with its advice below it.
QString findingsText(const std::vector<Finding> &findings);
/// Findings, counts of what was dropped (DropCounts::summary()) and the latest datagrams.
QString reportText(const std::vector<Finding> &findings, const QString &drops, const std::vector<TraceLine> &datagrams);
/// {"verdict": "...", "checks": [{"check", "verdict", "sentence", "advice"}]}, UTF-8, one line break at the end.
QByteArray reportJson(const std::vector<Finding> &findings, Verdict verdict);

} // namespace nimb
