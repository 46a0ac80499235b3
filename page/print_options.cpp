#include "page/print_options.h"

#include <algorithm>
#include <utility>

#include "print/letterhead.h"
#include "print/printers.h"
#include "print/type_settings.h"
#include "storage/settings_files.h"
#include "storage/write_protection.h"

namespace zifferon {

PrintOptions::PrintOptions(const Parts& parts) : p(parts), c(p.controls) {
    for (const TypeSetting& setting : typeSettings) c.druckcomb.rows.emplace_back(setting.text);
}

void PrintOptions::wire() {
    c.optbtn.onClick = [this] { c.Frame8.visible = true; };
    c.back.onClick = [this] {
        close();
        p.window.setFocus(c.savefiles);
        c.stripes.show();
    };
    wireFonts();
    c.standardprint.onClick = [this] { storePrinter(); };
    c.Timer3.onTick = [this] { readPrinter(); };
    c.cmdkopf.onClick = [this] { openLetterhead(); };
    p.kopf.kopfok.onClick = [this] { acceptLetterhead(); };
}

// A choice is one of the rows, whatever is typed.
void PrintOptions::wireFonts() {
    c.focuspic.takesFocus = true;
    c.druckcomb.onClick = [this] { chosen(); };
    c.druckcomb.onChange = [this] { typed(); };
}

// A printer that has been chosen meanwhile, or was stored, stays.
void PrintOptions::fillLists() {
    constexpr int untilTheStoredPrinter = 1000;  // milliseconds
    const Text shown = c.allprint.text();
    const bool chosen = shown != std::exchange(offered_, GetPrinters(c.allprint, p.machine.printer));
    if (chosen) {
        c.allprint.setText(shown);
    } else {
        c.Timer3.start(untilTheStoredPrinter);
    }
    p.letterhead.fillFonts(p.machine.printer.fontNames());
}

// As it is delivered, no setting is stored yet.
void PrintOptions::restore() {
    constexpr float standard = 1;
    printFontCode_ = readSetting(p.settings.files(), settingsFile::printFont);
    if (printFontCode_ == 0) printFontCode_ = standard;
    showFont();
}

void PrintOptions::close() {
    c.stripes.timerraster.stop();
    c.Frame8.visible = false;
}

void PrintOptions::chosen() {
    p.preview.hide();
    printFontCode_ = typeSettings[static_cast<std::size_t>(c.druckcomb.row() - 1)].code;
    p.settings.store(settingsFile::printFont, printFontCode_);
}

void PrintOptions::typed() {
    if (c.druckcomb.row() != 0) return;
    p.preview.hide();
    showFont();
    p.window.setFocus(c.focuspic);
}

void PrintOptions::showFont() {
    const auto found =
        std::find_if(typeSettings.begin(), typeSettings.end(),
                     [this](const TypeSetting& setting) { return setting.code == printFontCode_; });
    if (found != typeSettings.end()) c.druckcomb.setText(found->text);
}

void PrintOptions::storePrinter() {
    const bool stored = p.settings.storing(
        "printer.zfr", [this] { writePrinterName(p.settings.files(), c.allprint.text()); });
    if (stored) {
        p.messages.tell({u"Der Drucker wurde als Standarddrucker definiert.   ",
                         u"The printer has been set as standard printer.   "});
    }
    p.window.setFocus(c.savefiles);
}

// Without a stored name, or a file that can be read, the system's default printer stays.
void PrintOptions::readPrinter() {
    c.Timer3.stop();
    try {
        const auto stored = readPrinterName(p.settings.files());
        if (!stored) return;
        standardPrinterName_ = *stored;
        c.allprint.setText(*stored);
    } catch (const FileFailure&) {
        // As without one.
    }
}

void PrintOptions::openLetterhead() {
    p.preview.hide();
    c.savedAlwaysOnTop = p.state.Checkob.ticked();
    p.state.Checkob.setTicked(false);
    p.machine.windows.showModal(p.kopf);
}

// What cannot be stored leaves the window open.
void PrintOptions::acceptLetterhead() {
    p.kopf.logo.setTicked(false);
    c.stripes.timerraster.start(1);
    p.letterhead.remind();
    if (!p.settings.storing("setup.zfr", [this] { writeLetterhead(p.settings.files(), p.kopf); })) return;
    p.kopf.visible = false;
    p.window.setFocus(c.savefiles);
}

}  // namespace zifferon
