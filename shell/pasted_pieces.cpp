#include "shell/pasted_pieces.h"

#include <algorithm>
#include <utility>

namespace zifferon {

bool isLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z') || unit >= 0xC0;
}

bool allDigits(TextView text) { return std::all_of(text.begin(), text.end(), isDigit); }

bool listed(TextView list, TextView word) {
    Text inBlanks(1, u' ');
    inBlanks.append(word).append(1, u' ');
    for (char16_t& unit : inBlanks) {
        const bool capital = (unit >= u'A' && unit <= u'Z') || (unit >= 0xC0 && unit <= 0xDE);
        if (capital) unit = static_cast<char16_t>(unit + 0x20);
    }
    return contains(list, inBlanks);
}

namespace {

constexpr char16_t groupBlank = u'\u00A0';
constexpr char16_t emDash = u'\u2014';

bool isPoint(char16_t unit) { return unit == u',' || unit == u'.'; }
bool isDash(char16_t unit) { return unit == u'-' || unit == enDash || unit == emDash; }
// Signs that mean the same become one; marks that are not seen become 0.
char16_t folded(char16_t unit) {
    for (const int zero : {0x0660, 0x06F0, 0xFF10}) {
        if (unit >= zero && unit < zero + 10) return static_cast<char16_t>(u'0' + unit - zero);
    }
    if (contains(u"\u00AD\u200B\u200C\u200D\u200E\u200F\u2060\uFEFF", {&unit, 1})) return 0;
    if (contains(u"\u202F\u2007\u2009", {&unit, 1})) return groupBlank;
    if (contains(u"\r\v\f\u0085\u2028\u2029", {&unit, 1})) return u'\n';
    if (contains(u"\"«»„“”‚‘‹›•\u2002\u2003\u200A\u3000", {&unit, 1})) return u' ';
    switch (unit) {
        case u'\u2212':
            return u'-';
        case u'×':
            return u'*';
        case u'÷':
            return u'/';
        case u'’':
            return u'\'';
        default:
            return unit;
    }
}

Kind kindOf(char16_t unit) {
    if (isDigit(unit)) return Kind::number;
    if (contains(u"\t;|", {&unit, 1})) return Kind::end;
    if (unit == u' ' || unit == groupBlank) return Kind::blank;
    if (unit == u'+' || unit == u'-' || unit == enDash) return Kind::sign;
    if (unit == u'*' || unit == u'/') return Kind::times;
    if (contains(u"$£¥", {&unit, 1}) || (unit >= 0x20A0 && unit <= 0x20CF)) return Kind::currency;
    if (unit == u'(') return Kind::open;
    if (unit == u')') return Kind::close;
    if (contains(u",.!?'…", {&unit, 1})) return Kind::point;
    const bool mark = unit >= 0x2010 && unit <= 0x2BFF;
    return isLetter(unit) && !mark ? Kind::word : Kind::other;
}

constexpr TextView currencies =
    u" eur euro euros usd chf gbp jpy sek nok dkk pln czk huf cny inr aud cad try dm sfr fr rs kr kč zł ft ";

// The pieces of one line, an end before and behind them.
class Lexer {
  public:
    explicit Lexer(TextView line) : line_(line) {}

    std::vector<Piece> pieces() {
        std::vector<Piece> found{{Kind::end, {}}};
        while (at_ < line_.size()) found.push_back(next());
        found.push_back({Kind::end, {}});
        return found;
    }

  private:
    Piece next() {
        const std::size_t start = at_;
        Kind kind = kindOf(line_[at_]);
        const bool startsFraction = isPoint(line_[at_]) && digitsFrom(at_ + 1) > 0 &&
                                    (at_ == 0 || !isLetter(line_[at_ - 1])) &&
                                    (at_ == 0 || !isPoint(line_[at_ - 1]));
        if (kind == Kind::number || startsFraction) {
            kind = Kind::number;
            passNumber();
        } else if (kind == Kind::word) {
            passWord();
        } else {
            ++at_;
            while (kind == Kind::blank && at_ < line_.size() && kindOf(line_[at_]) == kind) ++at_;
        }
        const TextView text = line_.substr(start, at_ - start);
        if (kind == Kind::word && listed(currencies, text)) kind = Kind::currency;
        return {kind, text};
    }

