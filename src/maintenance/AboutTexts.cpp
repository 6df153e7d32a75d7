#include "maintenance/AboutTexts.h"

#include "common/Numbers.h"
#include "version.h"

namespace obrin {

Version ProgramVersion() {
    return {OBRIN_VERSION_MAJOR, OBRIN_VERSION_MINOR, OBRIN_VERSION_REVISION};
}

std::string VersionText(const Version& version) {
    return "Version " + PlainDecimal(version.major) + "." + PlainDecimal(version.minor) + "." +
           PlainDecimal(version.revision);
}

} // namespace obrin
