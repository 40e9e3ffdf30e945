#pragma once

#include "scanresult.h"

namespace wifiscan {

/// The largest file that is replayed, in bytes.
constexpr std::size_t MaxReplayBytes = std::size_t{16} * 1024 * 1024;

/// The largest scenario. MaxCells lines of at most 255 characters and a closing line take half of
/// it; a reader works on each line, so that a file of endless lines would keep it from its window.
constexpr std::size_t MaxScenarioBytes = std::size_t{64} * 1024;
constexpr int MaxScenarioLines = 256;

/// The kind of a stored file, determined from its contents.
enum class ReplayKind {
    None,     ///< nothing that can be replayed
    Scenario, ///< output of this tool: some line begins "wifiscan: "
    IwText,   ///< output of `iw dev IFACE scan`
    Capture,  ///< frames, in a pcap or pcapng file
};

/// A file that was read for a replay.
struct Replay {
    ReplayKind kind = ReplayKind::None;
    std::string scenario; ///< its bytes
    Heard heard;          ///< in a file of another kind
    std::string problem;  ///< a sentence with the reason if the kind is None; otherwise empty
};

/// Reads the contents of a file. `name` is used only in the sentence.
Replay readContents(std::string contents, const std::string& name);

/// Reads a file for a replay, all of it, so that one for which there is no problem now can be
/// replayed: a regular file of a known kind and size. Never waits, whatever the path names (a pipe,
/// a device).
Replay readReplay(const std::string& path);

/// Replays a file: a scenario byte for byte, with all that is wrong in it, and any other kind
/// as if the kernel had just heard it.
class ReplaySource : public Source {
public:
    explicit ReplaySource(std::string path);

    ScanResult scan() override;

private:
    std::string m_path;
};

} // namespace wifiscan
