// SPDX-License-Identifier: MIT
#include "batch/command_lines.h"

#include <array>
#include <cerrno>

#include <poll.h>
#include <unistd.h>

namespace vanzer::batch {

/// Reads more bytes. False at the end of the commands or when the program is to end.
bool CommandLines::readsMore() {
    std::array<pollfd, 2> waiting{pollfd{commands_, POLLIN, 0}, pollfd{ends_, POLLIN, 0}};
    if (::poll(waiting.data(), waiting.size(), -1) < 0)
        return errno == EINTR;
    if (waiting[1].revents != 0)
        return false;
    std::array<char, 65536> bytes{};
    const ssize_t count = ::read(commands_, bytes.data(), bytes.size());
    if (count < 0)
        return errno == EINTR || errno == EAGAIN;
    read_.erase(0, at_);
    at_ = 0;
    read_.append(bytes.data(), static_cast<std::size_t>(count));
    return count > 0;
}

std::optional<std::string> CommandLines::next() {
    std::size_t end = read_.find('\n', at_);
    for (std::size_t seen = read_.size() - at_; end == std::string::npos && !ended_; seen = read_.size() - at_) {
        ended_ = !readsMore();
        end = read_.find('\n', at_ + seen);
    }
    if (end == std::string::npos && at_ == read_.size())
        return std::nullopt;
    std::string line = read_.substr(at_, end - at_);
    at_ = end == std::string::npos ? read_.size() : end + 1;
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

} // namespace vanzer::batch
