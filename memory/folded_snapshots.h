// Snapshots that are told by what the next newer one has otherwise: a stack, on which the newest lies on top.
// Only its top is in memory. What lies deeper are files of the folder Temp, one for each so many bytes, which
// come back when Undo gets there: a run of weeks takes no more memory than a day.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/files.h"

namespace zifferon {

// One piece of a record, told by the same piece of the next newer one.
struct PieceChange {
    std::size_t prefix = 0, suffix = 0;  // so many bytes at both ends are those of the newer one
    std::string middle;                  // what stands between them
};

struct FoldedSnapshot {
    static constexpr std::size_t pieceCount = 5;

    int number = 0;
    std::array<PieceChange, pieceCount> changes;
};

class FoldedSnapshots {
  public:
    // `files` must outlive it. A part has about so many bytes; two of them are in memory.
    FoldedSnapshots(Files& files, std::size_t partBytes) : files_(files), partBytes_(partBytes) {}

    bool empty() const { return parts_.empty(); }

    // Never fails: what the disk does not take stays in memory.
    void push(const FoldedSnapshot& snapshot);

    // The newest one; there must be one.
    FoldedSnapshot newest() const;

    // Takes the newest one away. False where those below it are lost, as another program has taken or changed
    // their file; it is empty then.
    bool pop();

    // Forgets all of them, and takes their files away. Never fails.
    void clear();

  private:
    // Snapshots one behind the other, each as the middles of its pieces, and then a trailer.
    struct Part {
        std::string bytes;
        std::optional<std::size_t> digest;  // of the bytes, where they are in its file and not here
    };
    struct Trailer;

    static std::string fileOf(std::size_t part);
    Trailer trailer() const;
    void store(std::size_t part);
    bool bringBack(std::size_t part);
    void removeFile(std::size_t part);

    Files& files_;
    std::size_t partBytes_;
    std::vector<Part> parts_;  // the last one is never empty
};

}  // namespace zifferon
