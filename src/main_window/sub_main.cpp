#include "main_window/sub_main.h"

#include "base/settings.h"
#include "main_window/main_window.h"
#include "widgets/window_flashing.h"

namespace nimb
{

Started SubMain(const QString &commandLine, Common &common, const SettingsStore &store, StartUpSteps &steps)
{
    if (steps.anotherCopyRuns()) {
        steps.restoreOtherCopy(mainCaption(readSetting(store, QLatin1String("MyNickName"))));
        return Started::handedOver;
    }
    common.avatarHead.clear();
    common.avatarBody.clear();
    common.windowFlashingAvailable = isWindowFlashingAvailable(runningSystem());
    steps.loadNotify();
    // A nickname on the command line is a start that asks nothing.
    if (commandLine.isEmpty() && !steps.offerGoodCopy())
        return Started::withoutNickname;
    if (commandLine.isEmpty()) {
        steps.showLogin();
        if (common.ownNickname.isEmpty())
            return Started::withoutNickname;
        steps.loadMain();
        steps.showMain();
    } else {
        steps.loadAndUnloadLogin();
        common.ownNickname = commandLine;
        steps.loadMain();
        steps.showMain();
        steps.minimiseMain();
    }
    if (tipsAtStart(store))
        steps.showTipOfTheDay();
    return Started::running;
}

} // namespace nimb
