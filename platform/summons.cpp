#include "platform/summons.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace zifferon {

namespace {

constexpr int backlog = 8;
constexpr std::size_t longestToken = 1000;

struct Address {
    explicit Address(const std::string& name) {
        whole.sun_family = AF_UNIX;
        // A leading zero byte: the name of no file.
        std::memcpy(whole.sun_path + 1, name.data(), name.size());
        size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    }
    const sockaddr* data() const { return reinterpret_cast<const sockaddr*>(&whole); }

    sockaddr_un whole{};
    socklen_t size;
};

int newSocket(int flags) { return ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC | flags, 0); }

// A link, or another way to the same folder, is the same name.
std::string nameOf(const std::string& folder) {
    struct stat found {};
    if (::stat(folder.c_str(), &found) != 0) return {};
    return "zifferonpro-" + std::to_string(::getuid()) + '-' + std::to_string(found.st_dev) + '-' +
           std::to_string(found.st_ino);
}

}  // namespace

Summons::Summons(const std::string& folder) : name_(nameOf(folder)) {}

int Summons::listen() {
    if (name_.empty()) return -1;
    const Address address(name_);
    listening_.emplace(newSocket(SOCK_NONBLOCK));
    const int number = listening_->number();
    if (::bind(number, address.data(), address.size) != 0 || ::listen(number, backlog) != 0) {
        listening_.reset();
        return -1;
    }
    return number;
}

std::optional<std::string> Summons::next() {
    if (!listening_) return {};
    caller_.emplace(::accept4(listening_->number(), nullptr, nullptr, SOCK_CLOEXEC));
    std::array<char, longestToken> token;
    const ssize_t size = ::recv(caller_->number(), token.data(), token.size(), MSG_DONTWAIT);
    if (size <= 0) {
        caller_.reset();
        return {};
    }
    return std::string(token.data() + 1, static_cast<std::size_t>(size) - 1);
}

void Summons::answered() {
    if (caller_) ::send(caller_->number(), "", 1, MSG_NOSIGNAL | MSG_DONTWAIT);
    caller_.reset();
}

void Summons::endListening() {
    caller_.reset();
    listening_.reset();
}

bool Summons::call(const std::string& token, int milliseconds) const {
    if (name_.empty()) return false;
    const Address address(name_);
    const Descriptor socket(newSocket(0));
    const timeval longest{milliseconds / 1000, milliseconds % 1000 * 1000L};
    ::setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &longest, sizeof longest);
    // The other side never waits for a caller: who comes too early is sent away and tries again. The first
    // byte says nothing, so that an empty token has one.
    const std::string message = ' ' + token.substr(0, longestToken - 1);
    char answer = 0;
    return ::connect(socket.number(), address.data(), address.size) == 0 &&
           ::send(socket.number(), message.data(), message.size(), MSG_NOSIGNAL) >= 0 &&
           ::recv(socket.number(), &answer, 1, 0) == 1;
}

}  // namespace zifferon
