#pragma once

#include "accesspoint.h"
#include "bytecursor.h"

namespace wifiscan {

/// One information element (IEEE 802.11-2020, 9.4.2.1).
struct Element {
    std::uint8_t id = 0;
    ByteCursor body;
};

/// Tells elements of different meaning apart: the id, and with it an extension's own id, or a
/// vendor's organisation and type.
using ElementKind = std::uint64_t;

constexpr ElementKind elementKind(std::uint8_t id, std::uint32_t more = 0)
{
    return ElementKind{id} << 32 | more;
}
constexpr ElementKind extensionKind(std::uint8_t own)
{
    return elementKind(255, own);
}

/// Takes the next element off a row. False at the row's end; the row's ok() is false when the
/// element claims more bytes than there are.
bool takeElement(ByteCursor& row, Element& element);

/// HT operation: the primary channel and the one beside it (9.4.2.56).
struct HtOperation {
    int channel = 0;   ///< primary channel; 0 when there is no such element
    int secondary = 0; ///< 1: the second 20 MHz are above it, -1: below, 0: no second channel
    bool wide = false; ///< stations may use both
    int segment = 0;   ///< second centre of a VHT channel, which its own element cannot hold, or 0
};

/// A width as VHT, HE or EHT operation sends it. Its code means something else in each.
struct Segments {
    int code = 0;
    int first = 0;  ///< centres as channel numbers of the band
    int second = 0; ///< 0: no second centre
};

/// The amendments to IEEE 802.11, the newest last.
enum class Amendment { Unknown, B, G, N, Ac, Ax, Be };

/// The contents of the information elements of a beacon or probe response (9.4.2), or of iw's text
/// for them. Missing members are empty or 0.
struct Elements {
    std::string name;   ///< the SSID's raw bytes, 0 to 32
    bool named = false; ///< the SSID stands there, be it empty
    std::string meshId; ///< the name of a mesh, 0 to 32 raw bytes
    int channel = 0;    ///< from the DS parameter set
    HtOperation ht;
    std::optional<Segments> vht; ///< of VHT operation, or of HE operation in its place
    int channel6 = 0;            ///< primary channel on 6 GHz, from HE operation
    Segments he6;                ///< there is such a channel
    std::optional<Segments> eht;
    bool rsn = false;                       ///< an RSN element stands there: WPA2 or newer
    bool wpa = false;                       ///< the vendor element of WPA stands there
    bool osen = false;                      ///< that of Hotspot 2.0's own encryption stands there
    std::vector<std::string> keyManagement; ///< see keyManagementName(), each one once
    Amendment amendment = Amendment::Unknown;
    std::optional<Load> load;
    std::optional<Address> mldAddress; ///< of the multi-link device
    int malformed = 0;                 ///< how many elements could not be read
};

/// Reads a row of elements. One that claims more bytes than there are ends the row, since nothing
/// tells where the next one begins.
Elements readElements(ByteCursor bytes);

/// Reads one element. One of impossible size or contents is counted and passed over. Of several
/// elements of one kind the first whole one holds.
///
/// Malformed contents of an RSN or WPA element cost these, not the fact that it stands there: such
/// a network must not be shown as open.
void readElement(const Element& element, Elements& elements);

ElementKind kindOf(const Element& element);

/// True for elements that are read, and that a network inherits from the one that sends for it
/// (Multiple BSSID) unless it has its own.
bool isInherited(ElementKind kind);

/// "SAE", "FT-802.1X" and so on for a suite of the standard (Table 9-151); for any other one its
/// organisation and type, as "00-0F-AC:99". `organisation` has 24 bits.
std::string keyManagementName(std::uint32_t organisation, unsigned type);

/// Notes a method of key management, unless it is there already.
void addKeyManagement(Elements& elements, const std::string& name);

/// Notes an amendment that the network offers. The newest one stays.
void addAmendment(Elements& elements, Amendment amendment);

} // namespace wifiscan
