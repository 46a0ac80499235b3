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

TEST(TextField, tellsItsFollowersWhatHasStayed) {
    std::mt19937 random(11);
    TextField field;
    field.multiLine = field.keepsChanges = true;
    TextFollower follower(field);
    Text before;
    std::vector<std::size_t> starts{0};
    const auto somewhere = [&] { return random() % (field.text().size() + 1); };
    for (int turn = 0; turn < 20000; ++turn) {
        field.select(somewhere(), random() % 4 == 0 ? random() % 30 : 0);
        switch (random() % 10) {
            case 0:
                field.append(u"\r\n12,50 +");
                break;
            case 1:
                field.setTextFrom(somewhere(), u"x\r\n");
                break;
            case 2:
                field.handleKey(keyCode::del);
                break;
            case 3:
                field.handleCharacter(u'\b');
                break;
            case 4:
                field.undo();
                break;
            default:
                field.handleCharacter(random() % 5 == 0 ? u'\r' : u'a');
                break;
        }
        if (random() % 3 == 0) continue;
        const Text& now = field.text();
        const TextFollower::Ends ends = follower.takeUnchanged();
        ASSERT_LE(ends.prefix + ends.suffix, std::min(before.size(), now.size()));
        ASSERT_EQ(now.substr(0, ends.prefix), before.substr(0, ends.prefix));
        ASSERT_EQ(now.substr(now.size() - ends.suffix), before.substr(before.size() - ends.suffix));
        followLines(starts, now, ends, before.size());
        ASSERT_EQ(starts, startsOf(now));
        before = now;
    }
}

TEST(TextField, takesBackEveryChangeOfTheUser) {
    std::mt19937 random(12);
    TextField field;
    field.multiLine = field.keepsChanges = true;
    field.setText(u"\r\none\r\ntwo");
    for (int turn = 0; turn < 500; ++turn) {
        field.select(random() % (field.text().size() + 1), random() % 3 == 0 ? random() % 5 : 0);
        if (random() % 4 == 0) {
            field.handleKey(keyCode::del);
        } else {
            field.handleCharacter(random() % 4 == 0 ? u'\b' : random() % 4 == 0 ? u'\r' : u'a');
        }
    }
    while (field.undo()) {
    }
    EXPECT_EQ(field.text(), u"\r\none\r\ntwo");
}

TEST(ListBox, movesItsSelectionByKeysAndLetters) {
    ListBox list;
    int clicks = 0;
    list.onClick = [&] { ++clicks; };
    list.handleKey(keyCode::down);
    EXPECT_EQ(list.row(), 0);
    list.setRows({u"Abend", u"Morgen", u"Mittag", u"Österreich"});
    list.pageRows = 2;
    const auto rowAfter = [&](int code) {
        list.handleKey(code);
        return list.row();
    };
    EXPECT_EQ(rowAfter(keyCode::down), 1);
    EXPECT_EQ(rowAfter(keyCode::up), 1);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(rowAfter(keyCode::pageDown), 3);
    EXPECT_EQ(rowAfter(keyCode::pageDown), 4);
    EXPECT_EQ(rowAfter(keyCode::home), 1);
    EXPECT_EQ(rowAfter(keyCode::end), 4);
    EXPECT_EQ(rowAfter(keyCode::pageUp), 2);
    list.handleCharacter(u'm');
    EXPECT_EQ(list.row(), 3);
    list.handleCharacter(u'M');
    EXPECT_EQ(list.row(), 2);
    list.handleCharacter(u'ö');
    EXPECT_EQ(list.selected(), u"Österreich");
    list.handleCharacter(u'x');
    EXPECT_EQ(list.row(), 4);
    EXPECT_FALSE(list.select(5));
    EXPECT_FALSE(list.select(-1));
    list.setRows({u"one"});
    EXPECT_EQ(list.row(), 0);
    EXPECT_EQ(list.selected(), u"");
}

}  // namespace
}  // namespace zifferon
