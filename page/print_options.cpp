#include "page/print_options.h"

#include <algorithm>
#include <array>

#include "storage/settings_files.h"

namespace zifferon {

namespace {

// The stored numbers begin with the rows that were there first.
struct TypeSetting {
    TextView text;
    float code;
};
constexpr std::array typeSettings = {
    TypeSetting{u"courier new (9, normal)", 7},  TypeSetting{u"courier new (9, bold)", 8},
    TypeSetting{u"courier new (10, normal)", 5}, TypeSetting{u"courier new (10, bold)", 6},
    TypeSetting{u"courier new (11, normal)", 1}, TypeSetting{u"courier new (11, bold)", 2},
    TypeSetting{u"courier new (12, normal)", 3}, TypeSetting{u"courier new (12, bold)", 4}};

}  // namespace

PrintOptions::PrintOptions(PageControls& controls, Preview& preview, Window& window, const Settings& settings)
    : c(controls), preview_(preview), window_(window), settings_(settings) {
    for (const TypeSetting& setting : typeSettings) c.druckcomb.rows.emplace_back(setting.text);
}

void PrintOptions::wire() {
    c.optbtn.onClick = [this] { c.Frame8.visible = true; };
    c.back.onClick = [this] {
        close();
        window_.setFocus(c.savefiles);
        c.stripes.show();
    };
    c.druckcomb.onClick = [this] { chosen(); };
}

// As it is delivered, no setting is stored yet.
void PrintOptions::restore() {
    constexpr float standard = 1;
    printFontCode_ = readSetting(settings_.files(), settingsFile::printFont);
    if (printFontCode_ == 0) printFontCode_ = standard;
    showFont();
}

void PrintOptions::close() {
    c.stripes.timerraster.stop();
    c.Frame8.visible = false;
}

void PrintOptions::chosen() {
    preview_.hide();
    printFontCode_ = typeSettings[static_cast<std::size_t>(c.druckcomb.row() - 1)].code;
    settings_.store(settingsFile::printFont, printFontCode_);
}

void PrintOptions::showFont() {
    const auto found =
        std::find_if(typeSettings.begin(), typeSettings.end(),
                     [this](const TypeSetting& setting) { return setting.code == printFontCode_; });
    if (found != typeSettings.end()) c.druckcomb.setText(found->text);
}

}  // namespace zifferon
