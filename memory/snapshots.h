// The snapshots of Undo by their numbers. The newest are files of the folder Temp, each the exact bytes of a
// record. An older one is folded: kept as what the next newer one has otherwise, mostly a line of the tape.
// So a day's work costs what its tape costs, and not that once for each of its steps.
//
// When the newest go by Undo, folded ones become files again, one for each that goes.
#pragma once

#include <array>
#include <map>
#include <string>

#include "memory/folded_snapshots.h"
#include "platform/files.h"
#include "storage/calculation_record.h"

namespace zifferon {

class Snapshots {
  public:
    // How many may be files, and how many bytes all of these may have; on a tape so long that a handful has
    // more, two are.
    struct Limits {
        std::size_t files = 200;
        std::size_t bytes = std::size_t{64} << 20;
        std::size_t foldedBytes = std::size_t{1} << 20;  // of folded ones in one piece
    };

    // `files` must outlive it.
    explicit Snapshots(Files& files) : Snapshots(files, Limits()) {}
    Snapshots(Files& files, Limits limits)
        : files_(files), limits_(limits), folded_(files, limits.foldedBytes) {}

    // Forgets all of them and empties the folder. Never fails: what is left there is overwritten by its
    // number, or never read.
    void clear();

    // Writes the snapshot of a number, over one that it had. A number at or below which snapshots are folded
    // is a step that was taken back: what stands above it is forgotten. Where the disk is full, older ones
    // are folded to make room. Throws FileFailure.
    void write(int number, const EncodedRecord& record);

    // The bytes of a snapshot. A number that never had one reads as an empty file, which is created. Throws
    // FileFailure, also where a snapshot that was written is gone.
    FileContent read(int number);

    // Takes a number's snapshot away, if it has one. Never fails.
    void remove(int number);

  private:
    // A record's bytes and the pieces that they fall into.
    struct Record {
        FileContent content;
        std::array<std::string_view, FoldedSnapshot::pieceCount> pieces;
    };

    static std::string fileOf(int number);
    static Record recordOf(FileContent content);
    static Record unfolded(const FoldedSnapshot& older, const Record& newer);
    void writeFile(int number, std::span<const std::string_view> pieces);
    bool tooMuch() const;
    bool fold();
    void unfold();
    void dropNewestFolded();
    void setBase(int number, Record record);
    void removeFile(int number);
    void forgetFile(int number);
    void forgetFrom(int number);
    void giveUp(int number);

    Files& files_;
    Limits limits_;
    std::map<int, std::size_t> whole_;  // the numbers that are files, with their sizes
    std::size_t wholeBytes_ = 0;
    FoldedSnapshots folded_;  // all below those that are files
    int base_ = -1;           // the oldest that is a file, in memory, while any are folded
    Record baseRecord_;
    int lostUpTo_ = -1;  // up to this number there were snapshots that can no longer be had
};

}  // namespace zifferon
