// Chance as the system has it.
#pragma once

#include "base/chance.h"

#include <QRandomGenerator>

namespace nimb
{

class SystemChance : public Chance
{
public:
    std::chrono::milliseconds upTo(std::chrono::milliseconds most) override
    {
        return std::chrono::milliseconds(QRandomGenerator::global()->bounded(static_cast<qint64>(most.count()) + 1));
    }
};

} // namespace nimb
