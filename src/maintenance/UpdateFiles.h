// The list of executables that the update copies to a workstation.
#pragma once

#include <array>

namespace obrin {

struct UpdateFile {
    const char* source;      ///< relative to the installation folder
    const char* destination; ///< relative to the workstation's local host folder
};

/// All files in the order of copying.
inline constexpr std::array<UpdateFile, 5> updateFiles{{
    {"Tessel\\Exe\\Tessel.Exe", "Tessel.exe"},
    {"Tessel\\Exe\\Sweeper.Exe", "Sweeper.exe"},
    {"Tessel\\Exe\\Notebox.Exe", "Notebox.exe"},
    {"Tessel\\Exe\\ShowAllFenns.Exe", "ShowAllFenns.exe"},
    {"Tessel\\Exe\\Glass.Exe", "Glass.exe"},
}};

} // namespace obrin
