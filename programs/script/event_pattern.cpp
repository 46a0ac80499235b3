#include "programs/script/event_pattern.h"

namespace zifferon {

bool matches(std::string_view event, std::string_view line) {
    const std::size_t first = line.find('*');
    if (first == std::string_view::npos) return event == line;
    if (!event.starts_with(line.substr(0, first))) return false;
    event.remove_prefix(first);
    line.remove_prefix(first + 1);
    for (std::size_t star; (star = line.find('*')) != std::string_view::npos;) {
        const std::size_t found = event.find(line.substr(0, star));
        if (found == std::string_view::npos) return false;
        event.remove_prefix(found + star);
        line.remove_prefix(star + 1);
    }
    return event.ends_with(line);
}

}  // namespace zifferon
