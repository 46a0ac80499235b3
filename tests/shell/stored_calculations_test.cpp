// What a stored calculation may have become on the disk, and what the present one suffers from it: nothing.

#include <sys/stat.h>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class StoredCalculationsTest : public FreshProgramTest {
  protected:
    PageControls& page() { return program_.pultform.page; }

    void run(const std::function<void()>& handler) { program_.keys.run(handler); }

    void open() { run(page().edit.onClick); }
    void store(TextView name) {
        open();
        page().savefiles.setText(name);
        run(page().Speichern.onClick);
    }
    void choose() {
        run([&] { page().Files.choose(1); });
    }

    // Chooses the first row, and says Yes.
    void load() {
        open();
        choose();
        headless_.queueAnswer(BoxAnswer::yes);
        run(page().laden.onClick);
        run(page().leave.onClick);
    }
};

TEST_F(StoredCalculationsTest, whatIsCutOrForeignLeavesThePresentOneAlone) {
    type(u"5+3\r");
    store(u"a");
    run(page().leave.onClick);
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
    for (const char16_t character : TextView(u"\\/:*?<>|\".")) {
        log_.str("");
        store(Text(u"a") + character + u"b");
        EXPECT_TRUE(logHas("ungültige Zeichen")) << toUtf8(Text(1, character));
    }
    EXPECT_TRUE(disk_.list(".", "*a*b*").empty());
}

TEST_F(StoredCalculationsTest, whatHasGoneIsNoCalculation) {
    type(u"5+");
    store(u"a");
    choose();
    disk_.remove("a.sav");
    headless_.queueAnswer(BoxAnswer::yes);
    run(page().laden.onClick);
    EXPECT_EQ(state().zwischen.text(), u"5,00");
    choose();
    run(page().Files.onMouseDown);
    EXPECT_EQ(page().txtvorschau.text(), u"");
    EXPECT_FALSE(folder_.has("a.sav"));
    // its deletion finds it gone, which is what was wanted
    headless_.queueAnswer(BoxAnswer::yes);
    run(page().killfile.onClick);
    EXPECT_TRUE(logHas("wurde erfolgreich gelöscht"));
    EXPECT_EQ(page().Files.rows().size(), 0U);
}

TEST_F(StoredCalculationsTest, whatIsNoFileIsNoCalculation) {
    std::filesystem::create_directory(folder_ / "b.sav");
    ASSERT_EQ(::mkfifo((folder_ / "c.sav").c_str(), 0600), 0);
    folder_.put("d.sav", "");
    std::filesystem::create_symlink("d.sav", folder_ / "e.sav");
    store(u"b");
    EXPECT_EQ(page().Files.rows().size(), 2U);
    EXPECT_TRUE(logHas("schreibgeschützt"));
    EXPECT_EQ(page().savefiles.text(), u"b");
    headless_.queueAnswer(BoxAnswer::yes);
    store(u"e");
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "e.sav"));
    EXPECT_NE(folder_.bytes("d.sav"), "");
}

TEST_F(StoredCalculationsTest, hidesThePrintCopyWhileItAsks) {
    store(u"a");
    const TextField& copy = state().superdruck;
    int hidden = 0;
    headless_.onUnansweredQuestion = [&] { hidden += copy.foreColour == copy.backColour ? 1 : 0; };
    for (const Control* button : {&page().laden, &page().killfile}) {
        choose();
        run(button->onClick);
        EXPECT_EQ(copy.foreColour, Colour());
    }
    EXPECT_EQ(hidden, 2);
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

}  // namespace
}  // namespace zifferon
