// Checks that settings survive saving and loading, and that every text gives a margin in the slider's range.
#include "Fuzz.h"

#include "common/RunTimeError.h"
#include "settings/Margins.h"
#include "settings/ProgramSettings.h"

static void RequireToSurviveSaving(std::string_view file) {
    const auto loaded = obrin::ParseSettings(file, "CSBackup.ini");
    obrin::SettingValues values;
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = loaded[i].value_or("");
    const auto again = obrin::ParseSettings(obrin::FormatSettings(values), "CSBackup.ini");
    for (std::size_t i = 0; i < values.size(); ++i)
        Require(again[i] == values[i]);
}

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto text = Text(data, size);
    const int margin = obrin::ParseMargin(text);
    Require(margin >= obrin::smallestMargin);
    Require(margin <= obrin::largestMargin);
    try {
        RequireToSurviveSaving(text);
    } catch (const obrin::RunTimeError&) {
        // a line without "=": the menu does not load such a file
    }
    return 0;
}
