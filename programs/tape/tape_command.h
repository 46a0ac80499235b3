// zifferon-keys as a filter: the tape of plain keys, and the sum of a column of a table.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace zifferon {

constexpr int everythingHeld = 0, somethingFailed = 1, badCall = 2;

// Runs `--tape` or `--csv COLUMN` with its options on a file, or on `in`. Returns the exit code: 1 where a
// calculation came to no result or a line holds no number; 2 where options or file are wrong, as `errors`
// tells.
int runTapeCommand(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
                   std::ostream& errors);

}  // namespace zifferon
