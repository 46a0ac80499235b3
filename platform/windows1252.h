// The 8-bit character set of every file of the program: Windows-1252, one byte per character.
#pragma once

#include <optional>
#include <string_view>

#include "platform/text.h"

namespace zifferon {

// The character of a byte. The five bytes without a character stand for the control code of the same number.
char16_t fromWindows1252(unsigned char byte);

// The byte of a character, or nothing where the set does not hold it.
std::optional<unsigned char> toWindows1252(char16_t character);

// Writes the bytes of a text, one for each character, from `bytes` on; "?" stands for what the set does not
// hold. Both ways are made for texts of megabytes.
void encodeWindows1252(TextView text, char* bytes);

// Writes the characters of bytes, one for each byte, from `characters` on.
void decodeWindows1252(std::string_view bytes, char16_t* characters);

}  // namespace zifferon
