// What a stored calculation may have become on the disk, and what the present one suffers from it: nothing.

#include <sys/stat.h>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class StoredCalculationsTest : public FreshProgramTest {
  protected:
    PageControls& page() { return program_.pultform.page; }

    void run(const std::function<void()>& handler) { program_.keys.run(handler); }

    void store(TextView name) {
        run(page().edit.onClick);
        page().savefiles.setText(name);
        run(page().Speichern.onClick);
        run(page().leave.onClick);
    }

    // Chooses the first row, and says Yes.
    void load() {
        run(page().edit.onClick);
        run([&] { page().Files.choose(1); });
        headless_.queueAnswer(BoxAnswer::yes);
        run(page().laden.onClick);
        run(page().leave.onClick);
    }
};

TEST_F(StoredCalculationsTest, whatIsCutOrForeignLeavesThePresentOneAlone) {
    type(u"5+3\r");
    store(u"a");
    const std::string whole = folder_.bytes("a.sav");
    constexpr std::size_t switches = 14;  // so many bytes behind the calculation, which a load does not take
    const auto keeps = [&](const std::string& bytes) {
        folder_.put("a.sav", bytes);
        type(u"c");
        type(u"77+");
        const Text tape = state().anzeige.text();
        load();
        const bool kept = state().zwischen.is(u"77,00") && state().anzeige.text() == tape;
        EXPECT_EQ(state().undoCounter, 0);
        type(u"\r\r");
        return kept;
    };
    EXPECT_TRUE(keeps(""));
    EXPECT_TRUE(keeps("a foreign file, told by nothing of a record"));
    for (std::size_t length = 0; length + switches < whole.size(); ++length) {
        EXPECT_TRUE(keeps(whole.substr(0, length))) << length;
    }
    EXPECT_FALSE(keeps(whole));
    EXPECT_FALSE(keeps(whole + "a tail of a longer one"));
}

TEST_F(StoredCalculationsTest, noNameHoldsWhatASystemRefuses) {
    run(page().edit.onClick);
    for (const char16_t character : TextView(u"\\/:*?<>|\".")) {
        log_.str("");
        page().savefiles.setText(Text(u"a") + character + u"b");
        run(page().Speichern.onClick);
        EXPECT_TRUE(logHas("ungültige Zeichen")) << toUtf8(Text(1, character));
    }
    EXPECT_TRUE(disk_.list(".", "*a*b*").empty());
}

TEST_F(StoredCalculationsTest, whatHasGoneOrIsNoFileIsNoCalculation) {
    type(u"5+");
    store(u"a");
    run(page().edit.onClick);
    run([&] { page().Files.choose(1); });
    disk_.remove("a.sav");
    headless_.queueAnswer(BoxAnswer::yes);
    run(page().laden.onClick);
    EXPECT_EQ(state().zwischen.text(), u"5,00");
    EXPECT_FALSE(folder_.has("a.sav"));
    run([&] { page().Files.choose(1); });
    run(page().Files.onMouseDown);
    EXPECT_EQ(page().txtvorschau.text(), u"");
    EXPECT_FALSE(folder_.has("a.sav"));
    // its deletion finds it gone, which is what was wanted
    headless_.queueAnswer(BoxAnswer::yes);
    run(page().killfile.onClick);
    EXPECT_TRUE(logHas("wurde erfolgreich gelöscht"));
    EXPECT_EQ(page().Files.rows().size(), 0U);

    std::filesystem::create_directory(folder_ / "b.sav");
    ASSERT_EQ(::mkfifo((folder_ / "c.sav").c_str(), 0600), 0);
    folder_.put("d.sav", "");
    std::filesystem::create_symlink("d.sav", folder_ / "e.sav");
    run(page().leave.onClick);
    run(page().edit.onClick);
    ASSERT_EQ(page().Files.rows().size(), 2U);
    page().savefiles.setText(u"b");
    run(page().Speichern.onClick);
    EXPECT_TRUE(logHas("schreibgeschützt"));
    EXPECT_EQ(page().savefiles.text(), u"b");
    page().savefiles.setText(u"e");
    headless_.queueAnswer(BoxAnswer::yes);
    run(page().Speichern.onClick);
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "e.sav"));
    EXPECT_GT(folder_.bytes("d.sav").size(), 100U);
}

// Behind the questions the paper is empty, and with the answer No its text is back.
TEST_F(StoredCalculationsTest, hidesThePrintCopyWhileItAsks) {
    type(u"5+");
    store(u"a");
    run(page().edit.onClick);
    const TextField& copy = state().superdruck;
    int asked = 0;
    headless_.onUnansweredQuestion = [&] {
        ++asked;
        EXPECT_EQ(copy.foreColour, copy.backColour);
    };
    for (const Control* button : {&page().laden, &page().killfile}) {
        run([&] { page().Files.choose(1); });
        run(button->onClick);
        EXPECT_EQ(copy.foreColour, Colour());
    }
    run([&] { page().Files.choose(1); });
    run(page().Files.onMouseDown);
    EXPECT_EQ(copy.foreColour, copy.backColour);
    run([&] { program_.pultform.setFocus(page().txtvorschau); });
    EXPECT_EQ(copy.foreColour, Colour());
    EXPECT_EQ(asked, 2);
}

TEST_F(StoredCalculationsTest, aNameOfAnotherCharacterSetIsLoaded) {
    type(u"5+");
    store(u"a");
    const std::string name = "\xE4\xF6.sav";  // no UTF-8, as an old disk brings it
    std::filesystem::rename(folder_ / "a.sav", folder_ / name);
    type(u"6+");
    load();
    EXPECT_EQ(state().zwischen.text(), u"5,00");
}

// Each file operation of a store, a load and a deletion fails once: the calculation is as it was, or as
// stored, or the process has ended for want of a snapshot.
TEST_F(StoredCalculationsTest, surviveAFaultAtEveryOperation) {
    for (int n = 1;; ++n) {
        Program program(machine_);
        headless_.beginAnew();
        program.beginFresh();
        CalculatorState& s = program.pultform.state;
        PageControls& c = program.pultform.page;
        HeadlessTest::type(program, u"5+");
        files_.failOperation(n);
        try {
            program.keys.run(c.edit.onClick);
            c.savefiles.setText(u"a");
            program.keys.run(c.Speichern.onClick);
            program.keys.run([&] { c.Files.choose(1); });
            program.keys.run(c.Files.onMouseDown);
            headless_.queueAnswer(BoxAnswer::yes);
            program.keys.run(c.laden.onClick);
            program.keys.run([&] { c.Files.choose(1); });
            headless_.queueAnswer(BoxAnswer::yes);
            program.keys.run(c.killfile.onClick);
        } catch (const ProcessEnded&) {
            EXPECT_TRUE(logHas("Zu wenig Arbeitsspeicher"));
        }
        EXPECT_EQ(s.zwischen.text(), u"5,00") << n;
        EXPECT_EQ(s.anzeige.text(), u"\r\n5,00      ") << n;
        if (!files_.faultMet()) break;
        ASSERT_LT(n, 60);
    }
}

}  // namespace
}  // namespace zifferon
