#include "platform/qt/sound_player.h"

#include <signal.h>
#include <sys/prctl.h>

#include <QStandardPaths>

namespace zifferon {

SoundPlayer::SoundPlayer() = default;

SoundPlayer::~SoundPlayer() {
    if (process_) silence();
}

void SoundPlayer::play(const std::string& fileName) {
    if (!process_) prepare();
    silence();
    fileName_ = QString::fromStdString(fileName);
    untried_ = players_.size();
    start();
}

void SoundPlayer::prepare() {
    // paplay reaches either of the two sound servers; aplay is for a machine without one.
    for (const char* name : {"paplay", "pw-play", "aplay"}) {
        const QString program = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!program.isEmpty()) players_.append(program);
    }
    process_ = std::make_unique<QProcess>();
    process_->setStandardInputFile(QProcess::nullDevice());
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
    // However this program ends, its last sound ends with it.
    process_->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    QObject::connect(process_.get(), &QProcess::finished, process_.get(),
                     [this](int exitCode, QProcess::ExitStatus status) {
                         if (status != QProcess::NormalExit || exitCode != 0) tryNext();
                     });
    // The process is still cleared away when it tells that it has not started.
    const auto tryAfterFailedStart = [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) tryNext();
    };
    QObject::connect(process_.get(), &QProcess::errorOccurred, process_.get(), tryAfterFailedStart,
                     Qt::QueuedConnection);
}

void SoundPlayer::silence() {
    untried_ = 0;
    process_->kill();
    process_->waitForFinished(100);
}

void SoundPlayer::start() {
    if (untried_ > 0) process_->start(players_.first(), {fileName_});
}

void SoundPlayer::tryNext() {
    if (untried_ == 0) return;
    --untried_;
    players_.append(players_.takeFirst());
    start();
}

}  // namespace zifferon
