#include "Fuzz.h"

#include "common/RunTimeError.h"
#include "settings/Margins.h"
#include "settings/ProgramSettings.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const int margin = obrin::MarginOf(Text(data, size));
    Require(margin >= obrin::smallestMargin && margin <= obrin::largestMargin);
    try {
        const auto loaded = obrin::ParseSettings(Text(data, size), "CSBackup.ini");
        // What was read is read again after it has been saved, line ends in values aside.
        obrin::SettingValues values;
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = loaded[i].value_or("");
        const auto again = obrin::ParseSettings(obrin::FormatSettings(values), "CSBackup.ini");
        for (std::size_t i = 0; i < values.size(); ++i)
            Require(again[i] == values[i]);
    } catch (const obrin::RunTimeError&) {
    }
    return 0;
}
