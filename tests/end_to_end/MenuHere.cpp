#include "end_to_end/MenuHere.h"

#include "platform/Events.h"

namespace obrin::test {

namespace {

Lines documents;

// In the place of ShellExecuteA for what this process opens: programs are started, documents only noted.
HINSTANCE WINAPI OpenHere(HWND, const char*, const char* file, const char* parameters, const char*,
                          int show) {
    EXPECT_EQ(show, SW_SHOWNORMAL);
    if (parameters != nullptr)
        Start(std::filesystem::current_path() / file, parameters);
    else
        documents.emplace_back(file);
    return reinterpret_cast<HINSTANCE>(INT_PTR{42});
}

} // namespace

extern "C" {
#ifdef _WIN64
decltype(&ShellExecuteA) imported __asm__("__imp_ShellExecuteA") = OpenHere;
#else
decltype(&ShellExecuteA) imported __asm__("__imp__ShellExecuteA@24") = OpenHere;
#endif
}

MenuHere::MenuHere() {
    documents.clear();
    WriteFileBytes("UB.mnu", "Water && Waste\r\nBackup^Core\\Programs\\CSBackup\r\n");
    WriteFileBytes("Startup.bmp", Bmp(120, 90));
    menu.Show();
    window = menu.Window();
    frame = Control(IDC_FRAME1);
    tree = GetDlgItem(frame, IDC_TREEVIEW1);
    button = GetDlgItem(frame, IDC_COMMAND1);
    title = Control(IDC_LABEL1);
    picture = Control(IDC_IMAGE1);
    user = Control(IDC_LABEL2);
    number = Control(IDC_LABEL3);
    idea = Control(IDC_LABEL4);
    link = Control(IDC_LABEL5);
}

MenuHere::~MenuHere() {
    SendMessageA(window, WM_CLOSE, 0, 0);
    RunEvents(); // up to the end that the closed window has asked for
}

const Lines& MenuHere::OpenedDocuments() {
    return documents;
}

} // namespace obrin::test
