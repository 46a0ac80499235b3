// Snapshots that are missing, damaged or in the way.

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class UndoFiles : public FreshProgramTest {
  protected:
    void undo() { program_.keys.stroke({keyCode::right}); }
};

// Only a step that never had a snapshot is a gap.
TEST_F(UndoFiles, whatAnotherProgramHasDamagedOrDeletedLeavesTheCalculationAlone) {
    type(u"5+3*2-");
    const Text tape = state().anzeige.text();
    const auto keeps = [&] {
        log_.str("");
        for (int i = 0; i < 2; ++i) undo();
        return logHas("box warning ok \"Undo\"") && state().anzeige.text() == tape &&
               state().zwischen.is(u"16,00") && state().undoCounter == 3;
    };
    folder_.put("Temp/temp2.tmp", std::string(50, '\xEE'));
    EXPECT_TRUE(keeps());
    std::filesystem::remove(folder_ / "Temp/temp2.tmp");
    EXPECT_TRUE(keeps());
}

TEST_F(UndoFiles, aLostFolderIsMadeAnewOrEndsTheProcess) {
    type(u"5+");
    std::filesystem::remove_all(folder_ / "Temp");
    type(u"3+");
    EXPECT_EQ(state().zwischen.text(), u"8,00");
    EXPECT_TRUE(folder_.has("Temp/temp2.tmp"));
    std::filesystem::remove_all(folder_ / "Temp");
    folder_.put("Temp", "");
    EXPECT_THROW(type(u"3+"), ProcessEnded);
    EXPECT_TRUE(logHas("Zu wenig Arbeitsspeicher"));
}

}  // namespace
}  // namespace zifferon
