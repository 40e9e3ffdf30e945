#pragma once

namespace wifiscan {

/// Puts the capability to scan and to bring interfaces up (CAP_NET_ADMIN) in force for the life of
/// the object, if the program has it.
class RaisedPrivilege {
public:
    RaisedPrivilege();
    ~RaisedPrivilege();
    RaisedPrivilege(const RaisedPrivilege&) = delete;
    RaisedPrivilege& operator=(const RaisedPrivilege&) = delete;
};

/// Takes the capability out of force, as root has it in force from the beginning.
void lowerPrivilege();

/// Gives the capability up permanently. Call it before reading data that others wrote.
void dropPrivilege();

} // namespace wifiscan
