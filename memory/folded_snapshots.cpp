#include "memory/folded_snapshots.h"

#include <cstring>
#include <functional>
#include <span>

namespace zifferon {

namespace {

std::size_t digestOf(std::string_view bytes) { return std::hash<std::string_view>()(bytes); }

}  // namespace

// All sizes in bytes; no file of this program is too large for them.
struct FoldedSnapshots::Trailer {
    struct Sizes {
        std::uint32_t prefix, suffix, middle;
    };
    std::array<Sizes, FoldedSnapshot::pieceCount> pieces;
    std::int32_t number;

    std::size_t middles() const {
        std::size_t size = 0;
        for (const Sizes& piece : pieces) size += piece.middle;
        return size;
    }
};

std::string FoldedSnapshots::fileOf(std::size_t part) { return "Temp/older" + std::to_string(part) + ".tmp"; }

void FoldedSnapshots::push(const FoldedSnapshot& snapshot) {
    if (parts_.empty() || parts_.back().bytes.size() >= partBytes_) {
        if (parts_.size() >= 2) store(parts_.size() - 2);
        parts_.emplace_back();
    }
    std::string& bytes = parts_.back().bytes;
    Trailer trailer{{}, snapshot.number};
    for (std::size_t i = 0; i < snapshot.changes.size(); ++i) {
        const PieceChange& change = snapshot.changes[i];
        const auto size = [](std::size_t count) { return static_cast<std::uint32_t>(count); };
        trailer.pieces[i] = {size(change.prefix), size(change.suffix), size(change.middle.size())};
        bytes += change.middle;
    }
    bytes.append(reinterpret_cast<const char*>(&trailer), sizeof trailer);
}

FoldedSnapshots::Trailer FoldedSnapshots::trailer() const {
    const std::string& bytes = parts_.back().bytes;
    Trailer found;
    std::memcpy(&found, bytes.data() + bytes.size() - sizeof found, sizeof found);
    return found;
}

FoldedSnapshot FoldedSnapshots::newest() const {
    const Trailer told = trailer();
    const std::string& bytes = parts_.back().bytes;
    FoldedSnapshot snapshot{told.number, {}};
    std::size_t next = bytes.size() - sizeof told - told.middles();
    for (std::size_t i = 0; i < snapshot.changes.size(); ++i) {
        const Trailer::Sizes& piece = told.pieces[i];
        snapshot.changes[i] = {piece.prefix, piece.suffix, bytes.substr(next, piece.middle)};
        next += piece.middle;
    }
    return snapshot;
}

bool FoldedSnapshots::pop() {
    std::string& bytes = parts_.back().bytes;
    bytes.resize(bytes.size() - sizeof(Trailer) - trailer().middles());
    if (!bytes.empty()) return true;
    parts_.pop_back();
    if (parts_.empty() || bringBack(parts_.size() - 1)) return true;
    clear();
    return false;
}

void FoldedSnapshots::clear() {
    for (std::size_t part = 0; part < parts_.size(); ++part) {
        if (parts_[part].digest) removeFile(part);
    }
    parts_.clear();
}

void FoldedSnapshots::store(std::size_t part) {
    if (parts_[part].digest) return;
    const std::string_view bytes = parts_[part].bytes;
    try {
        files_.write(fileOf(part), std::span(&bytes, 1));
        parts_[part].digest = digestOf(bytes);
        std::string().swap(parts_[part].bytes);  // a mere assignment would keep the room
    } catch (const FileFailure&) {
        removeFile(part);
    }
}

bool FoldedSnapshots::bringBack(std::size_t part) {
    if (!parts_[part].digest) return true;
    try {
        const FileContent content = files_.read(fileOf(part));
        if (digestOf(content.view()) != parts_[part].digest) return false;
        parts_[part] = {std::string(content.view()), {}};
    } catch (const FileFailure&) {
        return false;
    }
    removeFile(part);
    return true;
}

void FoldedSnapshots::removeFile(std::size_t part) {
    try {
        files_.remove(fileOf(part));
    } catch (const FileFailure&) {
        // It is overwritten, or never read.
    }
}

}  // namespace zifferon
