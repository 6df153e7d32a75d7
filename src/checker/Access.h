// Finds out without a change whether files and folders can be used as the menu uses them.
#pragma once

#include "checker/Finding.h"

#include <optional>
#include <string>

namespace obrin {

/// Returns whether there is a file of that name. Also true if Windows cannot tell: opening it then shows why.
bool MayBeFile(const std::string& path);

/// Returns whether there is neither a file nor a folder of that name.
bool IsMissing(const std::string& path);

/// Returns why a file cannot be read; nothing if it can.
std::optional<Trouble> ReadTrouble(const std::string& path);

/// Returns the bytes of a file. If it cannot be read, adds a finding about that and returns nothing.
std::optional<std::string> ReadOrAdd(Findings& findings, Effect effect, const std::string& path);

/// Returns why a file cannot be written in place; nothing if it can, or if it is missing and would be made.
std::optional<Trouble> WriteTrouble(const std::string& path);

/// Returns why a file cannot be deleted, and so not be replaced by a new one; nothing if it can.
std::optional<Trouble> DeleteTrouble(const std::string& path);

/// Returns why a file can get no new contents, neither as a new file nor in place; nothing if it can.
std::optional<Trouble> ReplaceTrouble(const std::string& path);

/// Returns why Windows cannot start a program; nothing if it can.
std::optional<Trouble> StartTrouble(const std::string& path);

/// Returns whether a program has 32 bits and this one 64, or the other way round.
bool HasOtherBits(const std::string& program);

/// Returns why no files can be made in a folder, whose name may end with "\"; nothing if they can.
std::optional<Trouble> FolderTrouble(const std::string& path);

} // namespace obrin
