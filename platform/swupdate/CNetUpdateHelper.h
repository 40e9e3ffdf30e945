#pragma once

#define SWUPDATE_EXPORT __attribute__((visibility("default")))

namespace swupdate {

/// Reads what the test set's update service knows of the installed software.
class SWUPDATE_EXPORT CNetUpdateHelper {
public:
    CNetUpdateHelper();
    virtual ~CNetUpdateHelper();

    /// Copies the software version out of the vendor-information file at `path`: the text behind
    /// "version=" on the first such line, in either case of letters, without outer blanks. It is
    /// cut to `size` bytes with its terminating NUL. Returns 0, or -1 when there is no such file or
    /// line; `buffer` then holds an empty text. So does a file that is not a regular one or has
    /// more than 64 KiB, which is not read. A `size` of 0 writes nothing and returns -1.
    int GetVersion2(const char* path, char* buffer, unsigned int size);
};

} // namespace swupdate
