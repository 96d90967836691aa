// Plays a sound when told to. A process of its own, for Qt looks for a sound server only once in a process.
//   sound_helper [FILE]       FILE in place of the alarm that ships
// Commands on standard input, each answered with a line "done" when the call has returned:
//   play TIMES
//   stall 0      answered with "stalled"; as on a busy machine no event is handled then until another word comes
// The end of the input ends it, with status 0.
#include "platform/sound_player.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cstdio>
#include <iostream>
#include <string>

namespace
{

/// False at the end of the input.
bool obey(nimb::SoundPlayer &sound)
{
    std::string word;
    int number = 0;
    if (!(std::cin >> word >> number))
        return false;
    if (word == "stall") {
        std::puts("stalled");
        std::fflush(stdout);
        std::cin >> word;
    }
    for (int i = 0; i < number && word == "play"; ++i)
        sound.play();
    std::puts("done");
    std::fflush(stdout);
    return true;
}

int run(nimb::SoundPlayer &sound)
{
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &input, [&sound] {
        if (!obey(sound))
            QCoreApplication::quit();
    });
    return QCoreApplication::exec();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    QCoreApplication application(argumentCount, arguments);
    if (argumentCount == 1) {
        nimb::SoundPlayer player;
        return run(player);
    }
    nimb::SoundPlayer player(QString::fromLocal8Bit(arguments[1]));
    return run(player);
}
