// The sounds as they are delivered: what every player takes, and no ear minds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

class WaveFile : public testing::TestWithParam<const char*> {};

int loudest(auto begin, auto end) {
    return std::abs(*std::max_element(begin, end, [](int a, int b) { return std::abs(a) < std::abs(b); }));
}

TEST_P(WaveFile, hasAPlainHeaderIsLoudWithoutClippingAndEndsInSilence) {
    std::ifstream file(std::filesystem::path(ZIFFERON_FOLDER) / GetParam(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    ASSERT_GT(bytes.size(), 44u);
    EXPECT_LE(bytes.size(), 60'000u);
    std::uint32_t behindIt = 0, samplesSize = 0;
    std::memcpy(&behindIt, &bytes[4], 4);
    std::memcpy(&samplesSize, &bytes[40], 4);
    EXPECT_EQ(bytes.substr(0, 4), "RIFF");
    EXPECT_EQ(behindIt, bytes.size() - 8);
    EXPECT_EQ(bytes.substr(8, 8), "WAVEfmt ");
    // 16 bytes: PCM, one channel, 22,050 samples and 44,100 bytes a second, of 2 bytes and 16 bits each.
    EXPECT_EQ(toHex(bytes.substr(16, 20)), "10 00 00 00 01 00 01 00 22 56 00 00 44 AC 00 00 02 00 10 00");
    EXPECT_EQ(bytes.substr(36, 4), "data");
    ASSERT_EQ(samplesSize, bytes.size() - 44);

    std::vector<std::int16_t> heard(samplesSize / 2);
    std::memcpy(heard.data(), &bytes[44], heard.size() * 2);
    ASSERT_GT(heard.size(), 4410u) << "a fifth of a second";
    EXPECT_NEAR(loudest(heard.begin(), heard.end()), 23197, 2) << "3 dB below full scale";
    const double sum = std::accumulate(heard.begin(), heard.end(), 0.0);
    EXPECT_LT(std::abs(sum / static_cast<double>(heard.size())), 33) << "a thousandth of full scale";
    EXPECT_LT(std::abs(heard.front()), 33);
    EXPECT_LT(loudest(heard.end() - 100, heard.end()), 330) << "40 dB below full scale";
}

INSTANTIATE_TEST_SUITE_P(Sounds, WaveFile,
                         testing::Values("rattle1.wav", "rattle2.wav", "start.wav", "switch.wav",
                                         "switch2.wav", "trash.wav", "undo.wav"),
                         [](const auto& sound) {
                             return std::filesystem::path(sound.param).stem().string();
                         });

}  // namespace
}  // namespace zifferon
