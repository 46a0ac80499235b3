#include "adventure/puzzle.h"

#include <algorithm>
#include <random>
#include <string>
#include <utility>

#include "platform/tab_order.h"

namespace zifferon {

namespace {

constexpr Colour white{255, 255, 255};
constexpr Colour key{214, 214, 214};
constexpr Colour grey{128, 128, 128};
constexpr TextView title = u"The Secret of Zifferon PRO";

// Twips: the board, its fields, and the row of the pieces.
constexpr Place board{1140, 240, 1890, 1890};
constexpr int fieldSize = 950, fieldStep = 930, pieceSize = 960, rowTop = 2920;
constexpr std::array<int, 4> slots{50, 1050, 2050, 3060};
constexpr int ruleTop = 2700, ruleTopAtTheEnd = 2800;

// Who needs as long as that has solved it, but learns no more.
constexpr int tooLong = 7;  // seconds

constexpr Words tipOfTheFirstHead{
    u"Der 'erste Kopf' ist bereits vor langer Zeit untergegangen, so wie das Haus Usher.",
    u"The 'first head' has fallen a long time ago, as the House of Usher did."};
constexpr Words tipOfTheSecondHead{
    u"Der 'zweite Kopf' ist ebenfalls sehr alt und adelig. Er kommt aus Dänemark. Tipp: Teilen Sie die "
    u"Lösung "
    u"dem 'Kopf' von Zifferon PRO mit.",
    u"The 'second head' is also very old and aristocratic. He comes from Denmark. Hint: Give the answer to "
    u"the 'head' of Zifferon PRO."};
constexpr Words tipOfTheAuthor{
    u"(sinister supra postremo) + (M1 = 271828) Tipp: Nutzen Sie das Puzzle, um das Rätsel zu lösen.",
    u"(sinister supra postremo) + (M1 = 271828) Hint: Use the puzzle to solve the problem."};

std::chrono::sys_seconds wholeSeconds(std::chrono::system_clock::time_point moment) {
    return std::chrono::floor<std::chrono::seconds>(moment);
}

}  // namespace

Puzzle::Puzzle(const TextField& code, const Language& language, const Messages& messages, Machine& machine)
    : code_(code), language_(language), messages_(messages.titled(title)), machine_(machine) {
    name = u"puzzle";
    place = {0, 0, 4200, 5280};
    closeable = false;
    menu = &info;
    onActivate = [this] { activated(); };
    onDismiss = [] {};
    addBoard();
    addPictures();
    addTexts();
    for (Control* const control : {&Command1, &Picture5, &Picture6, &Picture7, &Picture8}) {
        tabOrder.push_back(control);
    }
    reset();
}

void Puzzle::addBoard() {
    constexpr TextView fields[] = {u"Picture01", u"Picture02", u"Picture03", u"Picture04"};
    constexpr TextView pieces[] = {u"Picture1", u"Picture2", u"Picture3", u"Picture4"};
    for (std::size_t i = 0; i < quarters_.size(); ++i) {
        Control& field = quarters_[i].field;
        add(field, fields[i]);
        field.place = {board.left + int(i % 2) * fieldStep, board.top + int(i / 2) * fieldStep, fieldSize,
                       fieldSize};
        field.backColour = white;
        field.onDrop = [this, i](Control& dragged) { dropped(quarters_[i], dragged); };
    }
    for (std::size_t i = 0; i < quarters_.size(); ++i) {
        add(quarters_[i].piece, pieces[i]);
        quarters_[i].piece.draggable = true;
        quarters_[i].piece.onKeyPress = [this, i](char16_t& digit) { keyPressed(quarters_[i].piece, digit); };
        tabOrder.push_back(&quarters_[i].piece);
    }
}

void Puzzle::addPictures() {
    const auto addPicture = [this](Control& picture, TextView controlName, TextView drawing) {
        add(picture, controlName);
        picture.place = board;
        picture.picture = drawing;
    };
    addPicture(Picture5, u"Picture5", u"puzzle");
    addPicture(Picture6, u"Picture6", u"first_head");
    addPicture(Picture7, u"Picture7", u"second_head");
    addPicture(Picture8, u"Picture8", u"author");
    Picture5.onDoubleClick = [this] { askThePicture(); };
    Picture6.onClick = [this] { Picture7.visible = true; };
    Picture5.doWhenConfirmed([this] {
        askThePicture();
        if (!Picture5.visible) setFocus(Picture6);
    });
    Picture6.doWhenConfirmed([this] { Picture6.click(); });
    Picture8.onMouseMove = [this] { Picture8.toolTip = tipOfTheAuthor.in(language_); };
}

void Puzzle::addTexts() {
    add(Line5, u"Line5");
    Line5.backColour = grey;
    add(Text1, u"Text1");
    Text1.place = {140, 2910, 3830, 780};
    Text1.multiLine = Text1.bare = Text1.locked = true;
    Text1.font = {u"Arial", 8.25, false};
    Text1.alignment = Alignment::centre;
    Text1.setText(u"Zifferon PRO 5.0\r\n____________________\r\n100 % made of recycled electrons");
    Text1.accessibleName = programTitle;
    Text1.onClick = [this] { setFocus(Command1); };
    add(Command1, u"Command1");
    Command1.place = {1140, 3780, 1890, 390};
    Command1.backColour = key;
    Command1.takesFocus = true;
    Command1.onClick = [this] { visible = false; };
    add(timelab, u"timelab");
    add(info, u"info");
    info.place = {0, -menuBarHeight, 420, menuBarHeight};
    info.caption = u"&?";
    info.onClick = [this] { tellTheRules(); };
}

void Puzzle::reset() {
    for (std::size_t i = 0; i < quarters_.size(); ++i) {
        const auto& [field, piece, drawing] = quarters_[i];
        field.picture.clear();
        piece.picture = drawing;
        piece.place = {slots[i], rowTop, pieceSize, pieceSize};
        piece.visible = true;
    }
    for (Control* const hidden :
         std::initializer_list<Control*>{&Picture5, &Picture6, &Picture7, &Picture8, &Text1, &Command1}) {
        hidden->visible = false;
    }
    Picture8.toolTip.clear();
    Line5.place = {400, ruleTop, 3240, 15};
    timelab.place = {140, 4260, 3160, 255};
    timelab.caption.clear();
    puzzleSeconds_ = 0;
    nextStepBirds_ = nextStepAuthor_ = false;
}

void Puzzle::activated() {
    const bool english = language_ == Language::english;
    caption = english ? programTitle : title;
    Command1.caption = Words{u"Fenster &schließen", u"&Close window"}.in(language_);
    Picture6.toolTip = Picture6.accessibleName = tipOfTheFirstHead.in(language_);
    Picture7.toolTip = Picture7.accessibleName = tipOfTheSecondHead.in(language_);
    Picture8.accessibleName = tipOfTheAuthor.in(language_);
    Picture5.accessibleName = Words{u"Das gelöste Puzzle", u"The solved puzzle"}.in(language_);
    char16_t number = u'1';
    for (const Quarter& quarter : quarters_) {
        quarter.piece.accessibleName = Text(Words{u"Teil ", u"Piece "}.in(language_)) + number;
        quarter.field.accessibleName = Text(Words{u"Feld ", u"Field "}.in(language_)) + number;
        ++number;
    }
    timelab.caption.clear();
    deal();
    setFocus(quarters_.front().piece);
    puzzleStartTime_ = wholeSeconds(machine_.system.now());
    nextStepBirds_ = nextStepAuthor_ = false;
}

// Draws each slot until it is a free one: every order is as likely as any other.
void Puzzle::deal() {
    std::mt19937 random(machine_.system.randomSeed());
    std::array<bool, slots.size()> taken{};
    for (const Quarter& quarter : quarters_) {
        std::size_t slot = 0;
        do slot = random() % slots.size();
        while (taken[slot]);
        taken[slot] = true;
        quarter.piece.place.left = slots[slot];
    }
}

void Puzzle::dropped(const Quarter& quarter, Control& dragged) {
    if (&dragged != &quarter.piece) return machine_.sound.beep();
    quarter.field.picture = std::exchange(quarter.piece.picture, {});
    quarter.piece.visible = false;
    machine_.sound.play("switch2.wav");
    const bool all = std::none_of(quarters_.begin(), quarters_.end(),
                                  [](const Quarter& other) { return other.piece.visible; });
    if (all) solved(quarter);
}

// Without a mouse a digit lays the piece that has the focus on the field of that number.
void Puzzle::keyPressed(Control& piece, char16_t& digit) {
    const int field = std::exchange(digit, u'\0') - u'1';
    if (field < 0 || field >= int(quarters_.size())) return;
    dropped(quarters_[std::size_t(field)], piece);
    if (!piece.visible && focus() == &piece) focusNext(*this);
}

// A minute more makes no difference: only the seconds of the time between are looked at.
void Puzzle::solved(const Quarter& last) {
    Line5.place.top = ruleTopAtTheEnd;
    Text1.visible = Picture5.visible = Command1.visible = true;
    const auto between = (wholeSeconds(machine_.system.now()) - puzzleStartTime_).count() % 60;
    puzzleSeconds_ = static_cast<int>((between + 60) % 60);
    const bool upperLeft = &last == &quarters_.front();
    if (puzzleSeconds_ >= tooLong || (upperLeft && code_.text() != u"271828")) {
        reportTime();
    } else if (upperLeft) {
        tellOfTheBirds();
    } else {
        tellOfTheAuthor();
    }
    setFocus(Command1);
}

void Puzzle::tellOfTheBirds() {
    messages_.tell(
        {u"Sie sind der Lösung des Rätsels schon wieder einen Schritt näher   \r\n"
         u"gerückt. Fragen Sie nun die Vögel, wie es weitergeht. Sie verstecken   \r\n"
         u"sich hier in diesem Bildschirm.  ",
         u"This is the next step to unravel the mystery of Zifferon PRO!  \r\n"
         u"Now ask the birds what to do. They are hiding somewhere   \r\n"
         u"in this screen."});
    nextStepBirds_ = true;
}

void Puzzle::tellOfTheAuthor() {
    const Text seconds = fromUtf8(std::to_string(puzzleSeconds_));
    const Text german = u"Gut gemacht! Sie haben das Puzzle in nur " + seconds +
                        u" Sekunden gelöst und  \r\n"
                        u"sind damit auf dem richtigen Weg. Wie geht es jetzt weiter?  \r\n"
                        u"Fragen Sie doch den Autor von Zifferon PRO. Allerdings NICHT   \r\n"
                        u"via E-Mail (das wäre zu einfach). Er versteckt sich hier irgendwo  \r\n"
                        u"in diesem Bildschirm und könnte Ihnen einen wertvollen Tipp  \r\n"
                        u"geben.";
    const Text english = u"Well done! It only took you " + seconds +
                         u" seconds to solve the puzzle!   \r\n"
                         u"Now ask the author of Zifferon PRO what´s next. But not  \r\n"
                         u"by sending him an email (that would be to easy). He is  \r\n"
                         u"hiding somewhere in this screen.";
    messages_.tell({german, english});
    nextStepAuthor_ = true;
}

void Puzzle::reportTime() {
    const Text seconds = fromUtf8(std::to_string(puzzleSeconds_));
    timelab.place.left = 800;
    timelab.caption = language_ == Language::english ? u" (Puzzle solved after " + seconds + u" seconds)"
                                                     : u"(Puzzle in " + seconds + u" Sekunden gelöst)";
}

void Puzzle::askThePicture() {
    if (nextStepAuthor_ && !nextStepBirds_) Picture8.visible = true;
    if (!nextStepBirds_) return;
    Picture6.visible = true;
    Picture5.visible = false;
    nextStepBirds_ = false;
}

void Puzzle::tellTheRules() const {
    messages_.tell(
        {u"Herzlich willkommen zu unserem kleinen Adventure! Das erste Rätsel   \r\n"
         u"haben Sie ja bereits gelöst und dieses versteckte Puzzle gefunden.\r\n"
         u"Lösen Sie es, um weitere Hinweise zu erhalten und das Geheimnis von   \r\n"
         u"Zifferon PRO zu lüften.  \r\n"
         u"\r\n"
         u"Tipp: Zögern Sie nicht. 5 Sekunden könnten zu lange sein. Und \r\n"
         u"vermeiden Sie es, den linken oberen Stein zuletzt zu setzen.",
         u"Welcome to our little adventure! You have mastered the first step   \r\n"
         u"by finding this puzzle. Solve it to get more hints and unravel the  \r\n"
         u"mystery of Zifferon PRO!   \r\n"
         u"\r\n"
         u"Hint: Don´t hesitate! 5 seconds could be to long. And don´t put\r\n"
         u"the upper left hand puzzle piece back at last."});
}

}  // namespace zifferon
