// The player of sounds, with stand-ins for the desktop's player programs that write down what they are to
// play.
#include "platform/qt/sound_player.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <chrono>
#include <optional>
#include <thread>

#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

class SoundPlayerTest : public testing::Test {
  protected:
    SoundPlayerTest() { qputenv("PATH", programs.path().c_str()); }
    ~SoundPlayerTest() override { qputenv("PATH", path); }

    void offer(const std::string& name, const std::string& script) {
        programs.put(name, script);
        std::filesystem::permissions(programs / name, std::filesystem::perms::owner_all);
    }

    // A program that notes its name and its argument, and then goes on as told.
    void offerPlayer(const std::string& name, const std::string& then = "") {
        const std::string log = (programs / "log").string();
        offer(name, "#!/bin/sh\nexec >>'" + log + "'\necho " + name + " \"$@\"\n" + then + '\n');
    }

    // What is noted next, and nothing else.
    void expectNoted(const std::string& notes) {
        noted += notes;
        const QDeadlineTimer end(5000);
        while (programs.bytes("log") != noted && !end.hasExpired()) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        ASSERT_EQ(programs.bytes("log"), noted);
    }

    void expectPlayed(const char* sound, const std::string& notes) {
        player->play(sound);
        expectNoted(notes);
    }

    QByteArray path = qgetenv("PATH");
    FreshFolder programs;
    std::string noted;
    std::optional<SoundPlayer> player{std::in_place};
};

TEST_F(SoundPlayerTest, aNewSoundOrTheEndCutsOffTheOneBeforeAndNobodyWaits) {
    offerPlayer("paplay", "/bin/sleep 1; echo end of $1");
    offerPlayer("aplay");
    QElapsedTimer time;
    time.start();
    player->play("start.wav");
    EXPECT_LT(time.elapsed(), 500);
    expectNoted("paplay start.wav\n");
    player->play("undo.wav");
    EXPECT_LT(time.elapsed(), 900) << "the first sound still plays";
    expectNoted("paplay undo.wav\nend of undo.wav\n");

    expectPlayed("trash.wav", "paplay trash.wav\n");
    player.reset();
    std::this_thread::sleep_for(std::chrono::milliseconds(1300));
    expectNoted("");
}

TEST_F(SoundPlayerTest, aPlayerThatFailsGivesWayToTheNext) {
    offerPlayer("paplay", "exit 1");
    offerPlayer("aplay");
    expectPlayed("start.wav", "paplay start.wav\naplay start.wav\n");
    expectPlayed("undo.wav", "aplay undo.wav\n");
}

TEST_F(SoundPlayerTest, aPlayerThatCannotBeStartedGivesWayToo) {
    offer("paplay", "#!/no/such/shell\n");
    offerPlayer("aplay");
    expectPlayed("start.wav", "aplay start.wav\n");
    expectPlayed("undo.wav", "aplay undo.wav\n");
}

TEST_F(SoundPlayerTest, isSilentWhenAllFailOrThereIsNone) {
    expectPlayed("start.wav", "");
    offerPlayer("pw-play", "exit 1");
    player.emplace();
    expectPlayed("undo.wav", "pw-play undo.wav\n");
    expectPlayed("trash.wav", "pw-play trash.wav\n");
}

}  // namespace
}  // namespace zifferon

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
