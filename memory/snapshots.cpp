#include "memory/snapshots.h"

#include <algorithm>
#include <utility>

#include "storage/common_bytes.h"

namespace zifferon {

namespace {

constexpr const char* folder = "Temp";

}  // namespace

std::string Snapshots::fileOf(int number) {
    return std::string(folder) + "/temp" + std::to_string(number) + ".tmp";
}

void Snapshots::clear() {
    whole_.clear();
    wholeBytes_ = 0;
    folded_.clear();
    baseRecord_ = {};
    lostUpTo_ = -1;
    try {
        files_.removeAll(folder, "*");
    } catch (const FileFailure&) {
        // What is left there is overwritten by its number, or never read.
    }
}

void Snapshots::write(int number, const EncodedRecord& record) {
    if (!folded_.empty() && number <= base_) forgetFrom(number);
    lostUpTo_ = std::min(lostUpTo_, number - 1);
    const auto pieces = record.pieces();
    for (;;) {
        try {
            writeFile(number, pieces);
            break;
        } catch (const FileFailure& failure) {
            if (failure.trouble() != FileTrouble::noSpace || !fold()) throw;
        }
    }
    std::size_t size = 0;
    for (const std::string_view piece : pieces) size += piece.size();
    wholeBytes_ += size - std::exchange(whole_[number], size);
    while (tooMuch() && fold()) {
    }
}

// The folder may have been lost, as when the program folder was copied without its empty ones.
void Snapshots::writeFile(int number, std::span<const std::string_view> pieces) {
    try {
        files_.write(fileOf(number), pieces);
    } catch (const FileFailure& failure) {
        if (failure.trouble() != FileTrouble::missing) throw;
        files_.createFolder(folder);
        files_.write(fileOf(number), pieces);
    }
}

FileContent Snapshots::read(int number) {
    if (!folded_.empty() && number < base_) forgetFrom(number + 1);
    if (whole_.contains(number)) return files_.read(fileOf(number));
    if (number <= lostUpTo_) throw FileFailure(FileTrouble::missing);
    return files_.readOrCreate(fileOf(number));
}

void Snapshots::remove(int number) {
    if (!folded_.empty() && number <= base_) return forgetFrom(number);
    removeFile(number);
    if (!folded_.empty() && whole_.size() < limits_.files && wholeBytes_ < limits_.bytes) unfold();
}

void Snapshots::removeFile(int number) {
    forgetFile(number);
    try {
        files_.remove(fileOf(number));
    } catch (const FileFailure&) {
        // Above all a number that had no file; one that stays is read no more.
    }
}

void Snapshots::forgetFile(int number) {
    const auto found = whole_.find(number);
    if (found == whole_.end()) return;
    wholeBytes_ -= found->second;
    whole_.erase(found);
}

bool Snapshots::tooMuch() const {
    return whole_.size() > 2 && (whole_.size() > limits_.files || wholeBytes_ > limits_.bytes);
}

Snapshots::Record Snapshots::recordOf(FileContent content) {
    Record record{std::move(content), {}};
    record.pieces = piecesOf(record.content.view());
    return record;
}

// Folds the oldest that is a file; false where only one is left, on which those folded rest.
bool Snapshots::fold() {
    if (whole_.size() < 2) return false;
    const int oldest = whole_.begin()->first;
    const int next = std::next(whole_.begin())->first;
    int reading = oldest;
    Record newer;
    try {
        if (folded_.empty()) baseRecord_ = recordOf(files_.read(fileOf(oldest)));
        reading = next;
        newer = recordOf(files_.read(fileOf(next)));
    } catch (const FileFailure&) {
        giveUp(reading);
        return true;
    }
    FoldedSnapshot folded{oldest, {}};
    for (std::size_t i = 0; i < folded.changes.size(); ++i) {
        const std::string_view old = baseRecord_.pieces[i];
        const std::size_t prefix = commonPrefix(old, newer.pieces[i]);
        const std::size_t suffix = commonSuffix(old.substr(prefix), newer.pieces[i].substr(prefix));
        folded.changes[i] = {prefix, suffix, std::string(old.substr(prefix, old.size() - prefix - suffix))};
    }
    folded_.push(folded);
    setBase(next, std::move(newer));
    removeFile(oldest);
    return true;
}

// Another program has taken the file of `number`: nothing can be had of it, nor of what rests on it. They are
// known to be lost, so that no Undo takes them for steps that never had a snapshot.
void Snapshots::giveUp(int number) {
    while (!whole_.empty() && whole_.begin()->first <= number) forgetFile(whole_.begin()->first);
    folded_.clear();
    lostUpTo_ = number;
}

Snapshots::Record Snapshots::unfolded(const FoldedSnapshot& older, const Record& newer) {
    std::size_t size = 0;
    for (const PieceChange& change : older.changes)
        size += change.prefix + change.middle.size() + change.suffix;
    FileContent content(size);
    char* next = content.data();
    for (std::size_t i = 0; i < older.changes.size(); ++i) {
        const PieceChange& change = older.changes[i];
        const std::string_view piece = newer.pieces[i];
        for (const std::string_view part : {piece.substr(0, change.prefix), std::string_view(change.middle),
                                            piece.substr(piece.size() - change.suffix)}) {
            next = std::copy(part.begin(), part.end(), next);
        }
    }
    return recordOf(std::move(content));
}

// Makes the newest of those that are folded a file again, on which the others rest.
void Snapshots::unfold() {
    const FoldedSnapshot newest = folded_.newest();
    Record record = unfolded(newest, baseRecord_);
    const std::string_view bytes = record.content.view();
    try {
        writeFile(newest.number, std::span(&bytes, 1));
    } catch (const FileFailure&) {
        return;
    }
    dropNewestFolded();
    setBase(newest.number, std::move(record));
    whole_[newest.number] = bytes.size();
    wholeBytes_ += bytes.size();
}

void Snapshots::dropNewestFolded() {
    const int number = folded_.newest().number;
    if (!folded_.pop()) lostUpTo_ = number - 1;
}

void Snapshots::setBase(int number, Record record) {
    base_ = number;
    baseRecord_ = std::move(record);
}

// The counter has been lowered among those that are folded: from `number` on they are of no use any more. The
// next one below becomes a file.
void Snapshots::forgetFrom(int number) {
    while (!whole_.empty() && whole_.rbegin()->first >= number) removeFile(whole_.rbegin()->first);
    for (; !folded_.empty() && folded_.newest().number >= number; dropNewestFolded()) {
        const FoldedSnapshot newest = folded_.newest();
        setBase(newest.number, unfolded(newest, baseRecord_));
    }
    if (folded_.empty()) return;
    unfold();
    if (whole_.empty()) giveUp(folded_.newest().number);
}

}  // namespace zifferon
