#include "platform/headless/faulty_files.h"

namespace zifferon {

void FaultyFiles::failOperation(int n, FileTrouble trouble) {
    operationsToFault_ = n;
    trouble_ = trouble;
}

FileContent FaultyFiles::read(const std::string& name) {
    operation();
    return files_.read(name);
}

FileContent FaultyFiles::readOrCreate(const std::string& name) {
    operation();
    try {
        return files_.read(name);
    } catch (const FileFailure& failure) {
        if (failure.trouble() != FileTrouble::missing) throw;
    }
    growth();
    return files_.readOrCreate(name);
}

void FaultyFiles::write(const std::string& name, std::span<const std::string_view> pieces) {
    operation();
    growth();
    files_.write(name, pieces);
}

void FaultyFiles::exchange(const std::string& name, std::span<const std::string_view> pieces) {
    operation();
    growth();
    files_.exchange(name, pieces);
    if (onExchanged) onExchanged(name);
}

void FaultyFiles::replace(const std::string& name, std::string_view content) {
    operation();
    growth();
    files_.replace(name, content);
}

void FaultyFiles::remove(const std::string& name) {
    operation();
    change();
    files_.remove(name);
}

void FaultyFiles::removeAll(const std::string& folder, const std::string& pattern) {
    operation();
    change();
    files_.removeAll(folder, pattern);
}

void FaultyFiles::createFolder(const std::string& name) {
    operation();
    growth();
    files_.createFolder(name);
}

std::chrono::system_clock::time_point FaultyFiles::lastModified(const std::string& name) {
    operation();
    return files_.lastModified(name);
}

std::vector<std::string> FaultyFiles::list(const std::string& folder, const std::string& pattern) {
    operation();
    return files_.list(folder, pattern);
}

void FaultyFiles::operation() {
    if (operationsToFault_ > 0 && --operationsToFault_ == 0) throw FileFailure(trouble_);
}

void FaultyFiles::change() {
    if (!writable_) throw FileFailure(FileTrouble::access);
}

void FaultyFiles::growth() {
    change();
    if (diskFull_) throw FileFailure(FileTrouble::noSpace);
}

}  // namespace zifferon
