// A long text that is changed anywhere, and what follows it.

#include <gtest/gtest.h>

#include <random>

#include "platform/key.h"
#include "platform/line_starts.h"
#include "platform/list_box.h"

namespace zifferon {
namespace {

std::vector<std::size_t> startsOf(TextView text) {
    std::vector<std::size_t> starts{0};
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == u'\n') starts.push_back(i + 1);
    }
    return starts;
}

class TextFieldTest : public testing::Test {
  protected:
    TextFieldTest() {
        field_.multiLine = field_.keepsChanges = true;
        field_.setText(u"\r\none\r\ntwo");
    }

    std::size_t somewhere() { return random_() % (field_.text().size() + 1); }

    void typeSomewhere() {
        field_.select(somewhere(), random_() % 4 == 0 ? random_() % 30 : 0);
        const unsigned kind = static_cast<unsigned>(random_() % 8);
        if (kind == 0) return field_.handleKey(keyCode::del);
        field_.handleCharacter(kind == 1 ? u'\b' : kind == 2 ? u'\r' : u'a');
    }

    std::mt19937 random_{11};
    TextField field_;
};

TEST_F(TextFieldTest, tellsItsFollowersWhatHasStayed) {
    TextFollower follower(field_);
    Text before;
    std::vector<std::size_t> starts{0};
    for (int turn = 0; turn < 20000; ++turn) {
        typeSomewhere();
        if (random_() % 8 == 0) field_.append(u"\r\n12,50 +");
        if (random_() % 8 == 0) field_.setTextFrom(somewhere(), u"x\r\n");
        if (random_() % 8 == 0) field_.undo();
        if (random_() % 3 == 0) continue;
        const Text& now = field_.text();
        const TextFollower::Ends ends = follower.takeUnchanged();
        ASSERT_LE(ends.prefix + ends.suffix, std::min(before.size(), now.size()));
        ASSERT_EQ(now.substr(0, ends.prefix), before.substr(0, ends.prefix));
        ASSERT_EQ(now.substr(now.size() - ends.suffix), before.substr(before.size() - ends.suffix));
        followLines(starts, now, ends, before.size());
        ASSERT_EQ(starts, startsOf(now));
        before = now;
    }
}

TEST_F(TextFieldTest, takesBackEveryChangeOfTheUser) {
    for (int turn = 0; turn < 500; ++turn) typeSomewhere();
    while (field_.undo()) {
    }
    EXPECT_EQ(field_.text(), u"\r\none\r\ntwo");
}

TEST(ListBox, movesItsSelectionByKeysAndLetters) {
    ListBox list;
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    list.handleKey(keyCode::down);
    EXPECT_EQ(list.row(), 0);
    list.setRows({u"Abend", u"Morgen", u"Mittag", u"Österreich"});
    list.pageRows = 2;
    for (const auto& [code, row] :
         {std::pair(keyCode::down, 1), std::pair(keyCode::up, 1), std::pair(keyCode::pageDown, 3),
          std::pair(keyCode::pageDown, 4), std::pair(keyCode::home, 1), std::pair(keyCode::end, 4),
          std::pair(keyCode::pageUp, 2)}) {
        list.handleKey(code);
        EXPECT_EQ(list.row(), row) << code;
    }
    EXPECT_EQ(clicks, 6);
    for (const auto& [letter, row] :
         {std::pair(u'm', 3), std::pair(u'M', 2), std::pair(u'ö', 4), std::pair(u'x', 4)}) {
        list.handleCharacter(letter);
        EXPECT_EQ(list.row(), row) << static_cast<int>(letter);
    }
    EXPECT_EQ(list.selected(), u"Österreich");
    EXPECT_FALSE(list.select(5) || list.select(-1));
    list.setRows({u"one"});
    EXPECT_EQ(list.row(), 0);
    EXPECT_EQ(list.selected(), u"");
}

}  // namespace
}  // namespace zifferon
