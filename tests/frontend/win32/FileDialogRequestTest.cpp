// What the system is asked for when it is to show a file dialog: some of that shows only where
// there is a history of documents.

#include "frontend/win32/Win32Toolkit.h"
#include "panel/files/PhoneFileUploadTemplate.h"
#include "tests/frontend/conformance/RecordingHandler.h"
#include "tests/frontend/win32/HostWindow.h"

#include <gtest/gtest.h>

#include <cstring>
#include <optional>

namespace win32tests {

namespace {

/// Puts a function of ours in the place of one of the system's as long as it lives.
class CReplacedFunction {
public:
    CReplacedFunction(const char* name, void* replacement)
        : m_code(reinterpret_cast<unsigned char*>(
              GetProcAddress(GetModuleHandleW(L"comdlg32.dll"), name))) {
        VirtualProtect(m_code, sizeof m_saved, PAGE_EXECUTE_READWRITE, &m_protection);
        std::memcpy(m_saved, m_code, sizeof m_saved);
        std::memcpy(m_code, kMove.data(), kMove.size());
        std::memcpy(m_code + kMove.size(), &replacement, sizeof replacement);
        std::memcpy(m_code + kMove.size() + sizeof replacement, kJump.data(), kJump.size());
        FlushInstructionCache(GetCurrentProcess(), m_code, sizeof m_saved);
    }
    ~CReplacedFunction() {
        std::memcpy(m_code, m_saved, sizeof m_saved);
        VirtualProtect(m_code, sizeof m_saved, m_protection, &m_protection);
        FlushInstructionCache(GetCurrentProcess(), m_code, sizeof m_saved);
    }
    CReplacedFunction(const CReplacedFunction&) = delete;
    CReplacedFunction& operator=(const CReplacedFunction&) = delete;

private:
    // mov (r|e)ax, address; jmp (r|e)ax.
    static constexpr std::string_view kMove = sizeof(void*) == 8 ? "\x48\xB8" : "\xB8";
    static constexpr std::string_view kJump = "\xFF\xE0";

    unsigned char* const m_code;
    unsigned char m_saved[kMove.size() + sizeof(void*) + kJump.size()] = {};
    DWORD m_protection = 0;
};

struct Request {
    HWND owner = nullptr;
    DWORD flags = 0;
    DWORD firstFilter = 0;
    bool hasTitle = true;
    bool hasFolder = true;
    std::wstring name;
    std::wstring extension;
};

std::optional<Request> g_request;

BOOL WINAPI NoteAndCancel(LPOPENFILENAMEW asked) {
    g_request = Request{asked->hwndOwner,
                        asked->Flags,
                        asked->nFilterIndex,
                        asked->lpstrTitle != nullptr,
                        asked->lpstrInitialDir != nullptr,
                        asked->lpstrFile,
                        asked->lpstrDefExt ? asked->lpstrDefExt : L""};
    return FALSE;
}

/// Takes every file.
class CWillingHandler final : public panel::IFileDialogHandler {
public:
    void OnInit(panel::IView&) override {}
    void OnCommand(panel::ControlId) override {}
    bool OnFileAccepted() override { return true; }
};

class FileDialogRequestTest : public testing::Test {
protected:
    void SetUp() override { g_request.reset(); }

    Request Open(const panel::FileDialog& dialog) {
        const CReplacedFunction replaced("GetOpenFileNameW",
                                         reinterpret_cast<void*>(&NoteAndCancel));
        m_toolkit.OpenFile(dialog);
        return g_request.value();
    }
    Request Save(const panel::FileDialog& dialog) {
        const CReplacedFunction replaced("GetSaveFileNameW",
                                         reinterpret_cast<void*>(&NoteAndCancel));
        m_toolkit.SaveFile(dialog);
        return g_request.value();
    }

    const CHostWindow m_host;
    win32::CWin32Toolkit m_toolkit;
};

constexpr DWORD kAlways = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_DONTADDTORECENT | OFN_PATHMUSTEXIST;

TEST_F(FileDialogRequestTest, OpenAsksForAFileThatExistsAndLeavesNoHistory) {
    EXPECT_EQ(Open({}).flags, kAlways | OFN_FILEMUSTEXIST);
}

TEST_F(FileDialogRequestTest, SaveAsksForAFolderThatExistsAndReplacesWithoutAQuestion) {
    EXPECT_EQ(Save({}).flags, kAlways);
}

TEST_F(FileDialogRequestTest, OptionsMakeTheDialogResizable) {
    CWillingHandler handler;
    EXPECT_EQ(
        Open({.optionsTemplate = &panel::kPhoneFileUploadTemplate, .optionsHandler = &handler})
            .flags,
        kAlways | OFN_FILEMUSTEXIST | OFN_ENABLETEMPLATEHANDLE | OFN_ENABLEHOOK | OFN_ENABLESIZING);
}

TEST_F(FileDialogRequestTest, FirstFilterIsChosenAndTheRestLeftToTheSystem) {
    const Request request = Open({.filters = {{"Code", "*.bin"}, {"All files", "*.*"}}});
    EXPECT_EQ(request.firstFilter, 1u);
    EXPECT_FALSE(request.hasTitle);
    EXPECT_FALSE(request.hasFolder);
    EXPECT_EQ(request.name, L"");
    EXPECT_EQ(request.extension, L"");
}

TEST_F(FileDialogRequestTest, DefaultExtensionIsItsFirstThreeCharacters) {
    EXPECT_EQ(Open({.defaultExtension = "Fpga files (*.bin)|*.bin|"}).extension, L"Fpg");
}

TEST_F(FileDialogRequestTest, PanelsDialogBelongsToTheWindowThatHoldsThePanel) {
    constexpr panel::DialogTemplate kTemplate{300, "", {120, 150}, {}};
    conformance::CRecordingHandler handler;
    const auto view = m_toolkit.CreateView(kTemplate, m_host.Get(), handler);
    EXPECT_EQ(Open({.owner = panel::Owner::Panel}).owner, m_host.Get());
    EXPECT_EQ(Open({.owner = panel::Owner::None}).owner, nullptr);
}

}

}
