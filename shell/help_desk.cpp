#include "shell/help_desk.h"

#include "storage/settings_files.h"

namespace zifferon {

HelpDesk::HelpDesk(Pultform& window, Kopf& kopf, HelpWindow& help, Machine& machine, const Messages& messages,
                   const Settings& settings)
    : window_(window),
      kopf_(kopf),
      help_(help),
      machine_(machine),
      s(window.state),
      messages_(messages),
      settings_(settings) {}

void HelpDesk::wire() {
    window_.Hilfe.onClick = [this] { open(); };
    help_.onActivate = [this] { activated(); };
    help_.Timer2.onTick = [this] { keepMainWindowBehind(); };
    help_.Command2.onClick = [this] { changeLanguage(Language::english); };
    help_.Command3.onClick = [this] { changeLanguage(Language::german); };
    help_.Command5.onClick = [this] { s.calls->openHelp(); };
}

void HelpDesk::open() {
    const Place before = window_.place;
    window_.page.savedAlwaysOnTop = s.Checkob.ticked();
    s.Checkob.setTicked(false);
    help_.setCaptions(s.language);
    help_.place.left = before.left;
    help_.place.top = before.top;
    machine_.windows.showModal(help_);
    help_.Timer2.stop();
    s.Checkob.setTicked(window_.page.savedAlwaysOnTop);
    window_.place = {help_.place.left, help_.place.top, before.width, before.height};
    machine_.windows.show(window_);
    s.calls->focusEntry();
}

void HelpDesk::activated() {
    help_.Timer2.start(1);
    help_.showReference(s.language);
    help_.setTitle(s.language);
    help_.place.left = window_.place.left;
    help_.place.top = window_.place.top;
    help_.setFocus(help_.Command1);
}

// As small as the system lets it, it lies behind the help window and follows it.
void HelpDesk::keepMainWindowBehind() {
    window_.place = {help_.place.left + 1000, help_.place.top + 1000, 1, 1};
}

void HelpDesk::changeLanguage(Language language) {
    help_.showReference(language);
    if (s.language == language) {
        help_.setFocus(help_.Command1);
        return;
    }
    help_.setFocus(help_.Picture1);
    const bool stored =
        settings_.storing(settingsFile::language, [&] { writeLanguage(machine_.files, language); });
    help_.setCaptions(language);
    help_.setTitle(language);
    s.language = language;
    window_.speak(language, true);
    kopf_.speak(language, true);
    if (!stored) return;  // that has been told; the language holds for this run
    messages_.tell({u"Die Spracheinstellung wurde auf Deutsch geändert.   ",
                    u"The language has been set to English.   "});
}

}  // namespace zifferon
