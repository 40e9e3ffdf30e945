#pragma once

#define SWUPDATE_EXPORT __attribute__((visibility("default")))

namespace swupdate {

/// Access to the test set's software version.
class SWUPDATE_EXPORT CNetUpdateHelper {
public:
    CNetUpdateHelper();
    virtual ~CNetUpdateHelper();

    /// Copies the software version from the vendor-information file at `path`: the text after
    /// "version=" on the first such line, without outer blanks. Upper and lower case are equal. The
    /// text is cut to `size` bytes, with its terminating NUL. Returns 0. Returns -1 and an empty
    /// text if there is no such line, or if the file cannot be read, is not a regular file or has
    /// more than 64 KiB. With a `size` of 0 writes nothing and returns -1.
    int GetVersion2(const char* path, char* buffer, unsigned int size);
};

} // namespace swupdate
