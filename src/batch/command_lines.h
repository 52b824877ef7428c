// SPDX-License-Identifier: MIT
// Reads the lines of commands until their end, or until a signal ends the program.
#pragma once

#include <optional>
#include <string>

namespace vanzer::batch {

class CommandLines {
  public:
    /// Two file descriptors: `commands` for the lines, and `ends`, which becomes readable when the program is to end
    /// (-1 for none).
    CommandLines(int commands, int ends) : commands_(commands), ends_(ends) {}

    /// The next line without its line end (LF or CR LF). Nothing at the end of the commands or when the program is to
    /// end.
    [[nodiscard]] std::optional<std::string> next();

  private:
    [[nodiscard]] bool readsMore();

    int commands_;
    int ends_;
    std::string read_;
    std::size_t at_ = 0; ///< offset in bytes of the next line in what was read
    bool ended_ = false;
};

} // namespace vanzer::batch
