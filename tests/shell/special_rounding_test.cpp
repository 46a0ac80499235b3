// Special rounding over all last digits, on both sides of zero.

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

using SpecialRounding = FreshProgramTest;

Text amount(int cents) {
    const int size = std::abs(cents);
    Text text(cents < 0 ? 1 : 0, u'-');
    text += fromUtf8(std::to_string(size / 100));
    text += u',';
    return text += fromUtf8(std::to_string(size % 100 + 100).substr(1));
}

TEST_F(SpecialRounding, takesTotalsToTheNearestMultiple) {
    for (int step = 0; step < 3; ++step) state().rndright.click();
    for (int cents = -210; cents <= 210; ++cents) {
        type(amount(std::abs(cents)) + (cents < 0 ? u"v+0\r" : u"+0\r"));
        ASSERT_EQ(state().zwischen.text(), amount(cents));
        type(u" ");
        const int multiple = (std::abs(cents) + 2) / 5 * 5;
        EXPECT_EQ(state().zwischen.text(), amount(cents < 0 ? -multiple : multiple)) << cents;
        type(u"\r");
    }
}

}  // namespace
}  // namespace zifferon
