#include "shell/help_desk.h"

#include "shell/language.h"
#include "shell/settings_files.h"

namespace zifferon {

HelpDesk::HelpDesk(Pultform& window, Kopf& kopf, HelpWindow& help, Machine& machine,
                   std::function<bool(const std::string& file, float value)> store)
    : window_(window),
      kopf_(kopf),
      help_(help),
      machine_(machine),
      s(window.state),
      store_(std::move(store)) {}

void HelpDesk::wire() {
    window_.Hilfe.onClick = [this] { open(); };
    help_.onActivate = [this] { activated(); };
    help_.Timer2.onTick = [this] { keepMainWindowBehind(); };
    help_.Command2.onClick = [this] { changeLanguage(true); };
    help_.Command3.onClick = [this] { changeLanguage(false); };
    help_.Command5.onClick = [this] { s.calls.openHelp(); };
}

void HelpDesk::open() {
    const Place before = window_.place;
    const bool savedAlwaysOnTop = s.Checkob.ticked();
    s.Checkob.setTicked(false);
    help_.setCaptions(s.languageEnglish);
    help_.place.left = before.left;
    help_.place.top = before.top;
    machine_.windows.showModal(help_);
    help_.Timer2.stop();
    s.Checkob.setTicked(savedAlwaysOnTop);
    window_.place = {help_.place.left, help_.place.top, before.width, before.height};
    machine_.windows.show(window_);
    s.calls.focusEntry();
}

void HelpDesk::activated() {
    help_.Timer2.start(1);
    help_.showReference(s.languageEnglish);
    help_.setTitle(s.languageEnglish);
    help_.place.left = window_.place.left;
    help_.place.top = window_.place.top;
    help_.setFocus(help_.Command1);
}

// As small as the system lets it, it lies behind the help window and follows it.
void HelpDesk::keepMainWindowBehind() {
    window_.place = {help_.place.left + 1000, help_.place.top + 1000, 1, 1};
}

void HelpDesk::changeLanguage(bool english) {
    help_.showReference(english);
    if (s.languageEnglish == english) {
        help_.setFocus(help_.Command1);
        return;
    }
    help_.setFocus(help_.Picture1);
    const bool stored = store_(settingsFile::language, english ? 1.0F : 0.0F);
    help_.setCaptions(english);
    help_.setTitle(english);
    s.languageEnglish = english;
    changeCaptions(window_, kopf_, english);
    if (!stored) return;  // that has been told; the language holds for this run
    machine_.boxes.show({.icon = BoxIcon::information,
                         .text = Text(s.inLanguage(u"Die Spracheinstellung wurde auf Deutsch geändert.   ",
                                                   u"The language has been set to English.   ")),
                         .english = english});
}

}  // namespace zifferon
