#include "programs/script/script_line.h"

#include <charconv>

namespace zifferon {

namespace {

char unescape(char character) {
    switch (character) {
        case '"':
        case '\\':
            return character;
        case 'r':
            return '\r';
        case 'n':
            return '\n';
        case 't':
            return '\t';
        default:
            throw MalformedScript(std::string("unknown escape \\") + character);
    }
}

}  // namespace

void ScriptLine::skipBlanks() {
    const std::size_t start = rest_.find_first_not_of(" \t");
    rest_.remove_prefix(start == std::string_view::npos ? rest_.size() : start);
}

bool ScriptLine::atEnd() {
    skipBlanks();
    return rest_.empty();
}

bool ScriptLine::atQuote() { return !atEnd() && rest_.front() == '"'; }

std::string ScriptLine::word() {
    if (atEnd()) throw MalformedScript("a word is missing at the end of the line");
    const std::size_t length = std::min(rest_.find_first_of(" \t"), rest_.size());
    std::string found(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return found;
}

Text ScriptLine::quotedText() {
    if (!atQuote()) throw MalformedScript("a text in double quotes is missing");
    std::string bytes;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
        if (rest_[i] == '"') {
            rest_.remove_prefix(i + 1);
            return fromUtf8(bytes);
        }
        if (rest_[i] != '\\') {
            bytes += rest_[i];
        } else if (++i < rest_.size()) {
            bytes += unescape(rest_[i]);
        }
    }
    throw MalformedScript("a text in double quotes has no end");
}

Text ScriptLine::textOrWord() { return atQuote() ? quotedText() : fromUtf8(word()); }

std::int64_t ScriptLine::number() {
    const std::string digits = word();
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || value < 0) {
        throw MalformedScript("\"" + digits + "\" is no number");
    }
    return value;
}

std::string ScriptLine::remainder() {
    skipBlanks();
    const std::size_t last = rest_.find_last_not_of(" \t");
    std::string found(rest_.substr(0, last == std::string_view::npos ? 0 : last + 1));
    rest_ = {};
    return found;
}

void ScriptLine::expectEnd() {
    if (!atEnd()) throw MalformedScript("\"" + remainder() + "\" is too much");
}

}  // namespace zifferon
