// Finds out the workstation number of the Windows user.
#pragma once

#include "platform/WindowsApi.h"

#include <cstdint>
#include <string>

namespace obrin {

/// Returns the user's number from "UserWSID.sys". If there is none, asks until the answer is valid and stores
/// it there. If the user closes `menu` first, the result has no meaning. Throws RunTimeError.
std::int16_t EstablishIdentity(HWND menu, const std::string& loginName);

/// Returns a label like "User - anna".
std::string UserCaption(const std::string& loginName);

/// Returns a label like "WSID - 05".
std::string WsidCaption(std::int16_t wsid);

} // namespace obrin
