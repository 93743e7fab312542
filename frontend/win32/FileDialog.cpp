#include "frontend/win32/FileDialog.h"

#include "frontend/win32/ActivationContext.h"
#include "frontend/win32/Barrier.h"
#include "frontend/win32/DialogResource.h"
#include "frontend/win32/Text.h"

#include <cstring>
#include <utility>

namespace win32 {

namespace {

// As long as a path can be at all: the panel's own, smaller, limit is looked at when one is chosen.
constexpr std::size_t kLongestPath = 32768;
constexpr std::size_t kExtensionLength = 3;
constexpr UINT_PTR kSubclass = 1;

std::wstring JoinFilters(const std::vector<panel::FileFilter>& filters) {
    std::wstring joined;
    for (const panel::FileFilter& filter : filters) {
        joined += ToWide(filter.description) + L'\0';
        joined += (filter.pattern.empty() ? L"*.*" : ToWide(filter.pattern)) + L'\0';
    }
    return joined;
}

LPCWSTR TextOrNull(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

/// Memory as the system's dialog wants a template in.
class CFixedMemory {
public:
    CFixedMemory(const void* bytes, std::size_t size) : m_memory(GlobalAlloc(GMEM_FIXED, size)) {
        if (m_memory) {
            std::memcpy(m_memory, bytes, size);
        }
    }
    ~CFixedMemory() { GlobalFree(m_memory); }
    CFixedMemory(const CFixedMemory&) = delete;
    CFixedMemory& operator=(const CFixedMemory&) = delete;

    HGLOBAL Get() const { return m_memory; }

private:
    HGLOBAL m_memory;
};

class CKeptFolder {
public:
    CKeptFolder() : m_folder(GetCurrentDirectoryW(0, nullptr), L'\0') {
        GetCurrentDirectoryW(static_cast<DWORD>(m_folder.size()), m_folder.data());
    }
    ~CKeptFolder() { SetCurrentDirectoryW(m_folder.c_str()); }
    CKeptFolder(const CKeptFolder&) = delete;
    CKeptFolder& operator=(const CKeptFolder&) = delete;

private:
    std::wstring m_folder;
};

}

CFileDialog::CFileDialog(const panel::FileDialog& dialog, Kind kind,
                         std::shared_ptr<CCursorStack> cursors)
    : m_dialog(dialog),
      m_kind(kind),
      m_cursors(std::move(cursors)),
      m_path(ToWide(dialog.fileName)),
      m_filters(JoinFilters(dialog.filters)),
      m_title(ToWide(dialog.title)),
      m_folder(ToWide(dialog.startFolder)),
      m_extension(ToWide(dialog.defaultExtension).substr(0, kExtensionLength)) {
    m_path.resize(kLongestPath);
}

panel::FileOutcome CFileDialog::Run(HWND owner) {
    const CArrowCursor arrow(m_cursors);
    const CActivationContext context;
    const CKeptFolder folder;
    RegisterControlClasses();
    OPENFILENAMEW request = Request(owner);
    std::optional<CFixedMemory> memory;
    if (m_dialog.optionsTemplate) {
        const CDialogResource resource(*m_dialog.optionsTemplate, WindowKind::Options);
        memory.emplace(resource.Data(), resource.SizeBytes());
        request.hInstance = static_cast<HINSTANCE>(memory->Get());
        request.Flags |= OFN_ENABLETEMPLATEHANDLE | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    }
    const BOOL isChosen =
        m_kind == Kind::Open ? GetOpenFileNameW(&request) : GetSaveFileNameW(&request);
    if (isChosen) {
        return Outcome();
    }
    const auto error = static_cast<int>(CommDlgExtendedError());
    return error == 0 ? panel::FileOutcome::Cancelled() : panel::FileOutcome::Failed(error);
}

OPENFILENAMEW CFileDialog::Request(HWND owner) {
    OPENFILENAMEW request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = TextOrNull(m_filters);
    request.nFilterIndex = 1;
    request.lpstrFile = m_path.data();
    request.nMaxFile = static_cast<DWORD>(m_path.size());
    request.lpstrInitialDir = TextOrNull(m_folder);
    request.lpstrTitle = TextOrNull(m_title);
    request.lpstrDefExt = TextOrNull(m_extension);
    request.lCustData = reinterpret_cast<LPARAM>(this);
    request.lpfnHook = Hook;
    request.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_DONTADDTORECENT | OFN_PATHMUSTEXIST;
    if (m_kind == Kind::Open) {
        request.Flags |= OFN_FILEMUSTEXIST;
    }
    return request;
}

UINT_PTR CALLBACK CFileDialog::Hook(HWND options, UINT message, WPARAM, LPARAM lParam) {
    if (message == WM_INITDIALOG) {
        const auto* const request = reinterpret_cast<const OPENFILENAMEW*>(lParam);
        auto& self = *reinterpret_cast<CFileDialog*>(request->lCustData);
        SetWindowLongPtrW(options, DWLP_USER, request->lCustData);
        Contained([&] { self.MakeOptions(options); });
        return TRUE;
    }
    auto* const self = reinterpret_cast<CFileDialog*>(GetWindowLongPtrW(options, DWLP_USER));
    return message == WM_NOTIFY && self && self->m_options && Contained(false, [&] {
               return self->OnNotification(options, *reinterpret_cast<const NMHDR*>(lParam));
           });
}

void CFileDialog::MakeOptions(HWND options) {
    m_options = std::make_unique<CWin32View>(*m_dialog.optionsTemplate, options,
                                             *m_dialog.optionsHandler, m_cursors);
}

bool CFileDialog::OnNotification(HWND options, const NMHDR& notification) {
    if (notification.code == static_cast<UINT>(CDN_INITDONE)) {
        SetWindowSubclass(GetParent(options), AnswerHelp, kSubclass,
                          reinterpret_cast<DWORD_PTR>(this));
        m_dialog.optionsHandler->OnInit(*m_options);
        return true;
    }
    if (notification.code != static_cast<UINT>(CDN_FILEOK) || IsAccepted()) {
        return false;
    }
    SetWindowLongPtrW(options, DWLP_MSGRESULT, TRUE);
    return true;
}

// The focus starts in the field for the name, which belongs to the system's window: help asked for
// there is answered by the options, as help on none of their controls.
LRESULT CALLBACK CFileDialog::AnswerHelp(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam,
                                         UINT_PTR identifier, DWORD_PTR reference) {
    if (message == WM_HELP) {
        auto& handler = *reinterpret_cast<CFileDialog*>(reference)->m_dialog.optionsHandler;
        Contained([&] { handler.OnHelp(0); });
        return TRUE;
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(dialog, AnswerHelp, identifier);
    }
    return DefSubclassProc(dialog, message, wParam, lParam);
}

// A path that is too long ends the dialog whatever its options are.
bool CFileDialog::IsAccepted() const {
    return Outcome().kind != panel::FileOutcome::Kind::Accepted ||
           m_dialog.optionsHandler->OnFileAccepted();
}

panel::FileOutcome CFileDialog::Outcome() const {
    std::string path = FromWide(m_path.c_str());
    return path.size() < m_dialog.pathCapacity
               ? panel::FileOutcome::Accepted(std::move(path))
               : panel::FileOutcome::Failed(panel::kFilePathTooLong);
}

}
