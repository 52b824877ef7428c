// The lines of commands as they come in, until a signal wants the program to end.
#pragma once

#include <optional>
#include <string>

namespace vanzer::batch {

class CommandLines {
  public:
    /// File descriptors: of the commands, and one that can be read when the program is to end (-1 for none).
    CommandLines(int commands, int ends) : commands_(commands), ends_(ends) {}

    /// The next line without its end, LF or CR LF; nothing at the end of the commands, or of the program.
    [[nodiscard]] std::optional<std::string> next();

  private:
    [[nodiscard]] bool readsMore();

    int commands_;
    int ends_;
    std::string read_;
    std::size_t at_ = 0; ///< in what was read: the begin of the next line
    bool ended_ = false;
};

} // namespace vanzer::batch
