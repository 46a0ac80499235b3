// Writing a file beside the old one, which it then replaces in one step.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace zifferon {

// Files::exchange for a name in the folder of that descriptor. Until then the new content stands in a hidden
// file ".NAME.new" in the folder of the file; one that a kill left behind is overwritten.
void exchangeFile(int programFolder, const std::string& name, std::span<const std::string_view> pieces);

}  // namespace zifferon
