// The deal of the puzzle.

#include <map>
#include <set>
#include <vector>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

class PuzzleTest : public FreshProgramTest {};

TEST_F(PuzzleTest, dealsEveryOrderAboutEquallyOften) {
    constexpr int deals = 2400;
    Puzzle& puzzle = program_.puzzle;
    std::map<std::vector<int>, int> orders;
    for (int seed = 0; seed < deals; ++seed) {
        system_.seed = static_cast<std::uint32_t>(seed);
        puzzle.onActivate();
        ++orders[{puzzle.Picture1.place.left, puzzle.Picture2.place.left, puzzle.Picture3.place.left,
                  puzzle.Picture4.place.left}];
    }
    EXPECT_EQ(orders.size(), 24U);
    for (const auto& [order, count] : orders) {
        EXPECT_GT(count, deals / 24 / 2);
        EXPECT_LT(count, deals / 24 * 2);
        EXPECT_EQ(std::set<int>(order.begin(), order.end()), (std::set{50, 1050, 2050, 3060}));
    }
}

}  // namespace
}  // namespace zifferon
