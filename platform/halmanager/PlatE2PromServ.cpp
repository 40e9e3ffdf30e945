#include "PlatE2PromServ.h"

#include "devicetree.h"
#include "environment.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <sys/stat.h>

namespace halmanager {

namespace {

const int MacBytes = 6;
const std::string::size_type SerialCharacters = 31;

std::string firstLine(const std::string& path)
{
    std::ifstream in(path.c_str());
    std::string line;
    std::getline(in, line);
    return line;
}

/// Reads a text of the form "xx:xx:xx:xx:xx:xx". Returns false for other texts and for the all-zero
/// address; `mac` may be changed then.
bool parseMac(const std::string& text, unsigned char (&mac)[MacBytes])
{
    // sscanf() would accept blanks and a sign before each number.
    if (text.find_first_not_of("0123456789ABCDEFabcdef:") != std::string::npos)
        return false;
    int used = 0;
    const int fields = std::sscanf(text.c_str(), "%2hhx:%2hhx:%2hhx:%2hhx:%2hhx:%2hhx%n", &mac[0],
        &mac[1], &mac[2], &mac[3], &mac[4], &mac[5], &used);
    static const unsigned char zero[MacBytes] = {0, 0, 0, 0, 0, 0};
    return fields == MacBytes && static_cast<std::string::size_type>(used) == text.size()
        && std::memcmp(mac, zero, MacBytes) != 0;
}

bool isWiredEthernet(const std::string& folder)
{
    struct stat info;
    return firstLine(folder + "/type") == "1" // ARPHRD_ETHER
        && stat((folder + "/phy80211").c_str(), &info) != 0
        && stat((folder + "/wireless").c_str(), &info) != 0;
}

/// Names of the machine's network interfaces, sorted so that every call returns the same order.
std::set<std::string> networkInterfaces(const std::string& folder)
{
    std::set<std::string> names;
    if (DIR* const directory = opendir(folder.c_str())) {
        while (const dirent* const entry = readdir(directory))
            names.insert(entry->d_name);
        closedir(directory);
    }
    return names;
}

/// The MAC address of the first wired interface that is hardware; if there is none, of the first
/// wired interface, because all interfaces in a container are virtual.
bool machineMac(unsigned char (&mac)[MacBytes])
{
    const std::string net = "/sys/class/net/";
    const std::set<std::string> names = networkInterfaces(net);
    for (int pass = 0; pass < 2; ++pass) {
        for (const std::string& name : names) {
            struct stat info;
            const bool hardware = stat((net + name + "/device").c_str(), &info) == 0;
            if ((hardware || pass == 1) && isWiredEthernet(net + name)
                && parseMac(firstLine(net + name + "/address"), mac))
                return true;
        }
    }
    return false;
}

/// Path of the EEPROM file with lines "mac=..." and "sn=...", or null. The file replaces the
/// machine's own identity: a field that it lacks cannot be read, as from an empty EEPROM.
const char* imagePath()
{
    const char* const path = std::getenv(environment::Eeprom);
    return path && *path ? path : nullptr;
}

std::string imageField(const char* path, const std::string& key)
{
    std::istringstream in(devicetree::contentOf(path));
    for (std::string line; std::getline(in, line);) {
        if (line.compare(0, key.size() + 1, key + "=") == 0)
            return line.substr(key.size() + 1);
    }
    return std::string();
}

bool readMac(unsigned char (&mac)[MacBytes])
{
    if (const char* const image = imagePath())
        return parseMac(imageField(image, "mac"), mac);
    return machineMac(mac);
}

} // namespace

PlatE2PromServ::PlatE2PromServ() { }

PlatE2PromServ::~PlatE2PromServ() { }

int PlatE2PromServ::ReadMacAddr(char* mac)
{
    unsigned char read[MacBytes];
    if (!readMac(read))
        return -1;
    std::memcpy(mac, read, MacBytes);
    return 0;
}

int PlatE2PromServ::ReadSN(char* serial)
{
    std::string text;
    unsigned char mac[MacBytes];
    if (const char* const image = imagePath()) {
        text = imageField(image, "sn");
    } else if (machineMac(mac)) {
        char made[SerialCharacters + 1];
        std::snprintf(made, sizeof made, "DESK-%02X%02X%02X", mac[3], mac[4], mac[5]);
        text = made;
    }
    if (text.empty())
        return -1;
    text.resize(text.size() < SerialCharacters ? text.size() : SerialCharacters);
    std::memcpy(serial, text.c_str(), text.size() + 1);
    return 0;
}

} // namespace halmanager
