// The states that long walks through the program go through, its windows, its files and its next start: a
// digest of each walk, in walks.out. It says nothing of what is right, which the stories tell, but no
// behaviour changes without a word. Where a change is meant, look at the walk that the failure tells, and
// take over the file that the test leaves behind.

#include <time.h>

#include <algorithm>
#include <random>

#include "core/number_format.h"
#include "platform/mouse.h"
#include "programs/script/script_names.h"
#include "shell/pasted_text.h"
#include "shell/required_files.h"
#include "shell/send_keys.h"
#include "tests/shell/control_line.h"
#include "tests/shell/parted.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

constexpr unsigned walks = 160;

// A # is any digit.
const std::vector<TextView> sentences = parted(
    u"1|2,5|100|0,05|12345,678|999999|{+}|-|*|/|{ENTER}|{ENTER}|{ENTER}{ENTER}|c|p|{%}|d|w| |v|t|m1|m2|r1|r2|"
    u"{RIGHT}|{BS}|{ESC}|<|5{+}3{ENTER}|200p10{ENTER}|d100{ENTER}110{ENTER}|16w|8/0{ENTER}|19p|m3{ENTER}|mm|"
    u"7*6{ENTER}{ENTER}c|r9|{DEL}|{LEFT}{HOME}{END}|{PGUP}7|>>>|"
    u"#,##{+}0{ENTER} |#,##v{+}0{ENTER} ",
    u"|");
const std::vector<TextView> commands = parted(
    u"{F2}|{F6}|{F7}|{F8}|{F10}|m{F3}|m{F4}|{F9}|{TAB}|{F5}|{UP}|{DOWN}|{F1}|{F11}|{F11}|{F11}|{PGDN}|{"
    u"RIGHT}",
    u"|");
const std::vector<TextView> pasted = parted(
    u"12,50 EUR|5\n6\n-7|8/0*3|1.234,50\t3|(3)|1 234,5|Summe 5 + 6 =|3-\n4+|12.03.2026|1,5 2,5|1'000.50|"
    u"200\n250|10-|Datum|7*2",
    u"|");

// What pasted texts are made of. A ~ is any sign that may part a date.
const std::vector<TextView> scraps = parted(
    u"#~#~20##¦##~##~20##¦20##~##~##¦19##~1#~3#¦###~##~##¦1#~1#~##¦#~20##¦1#~20##¦20##~20##¦2100~1#~1#¦"
    u"1899~2000¦1899~#~#¦##.1#¦#.##¦#.###,##¦#,###.##¦# ###,##¦##,##,###.##¦#'###'###¦#.##.###¦0#¦#,-¦#,--¦"
    u"#,---¦####¦1234567890123456789012345¦#### ###¦## ###¦0## ###¦september #¦##. märz¦Nr. #¦#:##¦£¦¥¦...¦…¦"
    u"1¦5¦12¦31¦2026¦1 234¦,34,567¦03¦007¦123¦123¦2026¦1900¦234,50¦1.234¦12.03¦,¦.¦,¦.¦'¦:¦;¦ ¦ ¦ ¦ "
    u"¦-¦-¦/¦/¦–¦—¦+¦*¦/¦(¦)¦(¦)¦=¦%¦&¦\n¦\t¦x¦"
    u"€¦$¦EUR¦zł¦AUD¦CZK¦Uhr¦AM¦Nr¦KTO¦ZEIT¦MÄRZ¦mai¦millionen¦thousand¦\u00A0¦\u0662¦\u2212¦×¦’¦\u00AD¦«",
    u"¦");

// Writes without waiting for the disk, by the clock of the walk.
class QuickDisk : public PosixFiles {
  public:
    QuickDisk(const FreshFolder& folder, const HeadlessMachine& clock)
        : PosixFiles(folder.path()), clock_(clock) {}

    void exchange(const std::string& name, std::span<const std::string_view> pieces) override {
        write(name, pieces);
        stamp(name, clock_.now());
    }

  private:
    const HeadlessMachine& clock_;
};

