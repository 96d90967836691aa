// What happens when the settings are lost and a copy of them is not.
#pragma once

#include "base/good_copy.h"
#include "base/prompts.h"
#include "base/settings_store.h"

namespace nimb
{

/// Asks whether the copy is to take the place of a store that is damaged or empty, where there is such a copy. A
/// question that nobody answers leaves both as they are.
void offerGoodCopy(GoodCopy &copy, const SettingsStore &store, Prompts &prompts);

/// For a start that asks nothing: a sentence for the main log while the copy waits for an answer.
std::optional<QString> waitingCopy(const GoodCopy &copy);

} // namespace nimb
