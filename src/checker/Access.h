// Whether files and folders can be used as the menu uses them, found out without changing them.
#pragma once

#include "checker/Finding.h"

#include <optional>
#include <string>

namespace obrin {

/// Whether a file has that name; also when that cannot be told, as a look at the file itself then will.
bool MayBeFile(const std::string& path);

/// Nothing for a file that can be read.
std::optional<Trouble> ReadTrouble(const std::string& path, const char* remedyIfMissing = "put it there");

/// The bytes of a file; nothing when it cannot be read, and then `findings` has one about that.
std::optional<std::string> ReadOrAdd(Findings& findings, Effect effect, const std::string& path);

/// Nothing for a file that can be written in place, or made: for one that is missing.
std::optional<Trouble> WriteTrouble(const std::string& path);

/// The same for a file that is replaced by a new one: a read-only file is not, whatever its users may do.
std::optional<Trouble> ReplaceTrouble(const std::string& path);

/// Nothing for a file that can be deleted, and so replaced with the old contents kept to the last moment.
std::optional<Trouble> DeleteTrouble(const std::string& path);

/// Nothing for a program that Windows can start.
std::optional<Trouble> StartTrouble(const std::string& path);

/// Nothing for a folder in which files can be made.
std::optional<Trouble> FolderTrouble(const std::string& path);

/// The code of the platform's error; 0 for a folder in which files can be made.
unsigned long ErrorOfNewFilesIn(const std::string& folder);

} // namespace obrin
