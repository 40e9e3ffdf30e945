#pragma once

#include "report.h"

#include <string_view>

namespace wifiscan {

/// The largest file that is replayed, in bytes.
constexpr std::size_t LargestReplay = std::size_t{1024} * 1024;

/// What a kept file holds, told from its contents.
enum class ReplayKind {
    None,     ///< nothing that can be replayed
    Scenario, ///< output of this tool: some line begins "wifiscan: "
    IwText,   ///< output of `iw dev IFACE scan`
};

ReplayKind kindOf(std::string_view contents);

/// A file that was read for a replay.
struct Replay {
    ReplayKind kind = ReplayKind::None;
    std::string contents;
    std::string problem; ///< one sentence on why the kind is None; empty otherwise
};

/// Reads a file for a replay: a regular file of at most LargestReplay bytes and of a known kind.
/// Never waits, whatever the path names (a pipe, a device).
Replay readReplay(const std::string& path);

/// Replays a file: a scenario byte for byte, with all that is wrong in it, and a text of iw as if
/// the kernel had just heard it.
class ReplaySource : public Source {
public:
    explicit ReplaySource(std::string path);

    Report scan() override;

private:
    std::string m_path;
};

} // namespace wifiscan
