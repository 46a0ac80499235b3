// peer TITLE CHORDS COMMAND...: starts a calculator and measures it from outside, on a screen that is empty
// but for a window manager. Prints in one line the milliseconds from the start of the process to its window
// of that title (any, where it is empty) with more than one colour in it; then, at rest, its PSS and RSS in
// KiB; the processor time in microseconds of each of 200 keys, 200 a second; and what it leaves in the
// clipboard after CHORDS, key codes that are held together: "37+38,37+54". A figure that cannot be told is
// "-".

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "tests/window/real_input.h"

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;
namespace keys = zifferon::test::keys;

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};

class Screen {
  public:
    // The first window of that title that has been painted; 0, if there is none for a minute.
    xcb_window_t painted(std::string_view title) {
        for (const auto end = steady_clock::now() + 1min; steady_clock::now() < end;) {
            for (const xcb_window_t window : clients()) {
                if ((title.empty() || property(window, "_NET_WM_NAME") == title) && isPainted(window))
                    return window;
            }
            std::this_thread::sleep_for(1ms);
        }
        return 0;
    }

  private:
    xcb_connection_t* x_ = xcb_connect(nullptr, nullptr);
    xcb_window_t root_ = xcb_setup_roots_iterator(xcb_get_setup(x_)).data->root;

    std::string property(xcb_window_t window, std::string_view name) {
        const std::unique_ptr<xcb_intern_atom_reply_t, Freed> atom(xcb_intern_atom_reply(
            x_, xcb_intern_atom(x_, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
        const std::unique_ptr<xcb_get_property_reply_t, Freed> value(xcb_get_property_reply(
            x_, xcb_get_property(x_, 0, window, atom->atom, XCB_GET_PROPERTY_TYPE_ANY, 0, 1000), nullptr));
        if (!value) return {};
        return {static_cast<const char*>(xcb_get_property_value(value.get())),
                static_cast<std::size_t>(xcb_get_property_value_length(value.get()))};
    }

    std::vector<xcb_window_t> clients() {
        const std::string bytes = property(root_, "_NET_CLIENT_LIST");
        std::vector<xcb_window_t> windows(bytes.size() / sizeof(xcb_window_t));
        std::copy_n(bytes.data(), windows.size() * sizeof(xcb_window_t),
                    reinterpret_cast<char*>(windows.data()));
        return windows;
    }

    bool isPainted(xcb_window_t window) {
        const std::unique_ptr<xcb_get_geometry_reply_t, Freed> place(
            xcb_get_geometry_reply(x_, xcb_get_geometry(x_, window), nullptr));
        if (!place) return false;
        const std::unique_ptr<xcb_get_image_reply_t, Freed> image(xcb_get_image_reply(
            x_, xcb_get_image(x_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, place->width, place->height, ~0u),
            nullptr));
        if (!image) return false;
        const auto* const pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
        const auto* const end = pixels + xcb_get_image_data_length(image.get()) / 4;
        return std::any_of(pixels, end, [&](std::uint32_t pixel) { return pixel != *pixels; });
    }
};

class Calculator {
  public:
    explicit Calculator(char** command) : process_(::fork()) {
        if (process_ != 0) return;
        ::setsid();
        const int nowhere = ::open("/dev/null", O_RDWR);
        for (const int stream : {0, 1, 2}) ::dup2(nowhere, stream);
        ::execvp(command[0], command);
        ::_exit(EXIT_FAILURE);
    }
    ~Calculator() {
        ::kill(-process_, SIGKILL);
        ::waitpid(process_, nullptr, 0);
    }
    Calculator(const Calculator&) = delete;
    Calculator& operator=(const Calculator&) = delete;

    // Of all its threads, also of those that have ended.
    std::chrono::nanoseconds processorTime() const {
        clockid_t clock{};
        timespec time{};
        if (::clock_getcpuclockid(process_, &clock) != 0) return {};
        ::clock_gettime(clock, &time);
        return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
    }

    // Waits until it takes less than a hundredth of a core; false, if it does not come to rest.
    bool rest() const {
        for (int tries = 0; tries < 40; ++tries) {
            const auto before = processorTime();
            std::this_thread::sleep_for(500ms);
            if (processorTime() - before < 5ms) return true;
        }
        return false;
    }

    std::string memory(std::string_view kind) const {
        std::ifstream rollup("/proc/" + std::to_string(process_) + "/smaps_rollup");
        for (std::string word; rollup >> word;) {
            if (word == kind && rollup >> word) return word;
        }
        return "-";
    }

  private:
    pid_t process_;
};

// 1+2+...+9+1+2+..., as fast as the fastest typist.
void type(zifferon::test::RealInput& hands) {
    constexpr std::array digits{87, 88, 89, 83, 84, 85, 79, 80, 81};  // of the keypad
    auto due = steady_clock::now();
    for (std::size_t i = 0; i < 200; ++i) {
        const int key = i % 2 == 0 ? digits[i / 2 % digits.size()] : keys::keypadAdd;
        hands.down(key);
        hands.up(key);
        std::this_thread::sleep_until(due += 5ms);
    }
}

void press(zifferon::test::RealInput& hands, const std::string& chords) {
    std::istringstream all(chords);
    for (std::string chord; std::getline(all, chord, ',');) {
        std::vector<int> held;
        std::istringstream each(chord);
        for (std::string key; std::getline(each, key, '+');) held.push_back(std::stoi(key));
        for (const int key : held) hands.down(key);
        std::reverse(held.begin(), held.end());
        for (const int key : held) hands.up(key);
        std::this_thread::sleep_for(200ms);
    }
}

std::string clipboard() {
    std::string text;
    if (std::FILE* const pipe =
            ::popen("timeout 2 xclip -o -selection clipboard 2>/dev/null | tr -d '[:space:]'", "r")) {
        for (int c; (c = std::fgetc(pipe)) != EOF;) text += static_cast<char>(c);
        ::pclose(pipe);
    }
    return text.empty() ? "-" : text;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) return EXIT_FAILURE;
    Screen screen;
    zifferon::test::RealInput hands;
    hands.setNumLock(true);
    const auto start = steady_clock::now();
    const Calculator calculator(argv + 3);
    if (screen.painted(argv[1]) == 0) return EXIT_FAILURE;
    const std::chrono::duration<double, std::milli> passed = steady_clock::now() - start;
    const bool rests = calculator.rest();
    std::cout << passed.count() << ' ' << calculator.memory("Pss:") << ' ' << calculator.memory("Rss:")
              << ' ';
    const auto before = calculator.processorTime();
    type(hands);
    if (calculator.rest() && rests) {
        std::cout << std::chrono::duration<double, std::micro>(calculator.processorTime() - before).count() /
                         200;
    } else {
        std::cout << '-';
    }
    press(hands, argv[2]);
    std::cout << ' ' << clipboard() << std::endl;
}
