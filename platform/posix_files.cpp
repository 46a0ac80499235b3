#include "platform/posix_files.h"

#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <utility>

#include "platform/file_exchange.h"

namespace zifferon {

namespace {

constexpr off_t largestFile = off_t{1} << 30;  // more is no file of this program
constexpr mode_t newFolder = 0777;             // less what the user's mask takes away

std::string_view trimmed(std::string_view name) {
    const std::size_t first = name.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return name.substr(first, name.find_last_not_of(' ') - first + 1);
}

// Gets the room for what is longer than the file before the first of its bytes is overwritten. A new file has
// nothing to lose.
void reserve(const Descriptor& file, std::span<const std::string_view> pieces) {
    const off_t size = sizeOf(file);
    off_t wanted = 0;
    for (const std::string_view piece : pieces) wanted += static_cast<off_t>(piece.size());
    if (size == 0 || wanted <= size) return;
    const int error = ::posix_fallocate(file.number(), size, wanted - size);
    if (troubleOf(error) != FileTrouble::noSpace) return;  // not every file system can tell beforehand
    checked([&] { return ::ftruncate(file.number(), size); });
    throw FileFailure(FileTrouble::noSpace);
}

struct FolderCloser {
    void operator()(DIR* folder) const { ::closedir(folder); }
};
using Folder = std::unique_ptr<DIR, FolderCloser>;

Folder openFolder(int descriptor) {
    Descriptor owned(descriptor);
    Folder folder(::fdopendir(owned.number()));
    if (!folder) fail();
    owned.release();
    return folder;
}

// The names in a folder that match the pattern, without the hidden ones.
std::vector<std::string> matchingNames(DIR& folder, const std::string& pattern) {
    std::vector<std::string> names;
    while (const dirent* entry = ::readdir(&folder)) {
        if (::fnmatch(pattern.c_str(), entry->d_name, FNM_PERIOD) == 0) names.emplace_back(entry->d_name);
    }
    return names;
}

bool isNormalFile(int folder, const std::string& name) {
    struct stat status;
    return ::fstatat(folder, name.c_str(), &status, 0) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

// The folder need not be readable itself. One that cannot be entered has no files.
PosixFiles::PosixFiles(const std::string& programFolder)
    : folder_(::open(programFolder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)) {}

bool PosixFiles::FileExists(std::string_view name) {
    const std::string file(trimmed(name));
    const std::size_t bare = file.rfind('/') + 1;
    return bare < file.size() && file[bare] != '.' && isNormalFile(folder_.number(), file);
}

bool PosixFiles::isFile(const std::string& name) { return isNormalFile(folder_.number(), name); }

FileContent PosixFiles::read(const std::string& name) { return readAll(Descriptor(open(name, O_RDONLY))); }

FileContent PosixFiles::readOrCreate(const std::string& name) {
    try {
        return read(name);
    } catch (const FileFailure& failure) {
        if (failure.trouble() != FileTrouble::missing) throw;
    }
    return readAll(Descriptor(open(name, O_RDWR | O_CREAT)));
}

void PosixFiles::write(const std::string& name, std::span<const std::string_view> pieces) {
    Descriptor file(open(name, O_WRONLY | O_CREAT));
    reserve(file, pieces);
    writeAll(file, pieces);
    file.close();
}

void PosixFiles::exchange(const std::string& name, std::span<const std::string_view> pieces) {
    exchangeFile(folder_.number(), name, pieces);
}

void PosixFiles::replace(const std::string& name, std::string_view content) {
    Descriptor file(open(name, O_WRONLY | O_CREAT | O_TRUNC));
    writeAll(file, std::span(&content, 1));
    file.close();
}

void PosixFiles::remove(const std::string& name) {
    checked([&] { return ::unlinkat(folder_.number(), name.c_str(), 0); });
}

void PosixFiles::removeAll(const std::string& folder, const std::string& pattern) {
    if (folder == ".." || folder.find('/') != std::string::npos) throw FileFailure(FileTrouble::access);
    const Folder opened = openFolder(open(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW));
    std::optional<FileTrouble> first;
    for (const std::string& name : matchingNames(*opened, pattern)) {
        if (::unlinkat(::dirfd(opened.get()), name.c_str(), 0) != 0 && !first) first = troubleOf(errno);
    }
    if (first) throw FileFailure(*first);
}

void PosixFiles::createFolder(const std::string& name) {
    if (::mkdirat(folder_.number(), name.c_str(), newFolder) == 0) return;
    const int error = errno;
    struct stat status;
    if (::fstatat(folder_.number(), name.c_str(), &status, 0) == 0 && S_ISDIR(status.st_mode)) return;
    throw FileFailure(error == EEXIST ? FileTrouble::access : troubleOf(error));
}

std::chrono::system_clock::time_point PosixFiles::lastModified(const std::string& name) {
    struct stat status;
    checked([&] { return ::fstatat(folder_.number(), name.c_str(), &status, 0); });
    const auto sinceEpoch =
        std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
    return std::chrono::system_clock::time_point(sinceEpoch);
}

void PosixFiles::stamp(const std::string& name, std::chrono::system_clock::time_point written) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(written);
    const timespec time{seconds.time_since_epoch().count(),
                        std::chrono::nanoseconds(written - seconds).count()};
    const timespec times[] = {time, time};
    checked([&] { return ::utimensat(folder_.number(), name.c_str(), times, 0); });
}

std::vector<std::string> PosixFiles::list(const std::string& folder, const std::string& pattern) {
    const Folder opened = openFolder(open(folder, O_RDONLY | O_DIRECTORY));
    std::vector<std::string> names = matchingNames(*opened, pattern);
    std::erase_if(names, [&](const std::string& name) { return !isNormalFile(::dirfd(opened.get()), name); });
    std::sort(names.begin(), names.end());
    return names;
}

int PosixFiles::open(const std::string& name, int flags) { return openFile(folder_.number(), name, flags); }

FileContent PosixFiles::readAll(const Descriptor& file) {
    const off_t end = checked([&] { return ::lseek(file.number(), 0, SEEK_END); });
    if (end > largestFile) throw FileFailure(FileTrouble::other);
    FileContent content(static_cast<std::size_t>(end));
    std::size_t done = 0;
    while (done < content.size()) {
        const auto more = static_cast<std::size_t>(checked([&] {
            return ::pread(file.number(), content.data() + done, content.size() - done,
                           static_cast<off_t>(done));
        }));
        if (more == 0) break;
        done += more;
    }
    content.shorten(done);
    return content;
}

}  // namespace zifferon
