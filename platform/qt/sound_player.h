// Plays wave files through whichever player program the desktop has.
#pragma once

#include <QProcess>
#include <QStringList>
#include <memory>
#include <string>

namespace zifferon {

// The programs are looked for at the first sound, and nothing runs before it. One that fails gives way to the
// next.
class SoundPlayer {
  public:
    SoundPlayer();
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    ~SoundPlayer();

    // Plays a file of the current folder; returns at once, and cuts off the one that plays. Without a device
    // or a player nothing is heard, and nothing is told. Needs the event loop of an application.
    void play(const std::string& fileName);

  private:
    void prepare();
    void silence();
    void start();
    void tryNext();

    std::unique_ptr<QProcess> process_;  // none before the first sound
    QStringList players_;                // the one in use comes first
    QString fileName_;
    qsizetype untried_ = 0;  // players that have not failed at this sound
};

}  // namespace zifferon