// Everything that is done depends on the seed alone: no distribution of the library, which may differ.
class Walk : HeadlessStage {
  public:
    explicit Walk(unsigned seed) : seed_(seed), random_(seed) {
        for (const char* const name : requiredFiles) folder_.put(name, "");
        for (const char16_t* const name : {u"Zett A", u"Zett B"}) headless_.printer.addPrinter(name);
        headless_.setClock({});
        system_.clock = [this] { return headless_.now(); };
        headless_.onUnansweredQuestion = [this] { digestState(); };  // what it covers
        headless_.whileModal = [this](const Window& window) {
            for (int i = 0; i < 20 && window.visible; ++i) step();
            const HeadlessMachine::InUse in = headless_.inUse();
            if (in.window->onDismiss) in.window->onDismiss();
            digest(in.window->visible ? "stays" : "goes");
            in.window->visible = false;
        };
    }

    // The digest of all that it meets; what was done is told in `story`.
    std::uint64_t go() {
        untilTheEnd([this] { workThrough(); });
        digestFolder();
        story += "START ";
        untilTheEnd([this] { startAnew(); });
        digestFolder();
        constexpr unsigned signs = 0x10000 / walks + 1;  // of all there are
        for (unsigned i = 0; i < signs; ++i) {
            readText(scrapsOfText());
            const auto sign = static_cast<char16_t>(signs * seed_ + i);
            readText(
                {u'5', sign, u'7', u'\n', sign, u'5', u'\n', u'x', sign, u'5', u',', u'5', u' ', sign, u'6'});
        }
        return digest_;
    }

    std::string story;

  private:
    void untilTheEnd(const std::function<void()>& act) {
        headless_.beginAnew();
        program_ = std::make_unique<Program>(quickMachine_);
        headless_.setMainWindow(program_->pultform, program_->keys);
        try {
            act();
        } catch (const ProcessEnded&) {
            digest("end");
        }
        digestState();
        for (const Window* const window : program_->windows()) digestWindow(*window);
    }

    void workThrough() {
        CalculatorState& s = program_->pultform.state;
        if (seed_ % 3 == 1) s.language = Language::english;
        if (seed_ % 4 == 1) s.decimalPointStyle = 1;
        if (seed_ % 5 == 1) s.formatMode = 2;
        applyFormatMode(s);
        program_->beginFresh();
        if (seed_ % 3 == 2) type(u">>>");  // rounded to 0,05
        s.checkrnd.setTicked(seed_ % 7 == 2);
        if (seed_ % 4 == 3) {  // on the page, with a stored calculation
            program_->keys.run(program_->pultform.page.edit.onClick);
            type(u"a{ENTER}");
            if (seed_ % 8 == 7) program_->pultform.setFocus(s.superdruck);
        }
        for (int i = 0; i < 120; ++i) {
            step();
            headless_.settleActivation();
            if (i % 2 == 0) digestState();
        }
    }

    // The next day begins with the last step of this one, and some files may be damaged.
    void startAnew() {
        static const std::vector<std::string> locales = {"00000407", "00000409", "00000C07", ""};
        static const std::vector<std::string> systems = {"Windows XP", "Windows 98 SE", "Windows NT"};
        static const std::vector<std::string> settings = {
            "language.dat",  "decpoint.dat", "format.dat",  "winstate.dat", "gui1.dat",
            "gui2.dat",      "style.dat",    "ntcheck.zfr", "wpcheck.zfr",  "visible.zfr",
            "quicksave.zfr", "setup.zfr",    "printer.zfr"};
        static const std::vector<int> sizes = {5699, 5700, 7499, 7500, 8100, 9000, 30000, 30001};
        for (const char* const name : {"ntcheck.zfr", "language.dat"}) {
            if (below(4) > 0) folder_.put(name, fromHex("00 00 80 3F"));  // no first run, English
        }
        system_.locale = anyOf(locales);
        system_.name = anyOf(systems);
        system_.style = below(4) == 0 ? "Standard" : "";
        const std::string last = "Temp/temp" + std::to_string(below(12)) + ".tmp";
        if (below(2) == 0 && folder_.has(last)) folder_.put("quicksave.zfr", folder_.bytes(last));
        for (unsigned left = below(4); left > 0; --left) {
            const std::string& name = anyOf(settings);
            folder_.put(name, rubbish());
        }
        if (below(2) == 0) {
            const int width = anyOf(sizes), height = anyOf(sizes);
            writeStoredSizes(disk_, {.active = 1, .width = width, .height = height});
        }
        if (below(2) == 0)
            writeStartOptions(
                disk_,
                {.position = {}, .windowMode = static_cast<int>(below(3)), .minimised = below(3) == 0});
        headless_.queueAnswer(below(2) == 0 ? BoxAnswer::german : BoxAnswer::english);
        program_->keys.run([this] { program_->start(); });
        if (below(3) == 0) type(u"{RIGHT}");
        for (int i = 0; i < 10; ++i) step();
        if (below(2) == 0) program_->keys.run(program_->pultform.find(u"cmdexit")->onClick);
    }

