// What is written can be read in every pair of schemes: at least 4.5 to 1, as the accessibility guidelines
// have it. Only the label of the memory cell in use is fainter, which is red on every background, and whose
// cell shows by its selection that it has the keyboard.

#include <cmath>

#include "shell/colour_schemes.h"
#include "tests/support/headless_test.h"

namespace zifferon {
namespace {

double luminance(Colour colour) {
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.red) + 0.7152 * linear(colour.green) + 0.0722 * linear(colour.blue);
}

double contrast(const Control& control) {
    const double fore = luminance(control.foreColour), back = luminance(control.backColour);
    return (std::max(fore, back) + 0.05) / (std::min(fore, back) + 0.05);
}

class Contrast : public FreshProgramTest {
  protected:
    static void expectReadable(const Window& window) {
        for (const Control* const control : window.controls()) {
            const bool written = !control->name.starts_with(u"raster");  // the ruled lines
            if (!written) continue;
            EXPECT_GE(contrast(*control), 4.5) << toUtf8(window.name) << '.' << toUtf8(control->name);
        }
    }
};

TEST_F(Contrast, isEnoughInEveryPairOfSchemes) {
    for (int text = 1; text <= 8; ++text) {
        applyTextScheme(program_.pultform, text);
        for (int back = 1; back <= 16; ++back) {
            applyBackScheme(program_.pultform, program_.help, back);
            SCOPED_TRACE("schemes " + std::to_string(text) + ", " + std::to_string(back));
            expectReadable(program_.pultform);
            expectReadable(program_.help);
        }
    }
    expectReadable(program_.kopf);
    expectReadable(program_.puzzle);
}

}  // namespace
}  // namespace zifferon
