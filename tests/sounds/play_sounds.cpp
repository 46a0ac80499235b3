// play_sounds (FILE MILLISECONDS)...: plays each file, and lets so much time pass before the next.
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <cstdlib>

#include "platform/qt/sound_player.h"

int main(int count, char** arguments) {
    const QCoreApplication application(count, arguments);
    zifferon::SoundPlayer player;
    for (int i = 1; i + 1 < count; i += 2) {
        player.play(arguments[i]);
        QEventLoop loop;
        QTimer clock;
        QObject::connect(&clock, &QTimer::timeout, &loop, &QEventLoop::quit);
        clock.start(std::atoi(arguments[i + 1]));
        loop.exec();
    }
    return 0;
}
