// The sounds as they are delivered: what every player takes, and no ear minds.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <numeric>
#include <string>
#include <vector>

namespace {

class WaveFile : public testing::TestWithParam<const char*> {
  protected:
    WaveFile() {
        std::ifstream file(std::filesystem::path(ZIFFERON_FOLDER) / GetParam(), std::ios::binary);
        bytes_.assign(std::istreambuf_iterator<char>(file), {});
    }

    std::uint32_t number(std::size_t at, int bytes) const {
        std::uint32_t value = 0;
        for (int i = bytes - 1; i >= 0; --i) {
            value = value << 8 | static_cast<unsigned char>(bytes_.at(at + static_cast<std::size_t>(i)));
        }
        return value;
    }

    std::vector<int> samples() const {
        std::vector<int> result;
        for (std::size_t at = 44; at < bytes_.size(); at += 2) {
            result.push_back(static_cast<std::int16_t>(number(at, 2)));
        }
        return result;
    }

    std::string bytes_;
};

int loudest(auto begin, auto end) {
    return std::abs(*std::max_element(begin, end, [](int a, int b) { return std::abs(a) < std::abs(b); }));
}

TEST_P(WaveFile, hasAPlainHeaderThatTellsItsLength) {
    ASSERT_GT(bytes_.size(), 44u);
    EXPECT_LE(bytes_.size(), 60'000u);
    EXPECT_EQ(bytes_.substr(0, 4), "RIFF");
    EXPECT_EQ(number(4, 4), bytes_.size() - 8);
    EXPECT_EQ(bytes_.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(number(16, 4), 16u);
    EXPECT_EQ(number(20, 2), 1u) << "PCM";
    EXPECT_EQ(number(22, 2), 1u) << "channels";
    EXPECT_EQ(number(24, 4), 22050u);
    EXPECT_EQ(number(28, 4), 44100u);
    EXPECT_EQ(number(32, 2), 2u);
    EXPECT_EQ(number(34, 2), 16u);
    EXPECT_EQ(bytes_.substr(36, 4), "data");
    EXPECT_EQ(number(40, 4), bytes_.size() - 44);
}

TEST_P(WaveFile, isLoudWithoutClippingAndEndsInSilence) {
    const std::vector<int> heard = samples();
    ASSERT_GT(heard.size(), 4410u) << "a fifth of a second";

    EXPECT_NEAR(loudest(heard.begin(), heard.end()), 23197, 2) << "3 dB below full scale";
    const double offset =
        std::accumulate(heard.begin(), heard.end(), 0.0) / static_cast<double>(heard.size());
    EXPECT_LT(std::abs(offset), 33) << "a thousandth of full scale";

    EXPECT_LT(std::abs(heard.front()), 33);
    EXPECT_LT(loudest(heard.end() - 100, heard.end()), 330) << "40 dB below full scale";
}

INSTANTIATE_TEST_SUITE_P(Sounds, WaveFile,
                         testing::Values("rattle1.wav", "rattle2.wav", "start.wav", "switch.wav",
                                         "switch2.wav", "trash.wav", "undo.wav"),
                         [](const auto& sound) {
                             const std::string name = sound.param;
                             return name.substr(0, name.find('.'));
                         });

}  // namespace
