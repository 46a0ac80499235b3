#include "shell/pasted_text.h"

#include <algorithm>
#include <utility>

#include "shell/pasted_number.h"
#include "shell/pasted_pieces.h"

namespace zifferon {

namespace {

// The entry takes no more by typing.
constexpr std::size_t longestFigure = 25;

// Words in lower case with a blank around each. A month may stand on either side of a day or a year.
constexpr TextView months =
    u" januar jan january jänner februar feb february märz mär mrz march mar april apr mai may juni jun june"
    u" juli jul july august aug september sep sept oktober okt october oct november nov dezember dez december"
    u" dec ";
constexpr TextView labels =
    u" nr no num pos art artikel re rg seite page tel telefon phone fax mobil plz iban bic blz kto konto kd"
    u" kdnr ust ustid id version ver v kw x ";
constexpr TextView units =
    u" uhr h am pm x prozent percent pct tausend tsd thousand mio mrd million millionen millions milliarde"
    u" milliarden billion billions cent cents ct ";
// A number with what belongs to it: sign, currency, brackets.
struct Reading {
    std::size_t first, last;  // pieces
    std::size_t bound;        // the last piece of the number before, or 0
    PastedFigure figure;
    bool certain = true;
    bool bare = false;  // digits alone, which may as well be a count or a code
    bool isSigned = false, hasCurrency = false, opened = false, closed = false;
};

class Line {
  public:
    Line(TextView line, Separators separators) : separators_(separators), pieces_(piecesOf(line)) {}

    void addTo(PastedFigures& found) {
        findDates();
        read();
        found.leftOut = found.leftOut || hasDoubtfulGroups_;
        bool leftStands = false;
        for (std::size_t i = 0; i < readings_.size(); ++i) {
            Reading& reading = readings_[i];
            char16_t& operation = reading.figure.operation;
            const bool needsLeft = operation != 0 && operation != u'+';
            const bool certain = reading.certain && !mayBeNoAmount(i) && (leftStands || !needsLeft);
            if (!leftStands) operation = 0;
            leftStands = certain;
            if (certain) {
                found.figures.push_back(std::move(reading.figure));
            } else {
                found.leftOut = true;
            }
        }
    }

  private:
    Kind kind(std::size_t i) const { return pieces_[i].kind; }
    TextView text(std::size_t i) const { return pieces_[i].text; }
    bool is(std::size_t i, TextView wanted) const { return text(i) == wanted; }
    std::size_t before(std::size_t i) const { return kind(i - 1) == Kind::blank ? i - 2 : i - 1; }
    std::size_t behind(std::size_t i) const { return kind(i + 1) == Kind::blank ? i + 2 : i + 1; }
    bool oneOf(std::size_t i, std::initializer_list<Kind> kinds) const {
        return std::find(kinds.begin(), kinds.end(), kind(i)) != kinds.end();
    }
    bool bare(std::size_t i) const { return kind(i) == Kind::number && allDigits(text(i)); }

    // A bare number's value where it can be part of a date, else 0.
    int datePart(std::size_t i) const {
        if (!bare(i) || text(i).size() > 4) return 0;
        int value = 0;
        for (const char16_t digit : text(i)) value = 10 * value + (digit - u'0');
        return value;
    }
    bool isDayOrMonth(std::size_t i) const {
        return text(i).size() <= 2 && datePart(i) >= 1 && datePart(i) <= 31;
    }
    bool isYear(std::size_t i) const {
        return text(i).size() == 4 && datePart(i) >= 1900 && datePart(i) < 2100;
    }

    void findDates() {
        date_.assign(pieces_.size(), false);
        for (std::size_t i = 1; i + 1 < pieces_.size(); ++i) {
            const bool parted =
                oneOf(i + 1, {Kind::sign, Kind::times}) && !is(i + 1, u"+") && !is(i + 1, u"*");
            if (!parted || !bare(i) || !bare(i + 2)) continue;
            const bool years = isYear(i) && isYear(i + 2);
            const bool monthAndYear = isDayOrMonth(i) && datePart(i) <= 12 && isYear(i + 2);
            if (years || monthAndYear) date_[i] = date_[i + 2] = true;
            if (!is(i + 3, text(i + 1)) || !bare(i + 4)) continue;
            const bool yearFirst = isYear(i) && isDayOrMonth(i + 2) && isDayOrMonth(i + 4);
            const bool yearLast = isDayOrMonth(i) && isDayOrMonth(i + 2) &&
                                  std::min(datePart(i), datePart(i + 2)) <= 12 &&
                                  (isYear(i + 4) || text(i + 4).size() == 2);
            if (yearFirst || yearLast) date_[i] = date_[i + 2] = date_[i + 4] = true;
        }
    }

