#include "print/letterhead.h"

#include <cmath>
#include <initializer_list>
#include <span>

#include "core/failure.h"
#include "storage/tagged_value.h"

namespace zifferon {

namespace {

const std::string letterheadFile = "setup.zfr";

constexpr Separators storedSeparators = commaStyle;  // of numbers that stand as text, and the other way round

// Takes the next items of the record for the controls.
class ItemReader {
  public:
    explicit ItemReader(std::string_view bytes) : reader_(bytes) {}

    void texts(std::initializer_list<TextField*> fields) {
        for (TextField* field : fields) field->setText(reader_.tagged().value().toText(storedSeparators));
    }

    void taggedTicks(std::initializer_list<CheckBox*> ticks) {
        for (CheckBox* tick : ticks) apply(taggedNumber(), *tick);
    }

    void bareTicks(std::initializer_list<CheckBox*> ticks) {
        for (CheckBox* tick : ticks) {
            double number = 0;
            reader_.read(number);
            apply(number, *tick);
        }
    }

  private:
    double taggedNumber() {
        try {
            return reader_.tagged().value().toDouble(storedSeparators);
        } catch (const CalculationFailure&) {
            throw RecordFailure();
        }
    }

    static void apply(double number, CheckBox& tick) {
        const double state = std::nearbyint(number);
        if (!(state >= 0 && state <= 2)) throw RecordFailure();  // as no number is
        tick.setTicked(state != 0);
    }

    RecordReader reader_;
};

}  // namespace

void readLetterhead(Files& files, Kopf& kopf) {
    Kopf& k = kopf;
    const FileContent content = files.readOrCreate(letterheadFile);
    ItemReader items(content.view());
    items.texts({&k.zeile1, &k.zeile2, &k.zeile3, &k.zeile4, &k.zeile5});
    items.texts({&k.Combo1, &k.Combo2, &k.Combo3, &k.Combo4, &k.Combo5, &k.Combo6, &k.Combo7});
    items.taggedTicks({&k.Check1, &k.Check2, &k.Check3, &k.Check4, &k.Check5, &k.Check6, &k.Check7});
    items.texts({&k.nachtext});
    items.taggedTicks({&k.checkstamm});
    items.texts({&k.combfoart2, &k.combfoart3});
    items.bareTicks({&k.bold1, &k.bold2, &k.bold3, &k.kur1, &k.kur2, &k.kur3});
    items.taggedTicks({&k.logo});
}

void writeLetterhead(Files& files, const Kopf& k) {
    RecordWriter writer;
    const auto texts = [&](std::initializer_list<const TextField*> fields) {
        for (const TextField* field : fields) writer.tagged(field->text());
    };
    const auto taggedTicks = [&](std::initializer_list<const CheckBox*> ticks) {
        for (const CheckBox* tick : ticks) writer.tagged(CalcValue(tick->ticked() ? 1 : 0));
    };
    texts({&k.zeile1, &k.zeile2, &k.zeile3, &k.zeile4, &k.zeile5});
    texts({&k.Combo1, &k.Combo2, &k.Combo3, &k.Combo4, &k.Combo5, &k.Combo6, &k.Combo7});
    taggedTicks({&k.Check1, &k.Check2, &k.Check3, &k.Check4, &k.Check5, &k.Check6, &k.Check7});
    texts({&k.nachtext});
    taggedTicks({&k.checkstamm});
    texts({&k.combfoart2, &k.combfoart3});
    for (const CheckBox* tick : {&k.bold1, &k.bold2, &k.bold3, &k.kur1, &k.kur2, &k.kur3}) {
        writer.write(tick->ticked() ? 1.0 : 0.0);
    }
    taggedTicks({&k.logo});
    const std::string_view bytes = writer.bytes();
    files.exchange(letterheadFile, std::span(&bytes, 1));
}

void completeFonts(Kopf& kopf) {
    const auto complete = [](TextField& field, TextView standard) {
        if (field.empty()) field.setText(standard);
    };
    for (const Kopf::Line& line : kopf.lines) complete(line.size, u"12");
    for (const Kopf::Look& look : kopf.looks) complete(look.font, u"Arial");
    complete(kopf.Combo6, u"8");
}

}  // namespace zifferon
