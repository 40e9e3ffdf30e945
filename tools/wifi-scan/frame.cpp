#include "frame.h"

#include "multiplebssid.h"

namespace wifiscan {

namespace {

// The fields of a radiotap head up to the last one of use, in the order of their bits. Each begins
// on a multiple of its alignment, counted from the head's begin.
struct RadiotapField {
    std::size_t size;
    std::size_t alignment;
};
enum RadiotapBit { FlagsBit = 1, ChannelBit = 3, SignalBit = 5, NoiseBit = 6, EndBit = 7 };
constexpr RadiotapField RadiotapFields[EndBit] = {
    {8, 8}, {1, 1}, {1, 1}, {4, 2}, {2, 2}, {1, 1}, {1, 1}};
constexpr std::size_t RadiotapHeadSize = 8;
constexpr std::uint32_t MoreBits = 1u << 31; // another word of them follows

constexpr unsigned EndsInChecksum = 0x10; // in its field of flags
constexpr unsigned ChecksumIsBad = 0x40;
constexpr std::size_t ChecksumSize = 4;

constexpr std::size_t PpiHeadSize = 8;
constexpr std::uint32_t PpiFrames = 105; // the link type of bare IEEE 802.11 frames
constexpr unsigned PpiCommonField = 2;

// Frame control (IEEE 802.11-2020, 9.2.4.1): version, type and subtype.
constexpr unsigned KindMask = 0xff;
constexpr unsigned ProbeResponse = 0x50;
constexpr unsigned Beacon = 0x80;
constexpr unsigned MoreFragments = 0x0400;
constexpr unsigned HasHtControl = 0x8000;

struct Reception {
    unsigned flags = 0;
    int frequencyMhz = 0; // 0 when unknown
    Signal signal;
    std::optional<int> noiseDbm;
};

int signedByte(ByteCursor field)
{
    return static_cast<std::int8_t>(field.u8());
}

void takeField(int bit, ByteCursor field, Reception& reception)
{
    if (bit == FlagsBit) {
        reception.flags = field.u8();
    } else if (bit == ChannelBit) {
        reception.frequencyMhz = field.u16LittleEndian();
    } else if (bit == SignalBit) {
        reception.signal = {Signal::Unit::Mbm, signedByte(field) * 100};
    } else if (bit == NoiseBit) {
        const int dbm = signedByte(field);
        if (dbm < 0)
            reception.noiseDbm = dbm;
    }
}

// Passes a radiotap head. False when it is not whole.
bool takeRadiotap(ByteCursor& bytes, Reception& reception)
{
    const std::uint8_t version = bytes.u8();
    bytes.skip(1);
    const std::size_t length = bytes.u16LittleEndian(); // of the whole head
    const std::uint32_t present = bytes.u32LittleEndian();
    if (!bytes.ok() || version != 0 || length < RadiotapHeadSize)
        return false;
    ByteCursor fields = bytes.take(length - RadiotapHeadSize);
    for (std::uint32_t word = present; (word & MoreBits) != 0;)
        word = fields.u32LittleEndian(); // of further antennas
    for (int bit = 0; bit < EndBit; ++bit) {
        if ((present & 1u << bit) == 0)
            continue;
        const RadiotapField& field = RadiotapFields[bit];
        const std::size_t offset = length - fields.remaining();
        fields.skip((field.alignment - offset % field.alignment) % field.alignment);
        takeField(bit, fields.take(field.size), reception);
    }
    return bytes.ok() && fields.ok();
}

// Passes a head of the PPI kind: its length, the kind of frame that follows, and fields, of which
// the one for all 802.11 frames has the figures.
bool takePpi(ByteCursor& bytes, Reception& reception)
{
    const std::uint8_t version = bytes.u8();
    bytes.skip(1);
    const std::size_t length = bytes.u16LittleEndian(); // of the whole head
    const std::uint32_t linkType = bytes.u32LittleEndian();
    if (version != 0 || length < PpiHeadSize || linkType != PpiFrames)
        return false;
    ByteCursor fields = bytes.take(length - PpiHeadSize);
    while (fields.remaining() > 0) {
        const unsigned type = fields.u16LittleEndian();
        ByteCursor field = fields.take(fields.u16LittleEndian());
        if (type != PpiCommonField)
            continue;
        field.skip(8); // timestamp
        const unsigned flags = field.u16LittleEndian();
        field.skip(2); // rate
        reception.flags =
            ((flags & 1) != 0 ? EndsInChecksum : 0) | ((flags & 4) != 0 ? ChecksumIsBad : 0);
        takeField(ChannelBit, field.take(4), reception);
        field.skip(2); // hopping
        takeField(SignalBit, field.take(1), reception);
        takeField(NoiseBit, field.take(1), reception);
        if (!field.ok())
            return false;
    }
    return bytes.ok() && fields.ok();
}

bool takeHead(FrameHead head, ByteCursor& bytes, Reception& reception)
{
    switch (head) {
    case FrameHead::Radiotap:
        return takeRadiotap(bytes, reception);
    case FrameHead::Ppi:
        return takePpi(bytes, reception);
    case FrameHead::None:
        break;
    }
    return true;
}

// Reads a beacon or a probe response after its frame control field (9.3.3.1).
bool readBody(ByteCursor bytes, unsigned control, const Reception& reception, Frame& frame)
{
    AccessPoint accessPoint;
    accessPoint.signal = reception.signal;
    accessPoint.noiseDbm = reception.noiseDbm;
    bytes.skip(2 + 6 + 6); // duration, receiver, sender
    bytes.copy(accessPoint.address.data(), accessPoint.address.size());
    const unsigned fragment = bytes.u16LittleEndian() & 0xf;
    if ((control & HasHtControl) != 0)
        bytes.skip(4);
    bytes.skip(8 + 2); // timestamp, interval
    const unsigned capability = bytes.u16LittleEndian();
    if (!bytes.ok() || fragment != 0 || (control & MoreFragments) != 0)
        return false;

    const Elements elements = readElements(bytes);
    frame.malformedElements = elements.malformed;
    if (!describeNetwork(reception.frequencyMhz, capability, elements, accessPoint))
        return false;
    frame.accessPoints.push_back(accessPoint);
    frame.malformedElements +=
        addNontransmitted(bytes, capability, reception.frequencyMhz, frame.accessPoints);
    return true;
}

} // namespace

Frame readFrame(ByteCursor bytes, FrameHead head)
{
    Frame frame;
    Reception reception;
    if (!takeHead(head, bytes, reception)) {
        frame.kind = Frame::Kind::Malformed;
        return frame;
    }
    if ((reception.flags & ChecksumIsBad) != 0) {
        frame.kind = Frame::Kind::BadChecksum;
        return frame;
    }
    if ((reception.flags & EndsInChecksum) != 0 && bytes.remaining() >= ChecksumSize)
        bytes = bytes.take(bytes.remaining() - ChecksumSize);
    const unsigned control = bytes.u16LittleEndian();
    const unsigned kind = control & KindMask;
    if (bytes.ok() && kind != Beacon && kind != ProbeResponse)
        return frame;
    frame.kind = readBody(bytes, control, reception, frame) ? Frame::Kind::AccessPoint
                                                            : Frame::Kind::Malformed;
    return frame;
}

} // namespace wifiscan
