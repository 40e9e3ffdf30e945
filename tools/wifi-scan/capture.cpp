#include "capture.h"

#include "frame.h"
#include "networks.h"
#include "scanresult.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <pcap/pcap.h>

namespace wifiscan {

namespace {

struct Closer {
    void operator()(pcap_t* capture) const { pcap_close(capture); }
};
using Handle = std::unique_ptr<pcap_t, Closer>;

class Frames {
public:
    // A frame that was captured only in part may lack the elements that tell the method.
    void take(Frame frame, bool isWhole)
    {
        if (frame.kind == Frame::Kind::AccessPoint && !isWhole)
            frame.kind = Frame::Kind::Malformed;
        ++m_counts[frame.kind];
        if (frame.kind != Frame::Kind::AccessPoint)
            return;
        m_malformedElements += frame.malformedElements;
        for (AccessPoint& accessPoint : frame.accessPoints)
            m_networks.add(std::move(accessPoint));
    }

    Heard heard()
    {
        Heard heard;
        heard.accessPoints = m_networks.take();
        heard.malformedElements = m_malformedElements;
        const auto remark = [this, &heard](Frame::Kind kind, const char* text) {
            const auto count = m_counts.find(kind);
            if (count != m_counts.end())
                remarkCount(heard.remarks, count->second, text);
        };
        remark(Frame::Kind::Other, "frame(s) passed over: neither beacon nor probe response");
        remark(Frame::Kind::BadChecksum, "frame(s) left out: damaged on the air (bad checksum)");
        remark(Frame::Kind::Malformed, "frame(s) left out: malformed or cut short");
        return heard;
    }

private:
    Networks m_networks;
    std::map<Frame::Kind, std::size_t> m_counts;
    int m_malformedElements = 0;
};

std::string unfit(int linkType)
{
    const char* const name = pcap_datalink_val_to_name(linkType);
    return "a capture of frames of type " + (name != nullptr ? name : std::to_string(linkType))
        + "; frames with radiotap or PPI heads, or bare IEEE 802.11 ones, are what can be read";
}

} // namespace

bool isCapture(std::string_view contents)
{
    // Microseconds and nanoseconds in both byte orders, and the section head of pcapng.
    static constexpr std::string_view Begins[] = {"\xa1\xb2\xc3\xd4", "\xd4\xc3\xb2\xa1",
        "\xa1\xb2\x3c\x4d", "\x4d\x3c\xb2\xa1", "\x0a\x0d\x0d\x0a"};
    for (const std::string_view begin : Begins) {
        if (contents.substr(0, begin.size()) == begin)
            return true;
    }
    return false;
}

Capture readCapture(std::string_view contents)
{
    // From memory, since the file itself may change meanwhile; opened for reading, it stays as it
    // is.
    std::FILE* const file = ::fmemopen(const_cast<char*>(contents.data()), contents.size(), "rb");
    if (file == nullptr)
        return {{}, std::strerror(errno)};
    char error[PCAP_ERRBUF_SIZE] = "";
    const Handle handle(pcap_fopen_offline(file, error));
    if (!handle) {
        std::fclose(file);
        return {{}, std::string("a capture that cannot be read: ") + error};
    }
    const int linkType = pcap_datalink(handle.get());
    static const std::map<int, FrameHead> Heads = {{DLT_IEEE802_11_RADIO, FrameHead::Radiotap},
        {DLT_PPI, FrameHead::Ppi}, {DLT_IEEE802_11, FrameHead::None}};
    const auto head = Heads.find(linkType);
    if (head == Heads.end())
        return {{}, unfit(linkType)};

    Frames frames;
    pcap_pkthdr* packet = nullptr;
    const u_char* bytes = nullptr;
    int result = 0;
    while ((result = pcap_next_ex(handle.get(), &packet, &bytes)) == 1)
        frames.take(
            readFrame({bytes, packet->caplen}, head->second), packet->caplen >= packet->len);
    Capture capture{frames.heard(), {}};
    if (result != PCAP_ERROR)
        return capture;
    const std::string fault = pcap_geterr(handle.get());
    if (capture.heard.accessPoints.empty())
        return {{}, "no access point before a fault in the capture: " + fault};
    capture.heard.remarks.push_back("the capture was read up to a fault in it: " + fault);
    return capture;
}

} // namespace wifiscan
