// Takes the system's place for questions about names that contain "slow": they wait until they are let go.
#pragma once

namespace nimb::test
{

/// Questions about slow names that have reached the system, and those that it has answered.
int slowQuestions();
int slowAnswers();
/// Those that wait now; they are found at 127.0.0.9.
void letSlowNamesGo();

} // namespace nimb::test
