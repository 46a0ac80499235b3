#include "page/file_list.h"

namespace zifferon {

void FileList::refresh() {
    names_.clear();
    try {
        names_ = files_.list(".", "*.sav");
    } catch (const FileFailure&) {
        // Told above.
    }
    std::vector<Text> rows;
    rows.reserve(names_.size());
    for (const std::string& name : names_) rows.push_back(fromUtf8(name));
    list_.setRows(std::move(rows));
}

void FileList::open() { empty_ = !list_.select(1); }

bool FileList::selectKept() { return list_.select(index_); }

void FileList::pick() {
    name_ = list_.selected();
    file_ = hasSelection() ? names_[static_cast<std::size_t>(list_.row() - 1)] : std::string();
}

}  // namespace zifferon
