// Files that fail when told to, over files that do not.
#pragma once

#include <functional>

#include "platform/files.h"

namespace zifferon {

class FaultyFiles : public Files {
  public:
    // `files` must outlive it.
    explicit FaultyFiles(Files& files) : files_(files) {}

    // Runs behind each exchange that has been made.
    std::function<void(const std::string& name)> onExchanged;

    // Everything that would change a file or folder fails as write-protected.
    void writable(bool yes) { writable_ = yes; }

    // Everything that would take room fails with no space left; removing works.
    void diskFull(bool yes) { diskFull_ = yes; }

    // The n-th operation from now fails, counted from 1, whatever it is; those behind it work again.
    // FileExists is none, since it cannot fail. Fail the first, the second, the third, until a run meets no
    // fault, and each point of failure has been met once.
    void failOperation(int n, FileTrouble trouble = FileTrouble::other);
    bool faultMet() const { return operationsToFault_ <= 0; }

    using Files::write;

    bool FileExists(std::string_view name) override { return files_.FileExists(name); }
    bool isFile(const std::string& name) override { return files_.isFile(name); }
    FileContent read(const std::string& name) override;
    FileContent readOrCreate(const std::string& name) override;
    void write(const std::string& name, std::span<const std::string_view> pieces) override;
    void exchange(const std::string& name, std::span<const std::string_view> pieces) override;
    void replace(const std::string& name, std::string_view content) override;
    void remove(const std::string& name) override;
    void removeAll(const std::string& folder, const std::string& pattern) override;
    void createFolder(const std::string& name) override;
    std::chrono::system_clock::time_point lastModified(const std::string& name) override;
    std::vector<std::string> list(const std::string& folder, const std::string& pattern) override;

  private:
    void operation();
    void change();
    void growth();

    Files& files_;
    bool writable_ = true;
    bool diskFull_ = false;
    int operationsToFault_ = 0;
    FileTrouble trouble_ = FileTrouble::other;
};

}  // namespace zifferon
