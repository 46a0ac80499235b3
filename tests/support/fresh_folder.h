// An empty folder of its own for a test, gone with its owner.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>

namespace zifferon {

class FreshFolder {
  public:
    FreshFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "zifferon-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for the test");
        path_ = name;
    }
    FreshFolder(const FreshFolder&) = delete;
    FreshFolder& operator=(const FreshFolder&) = delete;
    ~FreshFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    std::string path() const { return path_.string(); }
    std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
    bool has(const std::string& name) const { return std::filesystem::exists(path_ / name); }

    // The bytes of a file, read past the program's own way.
    std::string bytes(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    }
    void put(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_ / name, std::ios::binary) << bytes;
    }

  private:
    std::filesystem::path path_;
};

// "08 00 01 00 30" as bytes, and back.
inline std::string fromHex(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); i += 3) {
        bytes += static_cast<char>(std::stoi(text.substr(i, 2), nullptr, 16));
    }
    return bytes;
}
inline std::string toHex(std::string_view bytes) {
    std::ostringstream text;
    text << std::hex << std::uppercase << std::setfill('0');
    for (const char byte : bytes) {
        text << (text.tellp() > 0 ? " " : "") << std::setw(2) << int{static_cast<unsigned char>(byte)};
    }
    return text.str();
}

}  // namespace zifferon
