// What is left to chance, so that a test can decide it.
#pragma once

#include <chrono>

namespace nimb
{

class Chance
{
public:
    virtual ~Chance() = default;
    /// A span between none and this one, both included, each as likely as any other.
    virtual std::chrono::milliseconds upTo(std::chrono::milliseconds most) = 0;
};

} // namespace nimb
