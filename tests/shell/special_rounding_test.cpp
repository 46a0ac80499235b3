// Special rounding over all last digits, on both sides of zero.

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

using SpecialRounding = FreshProgramTest;

Text amount(int cents) {
    const std::string digits = std::to_string(std::abs(cents) + 1000);  // of four digits
    const std::string text = digits.substr(1, 1) + ',' + digits.substr(2);
    return fromUtf8((cents < 0 ? "-" : "") + text);
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
