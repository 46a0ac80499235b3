#include "page/printing.h"

#include "print/print_job.h"
#include "print/printers.h"

namespace zifferon {

void Printing::wire() {
    c.editordruck.onClick = [this] { print(); };
}

void Printing::printTape() {
    c.druckblende.visible = true;
    c.edit.click();
    c.editordruck.click();
    c.druckblende.visible = false;
    if (!c.blende.visible) s.calls->focusEntry();
}

// A failure leaves the page open, and the printer of the job selected.
void Printing::print() {
    c.stripes.show();
    p.device.language = s.language;
    const auto job = [this] {
        const Text savedPrinterName = p.device.deviceName();
        selectPrinter(c.allprint.text(), p.device);
        p.preview.hide();
        const bool proceeds = !s.superdruck.empty() || wantsEmptyTape();
        if (proceeds) printDocument(p.device, p.kopf, s.superdruck.text(), c.druckcomb.text());
        selectPrinter(savedPrinterName, p.device);
        if (proceeds) p.page.leave();
    };
    runPrintJob(p.device, p.messages, job, [this] { c.druckblende.visible = false; });
}

bool Printing::wantsEmptyTape() const {
    return p.messages.confirm(
        {u"Es sind keine Berechnungen vorhanden, die ausgedruckt werden   \r\n"
         u"können. Möchten Sie den Auftrag trotzdem an den Drucker senden,   \r\n"
         u"um z.B. einen Briefkopf auszudrucken?",
         u"No data to print. Do you want to proceed (e.g. to print  \r\n"
         u"only a letterhead)?  "});
}

}  // namespace zifferon
