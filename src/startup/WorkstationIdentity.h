// The workstation number of the Windows user: remembered in "UserWSID.sys", asked for on first use.
#pragma once

#include "platform/WindowsApi.h"

#include <cstdint>
#include <string>

namespace obrin {

/// The number of this user. Asks for one, again and again, until the answer is valid, and remembers it. When
/// `menu` is closed meanwhile, whatever it returns is of no use. Throws RunTimeError for the file's errors.
std::int16_t EstablishIdentity(HWND menu, const std::string& loginName);

/// The captions that show user and number: "User - anna", "WSID - 05".
std::string UserCaption(const std::string& loginName);
std::string WsidCaption(std::int16_t wsid);

} // namespace obrin
