// Any key at any moment, in any order of downs and ups: the program stands, and its state keeps its
// invariants.

#include <algorithm>
#include <random>

#include "platform/mouse.h"
#include "shell/send_keys.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class RandomKeys : public FreshProgramTest, public testing::WithParamInterface<unsigned> {
  protected:
    RandomKeys() : random_(GetParam()) {
        headless_.whileModal = [this](const Window& modal) {
            for (int clicks = 3; clicks > 0 && modal.visible; --clicks) {
                clickAnyOf(*headless_.inUse().window, *headless_.inUse().keys);
            }
            headless_.inUse().window->visible = false;
        };
    }

    unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

    Key anyKey() {
        static const Text characters = u"0123456789,.+-*/%=cCvVwWpPdDmMrRtT<> x€\u00DF";
        static const std::vector<Key> named = keysOfNotation(
            u"{ENTER}{ENTER}{ENTER}{BS}{DEL}{ESC}{LEFT}{RIGHT}{UP}{DOWN}{HOME}{END}{PGUP}{TAB}%");
        if (below(5) == 0) return named[below(static_cast<unsigned>(named.size()))];
        return keyOfCharacter(characters[below(static_cast<unsigned>(characters.size()))]);
    }

    Text anyText() {
        static const std::vector<Text> texts = {u"12,50 EUR", u"5\n6\n-7", u"8/0*3", u"Datum 12.03.2026",
                                                u"(3)"};
        return texts[below(static_cast<unsigned>(texts.size()))];
    }

    void clickAnyOf(Window& window, KeyRoad& keys) {
        const auto& controls = window.controls();
        Control& control = *controls[below(static_cast<unsigned>(controls.size()))];
        for (unsigned clicks = 1 + below(2); clicks > 0 && isReachable(window, control); --clicks) {
            mousePress(window, keys, control);
            mouseRelease(keys, control);
            if (clicks == 1 && below(2) == 0) mouseDoubleClick(keys, control);
        }
    }

    void act() {
        switch (below(13)) {
            case 0:
                return program_.keys.keyDown(anyKey());
            case 1:
                return program_.keys.keyUp(anyKey());
            case 2:
                return program_.keys.releaseAll();
            case 3:
                return clickAnyOf(program_.pultform, program_.keys);
            case 4:
                return program_.pultform.onPaste(anyText());
            case 5:
                return headless_.wait(below(700));
            default:
                return program_.keys.stroke(anyKey());
        }
    }

    void checkInvariants() {
        const CalculatorState& s = program_.pultform.state;
        EXPECT_TRUE(chainHolds(s)) << toUtf8(s.txtop.text() + u" | " + s.zwischen.text());
        EXPECT_NE(program_.pultform.focus(), nullptr);
    }

    std::mt19937 random_;
};

TEST_P(RandomKeys, leaveTheInvariants) {
    for (int i = 0; i < 10000; ++i) {
        act();
        checkInvariants();
        if (HasFailure()) FAIL() << "after " << i << " actions";
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomKeys, testing::Range(0u, 8u));

}  // namespace
}  // namespace zifferon
