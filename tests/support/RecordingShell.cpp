#include "support/RecordingShell.h"

#include "platform/WindowsApi.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

std::vector<std::string> documents;

HINSTANCE WINAPI Record(HWND, LPCSTR, LPCSTR file, LPCSTR parameters, LPCSTR, INT show) {
    EXPECT_EQ(show, SW_SHOWNORMAL);
    if (parameters == nullptr) // the host is started with parameters
        documents.emplace_back(file);
    constexpr INT_PTR success = 33;
    return reinterpret_cast<HINSTANCE>(success);
}

} // namespace

// Replaces the pointer through which the program calls the imported function.
extern "C" {
#ifdef _WIN64
decltype(&ShellExecuteA) importedShellExecute __asm__("__imp_ShellExecuteA") = Record;
#else
decltype(&ShellExecuteA) importedShellExecute __asm__("__imp__ShellExecuteA@24") = Record;
#endif
}

namespace obrin::test {

std::vector<std::string> TakeOpenedDocuments() {
    return std::exchange(documents, {});
}

} // namespace obrin::test