    void passNumber() {
        at_ += digitsFrom(at_);
        while (at_ < line_.size()) {
            const char16_t unit = line_[at_];
            const std::size_t digits = digitsFrom(at_ + 1);
            const bool inside = isPoint(unit) || unit == u'\'' || (unit == groupBlank && digits == 3);
            if (!inside || digits == 0) break;
            at_ += 1 + digits;
        }
        passNoCents();
    }

    void passNoCents() {
        if (at_ + 1 >= line_.size() || !isPoint(line_[at_]) || !isDash(line_[at_ + 1])) return;
        std::size_t end = at_ + 1;
        while (end < line_.size() && isDash(line_[end]) && end - at_ <= 2) ++end;
        if (digitsFrom(end) == 0) at_ = end;
    }

    // A dash between two letters belongs to the word.
    void passWord() {
        while (at_ < line_.size()) {
            const bool joined = isDash(line_[at_]) && at_ + 1 < line_.size() && isLetter(line_[at_ + 1]);
            if (kindOf(line_[at_]) != Kind::word && !joined) break;
            ++at_;
        }
    }

    std::size_t digitsFrom(std::size_t start) const {
        std::size_t end = start;
        while (end < line_.size() && isDigit(line_[end])) ++end;
        return end - start;
    }

    TextView line_;
    std::size_t at_ = 0;
};

// Merged are the numbers of a cell that can only be one, its groups parted by plain blanks; where they may be
// several, none of them is certain.
class BlankGroups {
  public:
    explicit BlankGroups(std::vector<Piece>& pieces) : pieces_(pieces) {}

    void settle() {
        std::vector<Piece> settled;
        settled.reserve(pieces_.size());
        std::size_t cell = 0;
        for (std::size_t i = 0; i < pieces_.size(); ++i) {
            if (pieces_[i].kind != Kind::end) continue;
            settleCell(cell, i, settled);
            cell = i;
        }
        settled.push_back(pieces_.back());
        pieces_ = std::move(settled);
    }

  private:
    static bool continues(const Piece& piece) {
        return piece.kind == Kind::number && piece.text.size() >= 3 && allDigits(piece.text.substr(0, 3)) &&
               (piece.text.size() == 3 || isPoint(piece.text[3]));
    }

    bool begins(std::size_t i) const {
        const Piece& piece = pieces_[i];
        return piece.kind == Kind::number && piece.text.size() <= 3 && allDigits(piece.text) &&
               piece.text.front() != u'0';
    }

    std::size_t endOfGroups(std::size_t i) const {
        if (!begins(i)) return i;
        while (allDigits(pieces_[i].text) && i + 2 < pieces_.size() && pieces_[i + 1].text == u" " &&
               continues(pieces_[i + 2])) {
            i += 2;
        }
        return i;
    }

    void settleCell(std::size_t start, std::size_t end, std::vector<Piece>& settled) const {
        const auto numbers =
            std::count_if(pieces_.begin() + std::ptrdiff_t(start), pieces_.begin() + std::ptrdiff_t(end),
                          [](const Piece& piece) { return piece.kind == Kind::number; });
        for (std::size_t i = start; i < end; ++i) {
            const std::size_t last = endOfGroups(i);
            if (last == i) {
                settled.push_back(pieces_[i]);
                continue;
            }
            const bool amount = !allDigits(pieces_[last].text) || pieces_[i - 1].kind == Kind::currency ||
                                currencyNear(last + 1) || currencyBefore(i);
            const bool alone = std::size_t(numbers) == (last - i) / 2 + 1;
            const TextView first = pieces_[i].text, final = pieces_[last].text;
            const auto length = static_cast<std::size_t>(final.data() + final.size() - first.data());
            settled.push_back({alone && amount ? Kind::number : Kind::other, {first.data(), length}});
            i = last;
        }
    }

    bool currencyNear(std::size_t i) const {
        if (pieces_[i].kind == Kind::blank) ++i;
        return pieces_[i].kind == Kind::currency;
    }
    bool currencyBefore(std::size_t i) const {
        return i >= 2 && pieces_[i - 1].kind == Kind::blank && pieces_[i - 2].kind == Kind::currency;
    }

    std::vector<Piece>& pieces_;
};

}  // namespace

Text foldedSigns(TextView text) {
    Text plain;
    plain.reserve(text.size());
    for (const char16_t unit : text) {
        if (const char16_t sign = folded(unit)) plain += sign;
    }
    return plain;
}

std::vector<Piece> piecesOf(TextView line) {
    std::vector<Piece> pieces = Lexer(line).pieces();
    BlankGroups(pieces).settle();
    return pieces;
}

}  // namespace zifferon
