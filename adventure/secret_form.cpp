#include "adventure/secret_form.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "platform/key.h"
#include "print/print_job.h"

namespace zifferon {

namespace {

// Twips, with frame and caption.
constexpr int width = 4470, height = 1550, heightWithMenu = 1700, heightAfterMenu = 1450;
constexpr int rewardWidth = 15330, rewardHeight = 7685;

constexpr TextView rewardDrawing = u"reward";

}  // namespace

SecretForm::SecretForm(Window& mainWindow, const Language& language, const Messages& messages,
                       Machine& machine)
    : mainWindow_(mainWindow), language_(language), messages_(messages), machine_(machine) {
    name = u"secretform";
    menu = &Help;
    onActivate = [this] { activated(); };
    onDismiss = [this] { unload(); };
    addControls();
    reset();
}

void SecretForm::addControls() {
    add(Image1, u"Image1");
    Image1.place = {360, 170, 720, 720};
    Image1.picture = u"riddle";
    Image1.onClick = [this] { offerHelp(); };
    add(check, u"check");
    check.place = {1920, 360, 1455, 285};
    check.visible = false;
    add(Text1, u"Text1");
    Text1.place = {1200, 360, 2895, 405};
    Text1.font = {u"Arial", 14.25, false};
    Text1.backColour = {255, 255, 255};
    Text1.takesFocus = true;
    Text1.accessibleName = u"Login";
    Text1.onKeyDown = [this](int& code) {
        if (code == keyCode::f1) Help.click();  // without a mouse, and without its haste
    };
    Text1.onKeyPress = [this](char16_t& character) { keyPressed(character); };
    add(Picture1, u"Picture1");
    Picture1.place = {0, 0, rewardWidth - frameWidth, rewardHeight - frameHeight};
    Picture1.picture = rewardDrawing;
    Picture1.onDoubleClick = [this] { askToPrint(); };
    Picture1.doWhenConfirmed([this] { askToPrint(); });
    for (const auto& [picture, controlName, drawing] :
         {std::tuple<Control&, TextView, TextView>{Picture2, u"Picture2", rewardDrawing},
          {Image2, u"Image2", u"riddle_solved"},
          {Image3, u"Image3", u"riddle"}}) {
        add(picture, controlName);
        picture.picture = drawing;
        picture.visible = false;
    }
    add(Help, u"Help");
    Help.place = {0, -menuBarHeight, 420, menuBarHeight};
    Help.caption = u"?";
    Help.onClick = [this] {
        messages_.tell(
            {u"Wir freuen uns, dass Sie unser kleines Rätsel entdeckt haben.  \r\n"
             u"Um es vollständig zu lösen, nennen Sie Ihren Computer einfach  \r\n"
             u"beim Namen. Lassen Sie sich überraschen, was danach geschieht. ",
             u"We are glad that you have found our little riddle. Just call   \r\n"
             u"your computer by it's name to complete it and be surprised   \r\n"
             u"what will happen next.  "});
    };
    add(Timer1, u"Timer1");
    Timer1.onTick = [this] { withdrawHelp(); };
}

void SecretForm::reset() {
    caption = u"Login";
    place = {0, 0, width, height};
    icon = Image3.picture;
    Picture1.visible = Help.visible = false;
    Text1.visible = true;
    Text1.setText(u"");
    check.setText(u"");
    Timer1.stop();
}

void SecretForm::open() { machine_.windows.show(*this); }

// A main window that has been called back beside it stays.
void SecretForm::activated() {
    if (mainWindow_.visible && !std::exchange(mainWasVisible_, true)) machine_.windows.hide(mainWindow_);
    Image1.accessibleName = Words{u"Rätsel", u"Riddle"}.in(language_);
    setFocus(Text1);
}

void SecretForm::unload() {
    if (!visible) return;
    machine_.windows.hide(*this);
    reset();
    if (std::exchange(mainWasVisible_, false)) machine_.windows.show(mainWindow_);
}

// It stands for a quarter of a second, and must be hit in that time.
void SecretForm::offerHelp() {
    constexpr int helpStands = 250;  // milliseconds
    if (Picture1.visible) return;
    Help.visible = true;
    place.height = heightWithMenu;
    Timer1.start(helpStands);
}

void SecretForm::withdrawHelp() {
    Timer1.stop();
    Help.visible = false;
    place.height = heightAfterMenu;
}

void SecretForm::keyPressed(char16_t& character) {
    check.setText(machine_.system.computerName());
    if (character != u'\r') return;
    character = 0;
    if (Text1.text() == check.text()) {
        reward();
    } else {
        Text1.setText(u"");
    }
}

// It grows out of its middle, so that a window in the middle of the screen stays there.
void SecretForm::reward() {
    Timer1.stop();
    icon = Image2.picture;
    Help.visible = false;
    place.left = std::max(0, place.left - (rewardWidth - place.width) / 2);
    place.top = std::max(0, place.top - (rewardHeight - place.height) / 2);
    place.width = rewardWidth;
    place.height = rewardHeight;
    Picture1.visible = true;
    Text1.visible = false;
    setFocus(Picture1);
    caption = Picture1.accessibleName =
        Words{u"Doppelklick, um das Bild zu drucken", u"DoubleClick to print picture"}.in(language_);
}

void SecretForm::askToPrint() {
    const BoxAnswer size = messages_.titled(caption).ask(
        {u"Ausdruck groß JA oder klein NEIN?   ", u"Print large YES or small NO?   "});
    if (size == BoxAnswer::cancel) return;
    machine_.printer.language = language_;
    runPrintJob(machine_.printer, messages_, [&] { size == BoxAnswer::yes ? printLarge() : printSmall(); });
}

void SecretForm::printLarge() {
    PrintDevice& device = machine_.printer;
    device.setOrientation(Orientation::across);
    device.setCurrentX(0);
    device.setCurrentY(0);
    device.paintPicture(
        {.name = u"secretform.Picture1", .drawing = rewardDrawing, .left = 600, .top = 2300, .share = 1});
    device.endDoc();
    device.setOrientation(Orientation::upright);
}

// On an upright page seven tenths of the width are about half of what it is across.
void SecretForm::printSmall() {
    PrintDevice& device = machine_.printer;
    device.setOrientation(Orientation::upright);
    device.paintPicture(
        {.name = u"secretform.Picture2", .drawing = rewardDrawing, .left = 600, .top = 600, .share = 0.7});
    device.endDoc();
}

}  // namespace zifferon
