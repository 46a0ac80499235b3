#include "platform/file_exchange.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <optional>

#include "platform/posix_calls.h"

namespace zifferon {

namespace {

// With its stroke; the program folder itself is "./".
std::string folderOf(const std::string& name) {
    const std::size_t stroke = name.rfind('/');
    return stroke == std::string::npos ? "./" : name.substr(0, stroke + 1);
}

// A hidden name in the same folder, for what is to take the place of the file.
std::string besideOf(const std::string& name) {
    const std::string folder = folderOf(name);
    const std::string bare = name.substr(name.rfind('/') + 1);
    return folder + '.' + bare + ".new";
}

// Gives `file` the access rights of the former one, and the bytes that stand behind its own end there.
void keepRest(const Descriptor& former, const Descriptor& file) {
    struct stat status;
    checked([&] { return ::fstat(former.number(), &status); });
    checked([&] { return ::fchmod(file.number(), status.st_mode & 07777); });
    std::array<char, 65536> buffer;
    for (off_t at = sizeOf(file); at < status.st_size;) {
        const auto read = checked([&] { return ::pread(former.number(), buffer.data(), buffer.size(), at); });
        if (read == 0) break;
        const std::string_view piece(buffer.data(), static_cast<std::size_t>(read));
        writeAll(file, std::span(&piece, 1));
        at += read;
    }
}

// The file that is to be exchanged, if there is one; it must be a normal one that may be written.
std::optional<Descriptor> openFormer(int programFolder, const std::string& name) {
    try {
        Descriptor former(openFile(programFolder, name, O_RDWR));
        struct stat status;
        checked([&] { return ::fstat(former.number(), &status); });
        if (!S_ISREG(status.st_mode)) throw FileFailure(FileTrouble::access);
        return former;
    } catch (const FileFailure& failure) {
        if (failure.trouble() != FileTrouble::missing) throw;
        return std::nullopt;
    }
}

// The name that symbolic links lead to. A circle of them ends, and fails when it is opened.
std::string behindLinks(int programFolder, std::string name) {
    constexpr int mostLinks = 40;
    std::array<char, PATH_MAX> target;
    for (int i = 0; i < mostLinks; ++i) {
        const auto length = ::readlinkat(programFolder, name.c_str(), target.data(), target.size());
        if (length < 0) break;
        const std::string_view link(target.data(), static_cast<std::size_t>(length));
        name = (link.starts_with('/') ? "" : folderOf(name)) + std::string(link);
    }
    return name;
}

}  // namespace

void exchangeFile(int programFolder, const std::string& name, std::span<const std::string_view> pieces) {
    const std::string target = behindLinks(programFolder, name);
    const std::string beside = besideOf(target);
    const std::optional<Descriptor> former = openFormer(programFolder, target);
    ::unlinkat(programFolder, beside.c_str(), 0);  // left behind by a kill
    try {
        Descriptor file(openFile(programFolder, beside, O_WRONLY | O_CREAT | O_EXCL));
        writeAll(file, pieces);
        if (former) keepRest(*former, file);
        checked([&] { return ::fsync(file.number()); });
        file.close();
        checked([&] { return ::renameat(programFolder, beside.c_str(), programFolder, target.c_str()); });
    } catch (const FileFailure&) {
        ::unlinkat(programFolder, beside.c_str(), 0);
        throw;
    }
    const Descriptor folder(
        ::openat(programFolder, folderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.number() >= 0)
        ::fsync(folder.number());  // one that may not be read is told of it in its own time
}

}  // namespace zifferon
