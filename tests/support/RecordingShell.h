// Takes the place of the shell's "open" in a test program: it starts no host, which would stay behind and
// hold the output of the test, and only records documents.
#pragma once

#include <string>
#include <vector>

namespace obrin::test {

/// Returns the documents that have been opened since the last call.
std::vector<std::string> TakeOpenedDocuments();

} // namespace obrin::test
