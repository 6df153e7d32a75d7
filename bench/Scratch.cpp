#include "Scratch.h"

#include "Program.h"

#include "platform/File.h"
#include "platform/Workstation.h"
#include "startup/UserRecords.h"

namespace obrin::bench {

Installation::Installation(const std::string& host) {
    constexpr int entries = 66;
    constexpr int programs = 6;
    CreateDirectoryA("Core", nullptr);
    WriteFileBytes("FennConfig.Sys",
                   "Title Bench\r\nDrive S,C:\\OLD,X,\\\r\n\r\nBuffers 64\r\nFiles 120\r\n");
    WriteFileBytes("UserWSID.sys", UserWsidRecord(LoginName(), wsid));
    WriteFileBytes("Startup.bmp", test::Bmp(200, 140));
    WriteFileBytes("GL.mnu", MenuFileText("General Ledger", entries, programs));
    WriteFileBytes("PR.mnu", MenuFileText("Payroll", entries, programs));
    WriteFileBytes(system, MenuFileText("Utility Billing", entries, programs));
    for (const char* program : {"ObrinMenu.exe", "Corvel.dll", "bare.exe"})
        std::filesystem::copy_file(OwnFolder() + program, program);
    std::filesystem::copy_file(host, "Fenn.exe");
}

std::string MenuFileText(const char* title, int entries, int programs) {
    constexpr int headings = 10;
    std::string text = std::string(title) + "^\r\n";
    for (int entry = 0; entry < entries; ++entry) {
        const std::string number = std::to_string(entry);
        if (programs == 0) {
            text += "Program number " + number + "^UB\\Programs\\Prog" + number + "\r\n";
            continue;
        }
        const int inBranch = entry % (1 + headings * (1 + programs));
        const int inLeaf = (inBranch - 1) % (1 + programs);
        if (inBranch == 0)
            text += "Branch " + number;
        else if (inLeaf == 0)
            text += ">Heading " + number;
        else
            text += ">>Program number " + number + "^UB\\Programs\\Prog" + number;
        text += "\r\n";
    }
    return text;
}

} // namespace obrin::bench
