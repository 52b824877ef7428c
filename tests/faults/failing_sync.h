#pragma once

namespace vanzer::faults {

/// While it lives no file, or no folder, is made safe on the disk: the system answers an error each time.
class FailingSync {
  public:
    enum class Of { Files, Folders };
    explicit FailingSync(Of which);
    ~FailingSync();
    FailingSync(const FailingSync&) = delete;
    FailingSync& operator=(const FailingSync&) = delete;
};

} // namespace vanzer::faults