    void read() {
        std::size_t bound = 0;
        for (std::size_t i = 1; i + 1 < pieces_.size(); ++i) {
            hasWords_ = hasWords_ || kind(i) == Kind::word;
            // Numbers in groups that may be several.
            hasDoubtfulGroups_ = hasDoubtfulGroups_ || (kind(i) == Kind::other && isDigit(text(i).front()));
            if (kind(i) != Kind::number) continue;
            Reading reading{i, i, bound, {}};
            reading.figure.digits = typedDigits(text(i), separators_);
            takeBefore(reading);
            takeBehind(reading);
            if (reading.closed && !reading.isSigned) reading.figure.negative = true;
            const std::size_t joint = before(reading.first);
            const bool joins =
                bound != 0 && oneOf(joint, {Kind::sign, Kind::times}) && before(joint) == bound;
            if (joins) reading.figure.operation = text(joint).front();
            judge(reading, i);
            bound = reading.last;
            readings_.push_back(std::move(reading));
        }
    }

    // A sign belongs to the number behind it, but for one that stands between two numbers.
    void takeBefore(Reading& r) const {
        for (;;) {
            const std::size_t piece = before(r.first);
            if (piece <= r.bound) return;
            const bool glued = piece + 1 == r.first;
            if (kind(piece) == Kind::currency && !r.hasCurrency) {
                r.hasCurrency = true;
            } else if (kind(piece) == Kind::sign && !r.isSigned) {
                const std::size_t previous = before(piece);
                if (previous == r.bound && r.bound != 0) return;
                if (!glued && !oneOf(previous, {Kind::end, Kind::open})) return;
                r.isSigned = true;
                r.figure.negative = !is(piece, u"+");
            } else if (kind(piece) == Kind::open && !r.opened) {
                r.opened = true;
            } else {
                return;
            }
            r.first = piece;
        }
    }

    void takeBehind(Reading& r) const {
        for (;;) {
            const std::size_t piece = behind(r.last);
            const bool glued = piece == r.last + 1;
            if (kind(piece) == Kind::currency && !r.hasCurrency) {
                if (!glued && kind(piece + 1) == Kind::number) return;
                r.hasCurrency = true;
            } else if (kind(piece) == Kind::sign && !r.isSigned) {
                const bool ends = oneOf(behind(piece), {Kind::end, Kind::close});
                const bool gluedBehind =
                    glued && oneOf(piece + 1, {Kind::blank, Kind::end, Kind::close, Kind::point});
                if (!gluedBehind && !(ends && is(piece, u"+"))) return;
                r.isSigned = true;
                r.figure.negative = !is(piece, u"+");
            } else if (kind(piece) == Kind::close && r.opened && !r.closed) {
                r.closed = true;
            } else {
                return;
            }
            r.last = piece;
        }
    }

    void judge(Reading& r, std::size_t number) {
        const bool code =
            gluedToLetters(r) || (bare(number) && text(number).size() > 1 && text(number).front() == u'0');
        hasCode_ = hasCode_ || code;
        r.bare = bare(number) && !r.hasCurrency;
        const bool readable = !r.figure.digits.empty() && r.figure.digits.size() <= longestFigure;
        r.certain = readable && !code && !date_[number] && r.opened == r.closed &&
                    certainInFront(r, number) && certainBehind(r, number);
        hasAmounts_ = hasAmounts_ || (r.certain && !r.bare);
    }

    // Which makes a code or a quantity of it: H2, 1e3, Nr.5.
    bool gluedToLetters(const Reading& r) const {
        const std::size_t left = r.first - 1, right = r.last + 1;
        const auto codes = {Kind::word, Kind::number};
        const bool dollarOfACountry = kind(r.first) == Kind::currency && !isLetter(text(r.first).front());
        if ((oneOf(left, codes) && !dollarOfACountry) || oneOf(right, codes)) return true;
        if (kind(left) == Kind::point && oneOf(left - 1, codes)) return true;
        return kind(right) == Kind::point && oneOf(right + 1, codes);
    }

