#include "programs/tape/piped_calculator.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/number_format.h"
#include "shell/pasted_text.h"

namespace zifferon {

PassingFolder::PassingFolder()
    : path_((std::filesystem::temp_directory_path() / "zifferon-XXXXXX").string()) {
    if (::mkdtemp(path_.data()) != nullptr) return;
    throw std::filesystem::filesystem_error("no folder for the calculation", path_,
                                            std::error_code(errno, std::generic_category()));
}

PassingFolder::~PassingFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

PipedCalculator::PipedCalculator(const Options& options) {
    nowhere_.setstate(std::ios::badbit);
    headless_.setMainWindow(program_.pultform, program_.keys);
    CalculatorState& s = program_.pultform.state;
    s.language = options.language;
    s.decimalPointStyle = options.point ? 1 : 0;
    applyFormatMode(s);
    program_.beginFresh();
    s.undoActive = false;
    if (!options.decimals) return;
    for (int i = 0; i < 10; ++i) type(u"<");
    for (int i = 0; i < *options.decimals; ++i) type(u">");
    program_.keys.run([&] { s.checkrnd.setTicked(true); });
}

void PipedCalculator::type(TextView keys) {
    const CalculatorState& s = program_.pultform.state;
    for (const char16_t character : keys) {
        program_.keys.stroke(keyOfCharacter(character));
        if (s.zwischen.is(u"Error")) failed_ = true;
    }
}

bool PipedCalculator::add(TextView text) {
    CalculatorState& s = program_.pultform.state;
    const PastedFigures found = figuresOf(text, s.separators());
    if (found.leftOut || found.figures.size() != 1) return false;
    program_.keys.run([&] { program_.pultform.onPaste(text); });
    if (s.eingabe.empty()) return false;
    type(u"+");
    return true;
}

std::string PipedCalculator::tape() const {
    std::string lines = toUtf8(program_.pultform.state.superdruck.text());
    std::erase(lines, '\r');
    if (lines.starts_with('\n')) lines.erase(0, 1);
    return lines;
}

}  // namespace zifferon
