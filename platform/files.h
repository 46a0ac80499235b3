// Files as the program uses them: small, opened for one access and closed at once. A name is relative to the
// program folder or absolute, in UTF-8.
#pragma once

#include <chrono>
#include <exception>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace zifferon {

enum class FileTrouble {
    missing,  // no such file or folder
    access,   // write-protected, or not allowed
    noSpace,  // the disk or the quota is full
    other,
};

// Thrown by every function of Files that is not said never to fail.
class FileFailure : public std::exception {
  public:
    explicit FileFailure(FileTrouble trouble) : trouble_(trouble) {}
    FileTrouble trouble() const { return trouble_; }
    const char* what() const noexcept override { return "file failure"; }

  private:
    FileTrouble trouble_;
};

// The bytes of a file.
class FileContent {
  public:
    FileContent() = default;
    explicit FileContent(std::size_t size)
        : bytes_(std::make_unique_for_overwrite<char[]>(size)), size_(size) {}

    std::string_view view() const { return {bytes_.get(), size_}; }

    char* data() { return bytes_.get(); }
    std::size_t size() const { return size_; }
    void shorten(std::size_t size) { size_ = size; }

  private:
    std::unique_ptr<char[]> bytes_;  // no string, which would fill what is overwritten at once
    std::size_t size_ = 0;
};

class Files {
  public:
    virtual ~Files() = default;

    // Whether a normal file of that name is there, itself or behind a link; blanks around the name do not
    // count. A hidden file, one whose name begins with a point, is not. Never fails.
    virtual bool FileExists(std::string_view name) = 0;

    // The same of just this name, with its blanks, and of a hidden one too. Never fails.
    virtual bool isFile(const std::string& name) = 0;

    // The whole file. An absent one is missing.
    virtual FileContent read(const std::string& name) = 0;

    // The whole file; an absent one is created and stays behind with 0 bytes.
    virtual FileContent readOrCreate(const std::string& name) = 0;

    // Writes the pieces one behind the other from the start of the file, and creates it when absent. Bytes of
    // a longer file stay behind them. Where the disk is full the file keeps its former content.
    virtual void write(const std::string& name, std::span<const std::string_view> pieces) = 0;
    void write(const std::string& name, std::string_view content) { write(name, std::span(&content, 1)); }

    // As write, but the file has its former content until the new one is wholly on the disk, whatever happens
    // meanwhile. It keeps its access rights; a link keeps leading to it. What is no normal file is a failure
    // of access.
    virtual void exchange(const std::string& name, std::span<const std::string_view> pieces) = 0;

    // Makes `content` the whole file.
    virtual void replace(const std::string& name, std::string_view content) = 0;

    // A symbolic link is removed itself.
    virtual void remove(const std::string& name) = 0;

    // Removes the files of a folder whose names match a pattern with * and ?, symbolic links themselves. The
    // folder lies in the program folder and is told by its bare name; another one, or a link to one, is a
    // failure. What cannot be removed stops none of the others and is reported at the end.
    virtual void removeAll(const std::string& folder, const std::string& pattern) = 0;

    // A folder that is there already is fine.
    virtual void createFolder(const std::string& name) = 0;

    // When the content was last written.
    virtual std::chrono::system_clock::time_point lastModified(const std::string& name) = 0;

    // The normal files of a folder whose names match the pattern, in byte order, without the hidden ones.
    virtual std::vector<std::string> list(const std::string& folder, const std::string& pattern) = 0;
};

}  // namespace zifferon
