#include "shell/edit_commands.h"

#include <algorithm>

#include "core/prompts.h"

namespace zifferon {

namespace {

// As other programs take lines: without the blanks that make the right edge of a column, and without empty
// lines around them.
Text asLines(TextView tape) {
    Text lines;
    lines.reserve(tape.size());
    while (!tape.empty()) {
        const std::size_t end = std::min(tape.find(u"\r\n"), tape.size());
        const TextView line = tape.substr(0, end);
        lines += line.substr(0, line.find_last_not_of(u' ') + 1);
        if (!lines.empty()) lines += u'\n';
        tape.remove_prefix(std::min(end + 2, tape.size()));
    }
    lines.erase(lines.find_last_not_of(u'\n') + 1);
    return lines;
}

TextView selected(const TextField& field) {
    return TextView(field.text()).substr(field.selectionStart(), field.selectionLength());
}

}  // namespace

void EditCommands::wire() {
    pultform_.onPaste = [this](TextView text) { pasting_.paste(text); };
    pultform_.onCopy = [this] { copy(copied()); };
    pultform_.onCut = [this] { cut(); };
    pultform_.onUndo = [this] { undo(); };
    for (TextField* field : fieldsWithMenu()) {
        field->menu = [this, field] { return menuOf(*field); };
    }
}

std::vector<TextField*> EditCommands::fieldsWithMenu() const {
    std::vector<TextField*> fields = {&s.eingabe, &s.anzeige, &s.superdruck, &pultform_.page.savefiles};
    for (TextField& cell : s.memo) fields.push_back(&cell);
    return fields;
}

// The selection; without one what the field holds, but for the two tapes; of an empty entry the running
// value.
Text EditCommands::copied() const {
    const TextField* const field = fieldInUse();
    if (field == nullptr) return {};
    if (field->selectionLength() > 0) {
        return field->multiLine ? asLines(selected(*field)) : Text(selected(*field));
    }
    if (field == &s.superdruck) return {};
    if (field != &s.anzeige && field != &s.eingabe) return field->text();
    if (!s.eingabe.empty()) return s.eingabe.text();
    return promptStands(s) || s.zwischen.is(u"Error") ? Text() : s.zwischen.text();
}

const TextField* EditCommands::fieldInUse() const {
    const auto fields = fieldsWithMenu();
    const auto found = std::find(fields.begin(), fields.end(), pultform_.focus());
    return found != fields.end() ? *found : nullptr;
}

void EditCommands::copy(TextView text) {
    if (text.empty()) return s.calls->beep();
    machine_.clipboard.setText(text);
}

void EditCommands::cut() {
    const TextField* const field = fieldInUse();
    if (field == nullptr || field->selectionLength() == 0) return s.calls->beep();
    copy(copied());
    keys_.stroke({keyCode::del});
}

// As the button does, wherever the focus is, but for the print copy, which takes back what was typed there.
void EditCommands::undo() {
    if (pultform_.focus() == &s.superdruck) return keys_.run([this] { s.superdruck.undo(); });
    if (s.zurück.visible && s.zurück.enabled) keys_.run(s.zurück.onClick);
}

std::vector<MenuEntry> EditCommands::menuOf(const TextField& field) {
    const bool tape = field.multiLine;
    const Text text = tape ? asLines(selected(field)) : copied();
    const Text& wholeTape = (&field == &s.superdruck ? s.superdruck : s.anzeige).text();
    return {{Text(s.inLanguage({u"Kopieren", u"Copy"})), !text.empty(), [this, text] { copy(text); }},
            {Text(s.inLanguage({u"Einfügen", u"Paste"})), !machine_.clipboard.text().empty(),
             [this] { pasting_.paste(machine_.clipboard.text()); }},
            {Text(s.inLanguage({u"Rechenstreifen kopieren", u"Copy the whole tape"})), !wholeTape.empty(),
             [this, &wholeTape] { copy(asLines(wholeTape)); }}};
}

}  // namespace zifferon
