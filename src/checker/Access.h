// Whether whoever runs the checker may write, found out without writing.
#pragma once

#include <string>

namespace obrin {

/// The platform's reason for which a file that exists cannot be written; empty when it can. The file is
/// opened for writing and closed again, which leaves its contents and times alone.
std::string WhyNotWritable(const std::string& path);

/// The same for a right that is missing to delete a file, and so to put a new one in its place.
std::string WhyNotDeletable(const std::string& path);

/// Whether the file's attribute says so; false for what is not there.
bool IsReadOnly(const std::string& path);

/// The platform's reason for which no file can be made in a folder; empty when one can. The folder is opened
/// for making files in it, and none is made.
std::string WhyNoFilesIn(const std::string& folder);

} // namespace obrin
