// The player of sounds, with stand-ins for the desktop's player programs that write down what they are to
// play.
#include "platform/qt/sound_player.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <chrono>
#include <functional>
#include <thread>

#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

class SoundPlayerTest : public testing::Test {
  protected:
    SoundPlayerTest() { qputenv("PATH", programs_.path().c_str()); }
    ~SoundPlayerTest() override { qputenv("PATH", path_); }

    // A program that notes its name and its argument, and then goes on as told.
    void offer(const std::string& name, const std::string& then) {
        const std::string log = (programs_ / "log").string();
        programs_.put(name, "#!/bin/sh\necho " + name + " \"$@\" >>'" + log + "'\n" + then + '\n');
        std::filesystem::permissions(programs_ / name, std::filesystem::perms::owner_all);
    }

    std::string log() const { return programs_.bytes("log"); }

    static bool waitUntil(const std::function<bool()>& holds) {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < 5000;) {
            if (holds()) return true;
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        }
        return holds();
    }

    QByteArray path_ = qgetenv("PATH");
    FreshFolder programs_;
};

TEST_F(SoundPlayerTest, aNewSoundCutsOffTheOneBeforeAndNobodyWaits) {
    const std::string ended = (programs_ / "ended").string();
    offer("paplay", "/bin/sleep 1; echo $1 >>'" + ended + "'");
    offer("aplay", "");
    SoundPlayer player;
    QElapsedTimer time;
    time.start();
    player.play("start.wav");
    EXPECT_LT(time.elapsed(), 500);
    ASSERT_TRUE(waitUntil([&] { return log() == "paplay start.wav\n"; })) << log();

    player.play("undo.wav");

    EXPECT_LT(time.elapsed(), 900) << "the first sound still plays";
    ASSERT_TRUE(waitUntil([&] { return programs_.has("ended"); }));
    EXPECT_EQ(log(), "paplay start.wav\npaplay undo.wav\n");
    EXPECT_EQ(programs_.bytes("ended"), "undo.wav\n");
}

TEST_F(SoundPlayerTest, aPlayerThatFailsGivesWayToTheNext) {
    offer("paplay", "exit 1");
    offer("aplay", "");
    SoundPlayer player;
    player.play("start.wav");
    ASSERT_TRUE(waitUntil([&] { return log() == "paplay start.wav\naplay start.wav\n"; })) << log();

    player.play("undo.wav");

    EXPECT_TRUE(waitUntil([&] { return log().ends_with("start.wav\naplay undo.wav\n"); })) << log();
}

TEST_F(SoundPlayerTest, aPlayerThatCannotBeStartedGivesWayToo) {
    programs_.put("paplay", "#!/no/such/shell\n");
    std::filesystem::permissions(programs_ / "paplay", std::filesystem::perms::owner_all);
    offer("aplay", "");
    SoundPlayer player;
    player.play("start.wav");
    ASSERT_TRUE(waitUntil([&] { return log() == "aplay start.wav\n"; })) << log();
    player.play("undo.wav");
    EXPECT_TRUE(waitUntil([&] { return log() == "aplay start.wav\naplay undo.wav\n"; })) << log();
}

TEST_F(SoundPlayerTest, isSilentWhenAllFailOrThereIsNone) {
    SoundPlayer none;
    none.play("start.wav");

    offer("pw-play", "exit 1");
    SoundPlayer player;
    player.play("undo.wav");
    ASSERT_TRUE(waitUntil([&] { return !log().empty(); }));
    player.play("trash.wav");
    EXPECT_TRUE(waitUntil([&] { return log() == "pw-play undo.wav\npw-play trash.wav\n"; })) << log();
}

TEST_F(SoundPlayerTest, theLastSoundEndsWithTheProgram) {
    const std::string ended = (programs_ / "ended").string();
    offer("paplay", "/bin/sleep 0.3; echo >'" + ended + "'");
    {
        SoundPlayer player;
        player.play("start.wav");
        ASSERT_TRUE(waitUntil([&] { return !log().empty(); }));
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(600));
    EXPECT_FALSE(programs_.has("ended"));
}

}  // namespace
}  // namespace zifferon

int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    const QCoreApplication application(count, arguments);
    return RUN_ALL_TESTS();
}
