// Text as the program holds it: one UTF-16 unit per character, and its way to and from UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zifferon {

using Text = std::u16string;
using TextView = std::u16string_view;

// UTF-8 bytes as Text. Bytes that are no UTF-8 become U+FFFD, one for each byte.
Text fromUtf8(std::string_view bytes);

// Text as UTF-8 bytes. A lone surrogate becomes U+FFFD.
std::string toUtf8(TextView text);

inline bool contains(TextView text, TextView part) { return text.find(part) != TextView::npos; }

}  // namespace zifferon
