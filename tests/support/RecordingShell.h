// Replaces ShellExecute in a test program. A document is only recorded. The host is not started, because it
// would outlive the test and keep its output open.
#pragma once

#include <string>
#include <vector>

namespace obrin::test {

/// Returns the documents that have been opened since the last call.
std::vector<std::string> TakeOpenedDocuments();

} // namespace obrin::test
