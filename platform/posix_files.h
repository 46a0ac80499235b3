// Files on a POSIX system.
#pragma once

#include "platform/posix_calls.h"

namespace zifferon {

class PosixFiles : public Files {
  public:
    // Holds on to the program folder itself, whatever it is renamed to and wherever the current folder goes.
    // Never fails: a folder that is not there or cannot be entered has no files.
    explicit PosixFiles(const std::string& programFolder = ".");

    using Files::write;

    bool FileExists(std::string_view name) override;
    bool isFile(const std::string& name) override;
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

    // Makes it the time when the content was last written.
    void stamp(const std::string& name, std::chrono::system_clock::time_point written);

  private:
    int open(const std::string& name, int flags);
    FileContent readAll(const Descriptor& file);

    Descriptor folder_;
};

}  // namespace zifferon
