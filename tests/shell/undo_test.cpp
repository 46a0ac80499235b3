// Snapshots that are missing, damaged or in the way.

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class UndoFiles : public FreshProgramTest {
  protected:
    void undo() { program_.keys.stroke({keyCode::right}); }
};

TEST_F(UndoFiles, aDamagedSnapshotLeavesTheCalculationAlone) {
    type(u"5+3*");
    const Text tape = state().anzeige.text();
    folder_.put("Temp/temp1.tmp", std::string(50, '\xEE'));
    undo();
    EXPECT_TRUE(logHas("box warning ok \"Undo\""));
    EXPECT_EQ(state().anzeige.text(), tape);
    EXPECT_EQ(state().zwischen.text(), u"8,00");
    EXPECT_EQ(state().undoCounter, 2);
    type(u"2\r");
    EXPECT_EQ(state().zwischen.text(), u"16,00");
}

// Only a step that never had a snapshot is a gap.
TEST_F(UndoFiles, aSnapshotThatAnotherProgramHasDeletedLeavesTheCalculationAlone) {
    type(u"5+3*2-");
    const Text tape = state().anzeige.text();
    std::filesystem::remove(folder_ / "Temp/temp2.tmp");
    for (int i = 0; i < 2; ++i) undo();
    EXPECT_TRUE(logHas("box warning ok \"Undo\""));
    EXPECT_EQ(state().anzeige.text(), tape);
    EXPECT_EQ(state().zwischen.text(), u"16,00");
    EXPECT_EQ(state().undoCounter, 3);
}

// Of a long calculation the newest 200 are files, and every step comes back as it was.
TEST_F(UndoFiles, olderOnesAreFoldedAndComeBackToTheByte) {
    const auto fileOf = [](int number) { return "Temp/temp" + std::to_string(number) + ".tmp"; };
    const auto files = [&] {
        const std::filesystem::directory_iterator temp(folder_ / "Temp");
        return std::distance(begin(temp), end(temp));
    };
    std::vector<std::string> copies{folder_.bytes(fileOf(0))};
    for (int step = 1; step <= 500; ++step) {
        const int number = state().undoCounter;
        type(step % 50 == 0 ? u"\r" : step % 7 == 0 ? u"m33*" : u"12,5+");
        if (state().undoCounter > number) copies.push_back(folder_.bytes(fileOf(state().undoCounter)));
        if (step % 90 == 0) program_.pultform.nixspez.click();  // the next step takes its number again
        copies.resize(static_cast<std::size_t>(state().undoCounter) + 1);
    }
    EXPECT_EQ(files(), 200);
    for (int number = state().undoCounter; number > 0; --number) {
        ASSERT_EQ(state().undoCounter, number);
        EXPECT_EQ(folder_.bytes(fileOf(std::max(number - 199, 0))),
                  copies[static_cast<std::size_t>(std::max(number - 199, 0))]);
        undo();
        ASSERT_EQ(folder_.bytes(fileOf(number - 1)), copies[static_cast<std::size_t>(number - 1)]);
        ASSERT_FALSE(folder_.has(fileOf(number)));
    }
    EXPECT_EQ(state().zwischen.text(), u"0");
    EXPECT_EQ(files(), 1);
}

TEST_F(UndoFiles, aLostFolderIsMadeAnew) {
    type(u"5+");
    std::filesystem::remove_all(folder_ / "Temp");
    type(u"3+");
    EXPECT_EQ(state().zwischen.text(), u"8,00");
    EXPECT_TRUE(folder_.has("Temp/temp2.tmp"));
}

TEST_F(UndoFiles, whereNoneCanBeMadeTheNextSnapshotEndsTheProcess) {
    type(u"5+");
    std::filesystem::remove_all(folder_ / "Temp");
    folder_.put("Temp", "");
    EXPECT_THROW(type(u"3+"), ProcessEnded);
    EXPECT_TRUE(logHas("Zu wenig Arbeitsspeicher"));
}

TEST_F(UndoFiles, theFolderIsEmptiedButNoLinkIsFollowed) {
    folder_.put("precious.txt", "figures");
    std::filesystem::create_symlink(folder_ / "precious.txt", folder_ / "Temp/temp7.tmp");
    program_.beginFresh();
    EXPECT_FALSE(std::filesystem::is_symlink(folder_ / "Temp/temp7.tmp"));
    EXPECT_EQ(folder_.bytes("precious.txt"), "figures");
    EXPECT_TRUE(folder_.has("Temp/temp0.tmp"));
}

// A tape far beyond what a 16-bit length can tell comes back whole.
TEST_F(UndoFiles, aTapeOfAnyLengthComesBack) {
    Text lines;
    for (int i = 0; i < 8000; ++i) lines += u"\r\n1.234,56 +   ";
    state().anzeige.setText(lines);
    type(u"5+");
    const Text tape = state().anzeige.text();
    type(u"3+");
    undo();
    EXPECT_GT(tape.size(), 65535u);
    EXPECT_EQ(state().anzeige.text(), tape);
}

}  // namespace
}  // namespace zifferon