    // Of what leads further than any bytes: singles, type words and lengths.
    std::string rubbish() {
        static const std::vector<std::string> pieces = {
            "00 00 80 3F",    "00 00 20 40", "00 00 A0 40", "00 00 80 BF", "00 00 C0 7F",
            "CA F2 49 71",    "02 00 01 00", "02 00",       "04 00",       "05 00",
            "08 00 01 00 31", "08 00 FF FF", "0E 00",       "00 00",       "FF"};
        std::string text;
        for (unsigned left = below(8); left > 0; --left) text += fromHex(anyOf(pieces));
        return text;
    }

    Text scrapsOfText() {
        Text text;
        for (unsigned left = 1 + below(7); left > 0; --left) text += anyOf(scraps);
        return filled(text);
    }

    // What is found in a text that could be pasted.
    void readText(const Text& text) {
        const auto [figures, leftOut] = figuresOf(tell(text), below(2) == 0 ? commaStyle : pointStyle);
        for (const PastedFigure& figure : figures) {
            digest(figure.negative ? "-" : " ");
            digest(toUtf8(figure.operation + figure.digits));
        }
        digest(leftOut ? "!" : "");
    }

    Text filled(Text text) {
        for (char16_t& unit : text) {
            if (unit == u'#') unit = static_cast<char16_t>(u'0' + below(10));
            if (unit == u'~') unit = TextView(u"--//–*")[below(6)];
        }
        return text;
    }

    unsigned below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

    template <class List>
    const typename List::value_type& anyOf(const List& list) {
        return list[below(list.size())];
    }

    void digest(std::string_view text) {
        for (const char c : text)
            digest_ = (digest_ ^ static_cast<unsigned char>(c)) * 0x100000001B3;  // FNV-1a
    }

    void digestState() {
        for (const std::string_view name : dumpNames()) digest(*valueOf(name, *program_, headless_));
        for (const char* const name :
             {"percentBase", "percentRate", "differenceValue1", "operandLength", "clipboardText", "savefiles",
              "Files.row", "txtvorschau", "superdruck.caret", "messageTicks", "Check33.ticked",
              "insertmode.ticked", "raster0.visible"}) {
            digest(*valueOf(name, *program_, headless_));
        }
        const CalculatorState& s = program_->pultform.state;
        digest(log_.str() + lineOf(s.superdruck) + lineOf(s.eingabe) + lineOf(s.Texterror));
        log_.str("");
    }

    void digestWindow(const Window& window) {
        const Place& place = window.place;
        for (const int part : {place.left, place.top, place.width, place.height, int(window.visible),
                               int(window.alwaysOnTop), int(window.framed)}) {
            digest(std::to_string(part));
        }
        for (const Control* const control : window.controls()) {
            digest(lineOf(*control) + toUtf8(control->caption + control->toolTip + control->accessibleName));
            if (const auto* field = dynamic_cast<const TextField*>(control)) digest(toUtf8(field->text()));
            if (const auto* tick = dynamic_cast<const CheckBox*>(control)) digest(tick->ticked() ? "1" : "0");
        }
    }

