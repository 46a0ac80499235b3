// The deal of the puzzle: every order is about equally likely.

#include <map>
#include <vector>

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

using PuzzleTest = FreshProgramTest;

TEST_F(PuzzleTest, dealsEveryOrderAboutEquallyOften) {
    constexpr int deals = 2400;
    Puzzle& puzzle = program_.puzzle;
    std::map<std::vector<int>, int> orders;
    for (unsigned seed = 0; seed < deals; ++seed) {
        system_.seed = seed;
        puzzle.onActivate();
        std::vector<int> order;
        for (const auto* piece : {&puzzle.Picture1, &puzzle.Picture2, &puzzle.Picture3, &puzzle.Picture4}) {
            order.push_back(piece->place.left);
        }
        ++orders[order];
    }
    EXPECT_EQ(orders.size(), 24U);
    for (const auto& [order, count] : orders) EXPECT_TRUE(count > deals / 48 && count < deals / 12) << count;
}

}  // namespace
}  // namespace zifferon