    bool certainInFront(const Reading& r, std::size_t number) const {
        const std::size_t left = before(r.first);
        const bool dash = is(left, TextView(&enDash, 1));
        if (r.figure.operation != 0) return !dash && !r.closed;
        if (left == r.bound && left != 0) return left + 1 != r.first;
        if (oneOf(left, {Kind::sign, Kind::times, Kind::open})) return false;
        if (kind(left) == Kind::close && left + 1 == r.first) return false;
        const bool colon = is(left, u":");
        if (colon && oneOf(left - 1, {Kind::number, Kind::end, Kind::other})) return false;
        if (kind(left) == Kind::other && !colon && !is(left, u"&")) return false;
        std::size_t word = left;
        while (kind(word) == Kind::point || is(word, u":")) word = before(word);
        if (kind(word) != Kind::word) return true;
        const bool dated = (isYear(number) || isDayOrMonth(number)) && listed(months, text(word));
        return !dated && !listed(labels, text(word));
    }

    bool certainBehind(const Reading& r, std::size_t number) const {
        const std::size_t right = behind(r.last);
        switch (kind(right)) {
            case Kind::other:
                if (is(right, u"=")) return kind(behind(right)) != Kind::end || r.figure.operation != 0;
                return is(right, u"&");
            case Kind::word:
                return !listed(units, text(right)) && !(isDayOrMonth(number) && listed(months, text(right)));
            case Kind::open:
                return right > r.last + 1;
            case Kind::close:
                return false;
            case Kind::point:
                return !(is(right, u".") && (isOrdinal(number, right) || isDay(text(number))));
            case Kind::sign:
            case Kind::times:
                return certainBeforeJoint(r, right);
            default:
                return true;
        }
    }

    // An operator, or a dash between words.
    bool certainBeforeJoint(const Reading& r, std::size_t joint) const {
        const std::size_t next = behind(joint);
        const bool range = is(joint, TextView(&enDash, 1)) && kind(next) == Kind::number;
        if (range || oneOf(next, {Kind::end, Kind::close})) return false;
        const bool compound =
            kind(joint) == Kind::sign && joint == r.last + 1 && kind(joint + 1) == Kind::word;
        if (compound) return false;
        const bool dashes = kind(joint) == Kind::sign && kind(next) == Kind::sign &&
                            oneOf(next + 1, {Kind::blank, Kind::end});
        if (dashes) return false;
        const bool joins = oneOf(next, {Kind::number, Kind::currency, Kind::sign, Kind::open});
        return !(joins && r.closed);
    }

    // "1. Miete", "12. März"
    bool isOrdinal(std::size_t number, std::size_t point) const {
        return bare(number) && kind(behind(point)) != Kind::end;
    }

    // "12.03" before another point
    static bool isDay(TextView number) {
        const std::size_t point = number.find(u'.');
        if (point > 2 || number.substr(point).size() != 3) return false;
        return number.substr(point + 1) <= u"12" && (point == 1 || number.substr(0, 2) <= u"31");
    }

    // Bare digits beside amounts in a text, or beside a code: a count, a number of something, a part of the
    // code.
    bool mayBeNoAmount(std::size_t i) const {
        const Reading& r = readings_[i];
        const bool joined =
            r.figure.operation != 0 || (i + 1 < readings_.size() && readings_[i + 1].figure.operation != 0);
        return r.bare && !joined && (hasCode_ || (hasWords_ && (hasAmounts_ || r.closed)));
    }

    Separators separators_;
    std::vector<Piece> pieces_;
    std::vector<bool> date_;
    std::vector<Reading> readings_;
    bool hasWords_ = false, hasAmounts_ = false, hasCode_ = false, hasDoubtfulGroups_ = false;
};

}  // namespace

PastedFigures figuresOf(TextView pasted, Separators separators) {
    const Text text = foldedSigns(pasted);
    PastedFigures found;
    for (TextView rest = text; !rest.empty();) {
        const std::size_t end = std::min(rest.find(u'\n'), rest.size());
        Line(rest.substr(0, end), separators).addTo(found);
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return found;
}

}  // namespace zifferon
