// The 8-bit character set of every file of the program: Windows-1252, one byte per character.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace zifferon {

// The character of a byte. The five bytes without a character stand for the control code of the same number.
char16_t fromWindows1252(unsigned char byte);

// The byte of a character, or nothing where the set does not hold it.
std::optional<unsigned char> toWindows1252(char16_t character);

// Adds the bytes of a text, one for each character; "?" stands for what the set does not hold. Both are made
// for texts of megabytes.
void appendWindows1252(TextView text, std::string& bytes);

// Adds the characters of bytes. Every byte has one.
void appendFromWindows1252(std::string_view bytes, Text& text);

}  // namespace zifferon
