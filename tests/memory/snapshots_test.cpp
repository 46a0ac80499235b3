// Snapshots that are folded and come back, compared with full copies.

#include "memory/snapshots.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/headless/faulty_files.h"
#include "platform/posix_files.h"
#include "tests/support/fresh_folder.h"

namespace zifferon {
namespace {

// A disk with room for so many bytes in the folder of the snapshots.
class SmallDisk : public PosixFiles {
  public:
    SmallDisk(const FreshFolder& folder, std::size_t room)
        : PosixFiles(folder.path()), folder_(folder), room_(room) {}

    void write(const std::string& name, std::span<const std::string_view> pieces) override {
        std::size_t used = 0;
        for (const std::string_view piece : pieces) used += piece.size();
        for (const auto& entry : std::filesystem::directory_iterator(folder_ / "Temp")) {
            if (entry.path() != folder_ / name) used += entry.file_size();
        }
        if (used > room_) throw FileFailure(FileTrouble::noSpace);
        PosixFiles::write(name, pieces);
    }

  private:
    const FreshFolder& folder_;
    std::size_t room_;
};

class SnapshotsTest : public testing::TestWithParam<unsigned> {
  protected:
    SnapshotsTest() { disk_.createFolder("Temp"); }

    // As a step of a calculation does; now and then as an editor of the print copy does.
    void change() {
        const Text figure = fromUtf8(std::to_string(random_() % 100000));
        state_.anzeige.append(u"\r\n" + figure + u" +   ");
        state_.superdruck.append(u"\r\n" + Text(60 - figure.size(), u' ') + figure + u" +");
        state_.zwischen.setText(figure);
        state_.memo[random_() % 5].setText(figure);
        if (random_() % 10 == 0) state_.superdruck.setText(figure + state_.superdruck.text());
        if (random_() % 40 == 0) state_.anzeige.setText(u"");
    }

    // Writes the state under the counter and keeps a copy.
    void write(Snapshots& snapshots) {
        gatherRecord(record_);
        const EncodedRecord encoded(record_);
        snapshots.write(counter_, encoded);
        std::string copy;
        for (const std::string_view piece : encoded.pieces()) copy += piece;
        copies_.resize(static_cast<std::size_t>(counter_));
        copies_.push_back(copy);
    }

    void undo(Snapshots& snapshots) {
        --counter_;
        ASSERT_EQ(snapshots.read(counter_).view(), copies_[static_cast<std::size_t>(counter_)]);
        snapshots.remove(counter_ + 1);
    }

    FreshFolder folder_;
    PosixFiles disk_{folder_.path()};
    std::mt19937 random_{GetParam()};
    CalculatorState state_;
    CalculationRecord record_{state_};
    int counter_ = 0;
    std::vector<std::string> copies_;
};

// Steps, undone ones, and numbers that are taken back without their files, in any order.
TEST_P(SnapshotsTest, comeBackAsTheyWere) {
    Snapshots snapshots(disk_, {.files = 2 + GetParam() % 5,
                                .bytes = std::size_t{4000} * (1 + GetParam()),
                                .foldedBytes = std::size_t{500} << GetParam()});
    write(snapshots);
    for (int i = 0; i < 1500; ++i) {
        const bool up = random_() % 100 < (i % 300 < 150 ? 80 : 20);
        if (up || counter_ == 0) {
            change();
            ++counter_;
            write(snapshots);
        } else if (random_() % 30 == 0) {
            counter_ -= static_cast<int>(random_() % 12) % counter_;
        } else {
            undo(snapshots);
        }
        if (HasFatalFailure()) return;
    }
    while (counter_ > 0 && !HasFatalFailure()) undo(snapshots);
}

TEST_P(SnapshotsTest, makeRoomOnANearlyFullDisk) {
    SmallDisk disk(folder_, 60000);
    Snapshots snapshots(disk);
    for (; counter_ < 150; ++counter_) {
        if (counter_ > 0) change();
        write(snapshots);
    }
    for (--counter_; counter_ > 0 && !HasFatalFailure();) undo(snapshots);
    state_.anzeige.setText(Text(70000, u'1'));
    ++counter_;
    EXPECT_THROW(write(snapshots), FileFailure);
}

// A file that another program has taken is known to have been there, folded or not.
TEST_P(SnapshotsTest, knowWhatIsLost) {
    Snapshots snapshots(disk_, {.files = 4, .bytes = 1 << 20});
    for (; counter_ < 8; ++counter_) write(snapshots);
    disk_.remove("Temp/temp6.tmp");
    EXPECT_THROW(snapshots.read(6), FileFailure);
    for (; counter_ < 20; ++counter_) write(snapshots);
    EXPECT_THROW(snapshots.read(6), FileFailure);
    EXPECT_EQ(snapshots.read(20).size(), 0u);
    counter_ = 6;
    write(snapshots);
    EXPECT_EQ(snapshots.read(6).view(), copies_[6]);
}

// The same of what lies so deep that only a file holds it.
TEST_P(SnapshotsTest, knowWhatIsLostInTheDepth) {
    Snapshots snapshots(disk_, {.files = 2, .bytes = 1 << 20, .foldedBytes = 1000});
    for (; counter_ < 100; ++counter_) {
        if (counter_ > 0) change();
        write(snapshots);
    }
    --counter_;
    ASSERT_TRUE(disk_.FileExists("Temp/older1.tmp"));
    const std::string bytes = folder_.bytes("Temp/older1.tmp");
    GetParam() % 2 == 0 ? disk_.remove("Temp/older1.tmp")
                        : folder_.put("Temp/older1.tmp", bytes.substr(1) + '-');
    int above = counter_;
    while (counter_ > 1) {
        try {
            undo(snapshots);
            above = counter_;
        } catch (const FileFailure&) {
            // The step is lost.
        }
        if (HasFatalFailure()) return;
    }
    EXPECT_GT(above, 2);
    EXPECT_LT(above, 97);
    EXPECT_FALSE(disk_.FileExists("Temp/older0.tmp"));
}

INSTANTIATE_TEST_SUITE_P(Seeds, SnapshotsTest, testing::Range(0u, 6u));

}  // namespace
}  // namespace zifferon
