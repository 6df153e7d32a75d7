#include "startup/WorkstationIdentity.h"

#include "common/Installation.h"
#include "common/Numbers.h"
#include "common/Text.h"
#include "controls/InputBox.h"
#include "platform/Events.h"
#include "platform/File.h"
#include "startup/UserRecords.h"

namespace obrin {

namespace {

std::string AskForWsid(HWND menu, const std::string& loginName) {
    const std::string prompt =
        "Hello " + loginName +
        ", we have detected this is your first entry into Obrin what would you like your "
        "WSID Number to be?\r\n\r\n(Valid Answers are 1 to 99)";
    return InputBox(menu, prompt, "Please Select a WSID");
}

} // namespace

std::int16_t EstablishIdentity(HWND menu, const std::string& loginName) {
    File users(userRecordsFile, File::Use::ReadWrite);
    auto [wsid, recordsRead] = ScanUserRecords(users.ReadToEnd(), loginName);
    const std::string user(TrimBlanks(loginName));

    while (wsid == 0 && IsWindow(menu)) {
        if (const auto answer = ParseWsidAnswer(AskForWsid(menu, user))) {
            wsid = *answer;
            users.Seek(recordsRead * userRecordSlot);
            users.Write(UserWsidRecord(user, wsid));
            users.Flush();
            users.Close();
        } else if (IsWindow(menu)) {
            // After an invalid answer the user is asked twice, and only the second answer counts.
            AskForWsid(menu, user);
        }
    }
    // A damaged record can hold a negative number. The menu then waits until it is closed.
    if (wsid < 0)
        WaitUntil(menu, [] { return false; });
    return wsid;
}

std::string UserCaption(const std::string& loginName) {
    return "User - " + std::string(TrimBlanks(loginName));
}

std::string WsidCaption(std::int16_t wsid) {
    return "WSID - " + PaddedDecimal(wsid, 2);
}

} // namespace obrin