    void digestFolder() {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_.path())) {
            if (entry.is_regular_file()) names.push_back(entry.path().lexically_relative(folder_.path()));
        }
        std::sort(names.begin(), names.end());
        for (const std::string& name : names) digest(name + '\n' + folder_.bytes(name));
    }

    void step() {
        const HeadlessMachine::InUse in = headless_.inUse();
        const unsigned kind = below(24);
        if (kind < 15) return type(Text(anyOf(sentences)));
        if (kind == 15) {
            headless_.queueAnswer(std::array{BoxAnswer::yes, BoxAnswer::no, BoxAnswer::cancel}[below(3)]);
            return type(Text(anyOf(commands)));
        }
        if (kind == 16) return headless_.wait(below(1500));
        if (kind == 17 && in.window->onPaste) return in.window->onPaste(tell(anyOf(pasted)));
        if (kind == 18) return edit(*in.window);
        if (kind == 19 && !headless_.modalOpen()) return in.keys->run(headless_.onHotKey);
        click(*in.window, *in.keys);
    }

    TextView tell(TextView what) {
        story += toUtf8(what) + ' ';
        return what;
    }

    void type(const Text& keys) {
        for (const Key key : keysOfNotation(tell(filled(keys)))) {
            KeyRoad& road = *headless_.inUse().keys;
            road.keyDown(key);
            digestState();
            road.keyUp(key);
        }
    }

    void edit(Window& window) {
        auto* const field = dynamic_cast<TextField*>(window.focus());
        if (field == nullptr || !window.onCopy) return;
        story += "EDIT ";
        const unsigned start = below(field->text().size() + 1), length = below(6), kind = below(6);
        if (length > 2) field->select(start, length);
        if (kind == 0) return window.onCopy();
        if (kind == 1) return window.onCut();
        if (kind == 2) return window.onUndo();
        if (!field->menu) return;
        const MenuEntry entry = field->menu()[kind - 3];
        digest(toUtf8(entry.caption));
        if (entry.enabled) entry.onChoose();
    }

    void click(Window& window, KeyRoad& keys) {
        std::vector<Control*> reachable;
        for (Control* const control : window.controls()) {
            if (isReachable(window, *control) && control->name != u"cmdexit") reachable.push_back(control);
        }
        if (reachable.empty()) return;
        Control& control = *anyOf(reachable);
        tell(u"[" + control.name + u"]");
        if (below(4) == 0) headless_.queueAnswer(BoxAnswer::yes);
        mousePress(window, keys, control);
        if (below(8) == 0) headless_.wait(5500);
        mouseRelease(keys, control);
        if (below(4) == 0) mouseDoubleClick(keys, control);
        const auto row = static_cast<int>(below(4));
        if (auto* list = dynamic_cast<ListBox*>(&control); list != nullptr && row <= int(list->rows().size()))
            keys.run([=] { list->choose(row); });
        if (auto* combo = dynamic_cast<ComboBox*>(&control)) keys.run([=] { combo->choose(row); });
        mouseMove(keys, control);
    }

    const unsigned seed_;
    std::mt19937 random_;
    QuickDisk quickDisk_{folder_, headless_};
    Machine quickMachine_ = headless_.with(quickDisk_, system_);
    std::unique_ptr<Program> program_;
    std::uint64_t digest_ = 0xCBF29CE484222325;
};

TEST(Walks, goThroughTheSameStates) {
    ::setenv("TZ", "UTC", 1);  // a preview shows when its file was written
    ::tzset();
    std::ifstream file(ZIFFERON_TESTS_DIR "/shell/walks.out");
    std::ostringstream found;
    bool same = true;
    for (unsigned seed = 0; seed < walks; ++seed) {
        Walk walk(seed);
        std::ostringstream line;
        line << std::hex << walk.go();
        found << line.str() << '\n';
        std::string expected;
        std::getline(file, expected);
        if (same && line.str() != expected) {
            same = false;
            ADD_FAILURE() << "walk " << seed << ": " << walk.story;
        }
    }
    if (!same) std::ofstream("walks.out") << found.str();
}

}  // namespace
}  // namespace zifferon
