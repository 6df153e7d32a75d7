// Tests whether the menu could use files and folders, without changing them.
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
std::optional<Trouble> FindReadTrouble(const std::string& path);

/// Returns the bytes of a file. If it cannot be read, adds a finding about that and returns nothing.
std::optional<std::string> ReadOrAddFinding(Findings& findings, Effect effect, const std::string& path);

/// Returns why a file cannot be written in place; nothing if it can, or if it is missing and would be made.
std::optional<Trouble> FindWriteTrouble(const std::string& path);

/// Returns why a file cannot be deleted; nothing if it can be deleted. The menu replaces only a file that it
/// may delete.
std::optional<Trouble> FindDeleteTrouble(const std::string& path);

/// Returns why a file can neither be replaced by a new one nor be written in place; nothing if it can.
std::optional<Trouble> FindReplaceTrouble(const std::string& path);

/// Returns why Windows cannot start a program; nothing if it can.
std::optional<Trouble> FindStartTrouble(const std::string& path);

/// Returns whether `program` has 32 bits and this program 64, or the reverse.
bool HasOtherBitness(const std::string& program);

/// Returns why no files can be made in a folder, whose name may end with "\"; nothing if they can.
std::optional<Trouble> FindFolderTrouble(const std::string& path);

} // namespace obrin
