#include "platform/line_starts.h"

#include <algorithm>

namespace zifferon {

void followLines(std::vector<std::size_t>& starts, TextView text, TextFollower::Ends unchanged,
                 std::size_t lengthBefore) {
    const TextView changed = text.substr(0, text.size() - unchanged.suffix);
    std::vector<std::size_t> between;
    for (std::size_t end = changed.find(u'\n', unchanged.prefix); end != TextView::npos;
         end = changed.find(u'\n', end + 1)) {
        between.push_back(end + 1);
    }
    const auto first = std::upper_bound(starts.begin(), starts.end(), unchanged.prefix);
    const auto behind = std::upper_bound(first, starts.end(), lengthBefore - unchanged.suffix);
    for (auto start = behind; start != starts.end(); ++start) *start += text.size() - lengthBefore;
    starts.insert(starts.erase(first, behind), between.begin(), between.end());
}

}  // namespace zifferon
