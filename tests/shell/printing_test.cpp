// A failure at every call of the print device.

#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

using PrintingTest = HeadlessTest;

TEST_F(PrintingTest, eachFailingCallIsToldOnceAndKeepsThePage) {
    headless_.printer.addPrinter(u"Zett A");
    for (int n = 1;; ++n) {
        headless_.beginAnew();
        log_.str("");
        Program program(machine_);
        program.beginFresh();
        HeadlessTest::type(program, u"5+");
        PageControls& page = program.pultform.page;
        program.keys.run(page.edit.onClick);
        Kopf& kopf = program.kopf;
        for (CheckBox* tick : {&kopf.checkstamm, &kopf.Check5, &kopf.Check6}) tick->setTicked(true);
        kopf.nachtext.setText(u"Bank");
        headless_.printer.failCall(n);
        program.keys.run(page.editordruck.onClick);
        const bool failed = logHas(" -> fails");
        EXPECT_EQ(logHas("Druckerfehler!   "), failed) << n;
        EXPECT_EQ(page.blende.visible, failed) << n;
        EXPECT_EQ(program.pultform.state.zwischen.text(), u"5,00");
        if (failed) continue;
        EXPECT_GT(n, 41);
        break;
    }
    headless_.printer.failCall(0);
}

// Sizes are texts of lists, and of a file that may hold anything.
TEST_F(PrintingTest, aSizeThatIsNoneFails) {
    headless_.printer.addPrinter(u"Zett A");
    for (const char16_t* size : {u"", u"0", u"-5", u"1000", u"1e9", u"abc", u"12 "}) {
        EXPECT_THROW(headless_.printer.setFontSize(size), PrintFailure) << toUtf8(size);
    }
    log_.str("");
    headless_.printer.setFontSize(u"999");
    headless_.printer.setFontSize(u"7");
    EXPECT_EQ(log_.str(), "print size 999\nprint size 7\n");
}

}  // namespace
}  // namespace zifferon
