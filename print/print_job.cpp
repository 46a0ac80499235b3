#include "print/print_job.h"

#include <algorithm>

#include "print/type_settings.h"

namespace zifferon {

namespace {

constexpr TextView tapeFont = u"courier new";
constexpr TextView blank = u"\r\n";
constexpr int margin = 500;  // twips

// Two blanks and 106 underscores.
Text rule() { return u"  " + Text(106, u'_'); }

class Document {
  public:
    Document(PrintDevice& device, const Kopf& kopf) : device_(device), k(kopf) {}

    void print(TextView tape, TextView typeSetting) {
        const bool letterhead = k.checkstamm.ticked();
        if (k.logo.ticked() && letterhead) device_.paintPicture({.name = u"logpic", .drawing = u"logpic"});
        device_.setFontName(tapeFont);
        device_.setFontBold(true);
        device_.setFontItalic(false);
        device_.setFontSize(u"12");
        device_.setLeft(margin);
        if (letterhead && (hasHeadLine() || k.Check5.ticked())) printLetterhead();
        device_.setFontSize(u"1");
        device_.print(blank);
        device_.setFontBold(true);
        setType(typeSetting);
        device_.print(Text(blank) + Text(tape));
        if (letterhead) printFooter();
        device_.endDoc();
    }

  private:
    bool hasHeadLine() const {
        return std::any_of(k.lines.begin(), k.lines.end(),
                           [](const Kopf::Line& line) { return !line.text.empty(); });
    }

    void printLetterhead() {
        device_.setFontName(u"Arial");
        device_.setFontSize(u"6");
        device_.print(blank);
        device_.setFontName(k.Combo5.text());
        device_.setFontSize(u"1");
        device_.print(blank);
        printFirstLine();
        printSecondLine();
        for (const Kopf::Line* line : {&k.lines[2], &k.lines[3], &k.lines[4]}) {
            device_.setFontSize(line->size.text());
            printLine(*line);
        }
        if (k.Check5.ticked()) printRule();
    }

    // Without a text, and without its switch, a line takes no room at all.
    void printLine(const Kopf::Line& line) {
        if (line.blank.ticked()) return device_.print(blank);
        if (!line.text.empty()) device_.print(line.text.text());
    }

    void printFirstLine() {
        const Kopf::Line& line = k.lines[0];
        device_.setFontSize(line.size.text());
        if (!line.blank.ticked()) setStyle(k.bold1, k.kur1);
        printLine(line);
    }

    // The looks of this line are those of the next three as well.
    void printSecondLine() {
        device_.setFontSize(k.lines[1].size.text());
        device_.setFontName(k.combfoart2.text());
        setStyle(k.bold2, k.kur2);
        printLine(k.lines[1]);
    }

    void printRule() {
        device_.setFontName(tapeFont);
        device_.setFontSize(u"8");
        device_.setFontBold(false);
        device_.setLeft(margin);
        device_.print(rule());
        device_.setFontBold(true);
    }

    void setType(TextView name) {
        const auto setting = std::find_if(typeSettings.begin(), typeSettings.end(),
                                          [&](const TypeSetting& row) { return row.text == name; });
        if (setting != typeSettings.end()) {
            device_.setFontName(tapeFont);
            device_.setFontBold(setting->bold);
            device_.setLeft(setting->left);
            device_.setFontSize(setting->points);
        }
        device_.setFontItalic(false);
    }

    void printFooter() {
        if (k.Check6.ticked()) {
            device_.setFontSize(u"8");
            device_.setFontBold(false);
            device_.setFontName(tapeFont);
            device_.setLeft(margin);
            device_.print(Text(blank) + rule());
            device_.setFontBold(true);
        }
        setStyle(k.bold3, k.kur3);
        if (k.nachtext.empty()) return;
        device_.setFontSize(k.Combo6.text());
        device_.setFontName(k.combfoart3.text());
        device_.print(k.nachtext.text());
    }

    void setStyle(const CheckBox& bold, const CheckBox& italic) {
        device_.setFontBold(bold.ticked());
        device_.setFontItalic(italic.ticked());
    }

    PrintDevice& device_;
    const Kopf& k;
};

}  // namespace

void printDocument(PrintDevice& device, const Kopf& kopf, TextView tape, TextView typeSetting) {
    Document(device, kopf).print(tape, typeSetting);
}

void runPrintJob(PrintDevice& device, const Messages& messages, const std::function<void()>& job,
                 const std::function<void()>& failed) {
    try {
        job();
    } catch (const PrintStopped&) {
        device.drop();
    } catch (const PrintFailure&) {
        device.drop();
        failed();
        messages.fail({u"Druckerfehler!   ", u"Printing error!   "});
    }
}

}  // namespace zifferon
