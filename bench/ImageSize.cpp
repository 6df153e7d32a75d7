// The size of the program as it is delivered: it starts from a share.

#include "Measurements.h"
#include "Program.h"

#include "platform/Workstation.h"

#include <filesystem>

namespace obrin::bench {

std::vector<Row> MeasureSize() {
    const auto bytes = static_cast<double>(std::filesystem::file_size(OwnFolder() + "ObrinMenu.exe"));
    return {Within("size of ObrinMenu.exe", "bytes", bytes, 300 * 1024)};
}

} // namespace obrin::bench
