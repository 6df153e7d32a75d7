// The size of the program as it is delivered: it starts from a share.

#include "Measurements.h"
#include "Program.h"

#include "platform/Failure.h"

namespace obrin::bench {

std::vector<Row> MeasureSize() {
    const std::string file = OwnFolder() + "ObrinMenu.exe";
    WIN32_FILE_ATTRIBUTE_DATA data;
    if (!GetFileAttributesExA(file.c_str(), GetFileExInfoStandard, &data))
        ThrowLastError("Reading the size of " + file);
    return {Within("size of ObrinMenu.exe", "bytes", data.nFileSizeLow, 300 * 1024)};
}

} // namespace obrin::bench
