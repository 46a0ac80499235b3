// The stored calculations of the program folder, as the list of the page shows them: files "NAME.sav", in the
// order of their names.
#pragma once

#include <string>
#include <vector>

#include "platform/files.h"
#include "platform/list_box.h"

namespace zifferon {

class FileList {
  public:
    // Both must outlive it.
    FileList(ListBox& list, Files& files) : list_(list), files_(files) {}

    // Shows what there is now, with no row selected. A folder that cannot be read has no files.
    void refresh();

    // Selects the first row; without one the list counts as empty until something has been saved.
    void open();
    void filled() { empty_ = false; }
    bool empty() const { return empty_; }

    // The row that was clicked or pressed last is kept, to be selected again when its file has gone.
    void keepRow() { index_ = list_.row(); }
    bool selectKept();
    void forgetKept() { index_ = 1; }
    int keptRow() const { return index_; }

    bool hasSelection() const { return list_.row() != 0; }
    void selectNone() { list_.select(0); }

    // Takes the selected row for what is loaded, shown or deleted; no row is the empty name.
    void pick();
    const Text& pickedName() const { return name_; }

    // The file of it, whatever bytes its name is made of.
    const std::string& pickedFile() const { return file_; }

  private:
    ListBox& list_;
    Files& files_;
    std::vector<std::string> names_;  // of the rows
    bool empty_ = false;
    int index_ = 0;  // 0: no row
    std::string file_;
    Text name_;
};

}  // namespace zifferon
