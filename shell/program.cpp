#include "shell/program.h"

namespace zifferon {

Program::Program(Machine& ofTheProgram)
    : keys(pultform, [this] { machine.sound.beep(); }),
      machine(ofTheProgram),
      messages(machine.boxes, pultform.state.language),
      settings(machine.files, messages),
      record(pultform.state),
      clipboard(pultform.state, machine.clipboard),
      cells(pultform.state, memory, pultform.memoLabels, pultform, messages),
      undo(pultform.state, memory, record, machine, messages),
      quickFile(record, pultform.quick, undo, machine.files, messages),
      modes(pultform, machine.system),
      colours(pultform, help, settings),
      sounds(pultform, machine.sound),
      options(pultform, clipboard),
      startUp(pultform.state, separator, kopf, quickFile, modes, machine, messages),
      secretform(pultform, pultform.state.language, messages, machine),
      hotSpot(pultform, secretform, messages),
      tray(pultform, secretform, machine),
      ending(pultform, undo, tray, machine, messages),
      firstActivation({pultform, kopf, keys, undo, modes, colours, options, startUp, tray, machine.files}),
      files(pultform.page.Files, machine.files),
      preview(pultform.state, pultform.page, files, pultform, machine, messages),
      editor(pultform.state, pultform.page, pultform, messages),
      stored(
          {pultform.state, record, pultform.page, files, preview, undo, pultform, machine.files, messages}),
      letterhead(kopf, pultform.state.language, messages),
      printOptions(
          {pultform.state, pultform.page, preview, kopf, letterhead, pultform, machine, settings, messages}),
      page({pultform.state, pultform.page, files, preview, printOptions, pultform, settings}),
      printing({pultform.state, pultform.page, preview, page, kopf, machine.printer, messages}),
      puzzle(pultform.state.memo[0], pultform.state.language, messages, machine),
      helpDesk({pultform, kopf, help, puzzle, machine, messages, settings}),
      actions({pultform, separator, undo, modes, colours, sounds, ending, printing, settings, messages}),
      commands{pultform.state, memory, pultform, messages, actions},
      desk(pultform, commands, undo, clipboard, sounds),
      editing(pultform, keys, machine),
      ruleCalls(pultform, keys, undo, cells, clipboard, machine) {
    pultform.state.calls = &ruleCalls;
    desk.wire();
    options.wire();
    sounds.wire();
    cells.wire();
    quickFile.wire();
    preview.wire();
    editor.wire();
    stored.wire();
    letterhead.wire();
    printOptions.wire();
    printing.wire();
    page.wire();
    helpDesk.wire();
    hotSpot.wire();
    editing.wire();
}

void Program::start() {
    startUp.run();
    machine.desktop.registerHotKey();
    wireDesktop();
    machine.windows.show(pultform);
    machine.printer.find([this] { printOptions.fillLists(); });
}

void Program::wireDesktop() {
    tray.wire();
    ending.wire();
    firstActivation.wire();
}

void Program::beginFresh() {
    CalculatorState& s = pultform.state;
    pultform.speak(s.language, false);
    kopf.speak(s.language, false);
    letterhead.clear();
    machine.printer.find([this] { printOptions.fillLists(); });
    sounds.skipStart();
    startUp.readFrame();
    modes.layOutFull();
    firstActivation.skip();
    wireDesktop();
    s.undoActive = true;
    pultform.visible = true;
    pultform.setFocus(s.eingabe);
    machine.files.createFolder("Temp");
    undo.emptyFolder();
    undo.begin();
}

std::vector<Window*> Program::windows() {
    std::vector<Window*> all = {&pultform, &kopf, &help, &puzzle, &secretform};
    for (Window* const window : startUp.windows()) all.push_back(window);
    if (undo.message() != nullptr) all.push_back(undo.message());
    if (ending.goodbye() != nullptr) all.push_back(ending.goodbye());
    return all;
}

}  // namespace zifferon
