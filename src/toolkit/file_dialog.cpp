#include "toolkit/file_dialog.h"
#include "baselib/gbk.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace {

constexpr size_t MostBytes = 2 * MAX_PATH;

// The length of texts one behind the other, of which an empty one is the last; with its zero.
template <class CharTP> size_t listLengthM(const CharTP* list)
{
    const CharTP* at = list;
    while (*at != 0) {
        while (*at != 0) {
            ++at;
        }
        ++at;
    }
    return static_cast<size_t>(at - list) + 1;
}

std::wstring wideListM(const char* list) // Null: empty.
{
    std::wstring wide;
    while (list != nullptr && *list != 0) {
        wide += slGbkToShown(list) + L'\0';
        list += std::strlen(list) + 1;
    }
    return wide + L'\0';
}

// As the system's structures want it: null where none was given.
class WideOrNullCL
{
public:
    explicit WideOrNullCL(const char* text)
        : isNull_(text == nullptr)
        , wide_(slGbkToShown(text))
    {
    }
    LPCWSTR PointerM() const { return isNull_ ? nullptr : wide_.c_str(); }

private:
    bool isNull_;
    std::wstring wide_;
};

WORD byteOffsetM(const wchar_t* text, WORD units)
{
    return static_cast<WORD>(WideToGbk(text, units).size());
}

} // namespace

CFileDialog::CFileDialog(BOOL isOpen, AfxGivenText defaultExtension, AfxGivenText fileName, DWORD flags,
    AfxGivenText filter, CWnd* parent, DWORD, BOOL)
    : CCommonDialog(parent)
    , m_ofn {}
    , isOpen_(isOpen != FALSE)
    , file_(MostBytes)
    , title_(MostBytes)
{
    slCopyText(file_.data(), static_cast<int>(file_.size()), AfxGbkOf(fileName.Wide()));
    m_ofn.lStructSize = sizeof m_ofn;
    m_ofn.Flags = flags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.lpstrFile = file_.data();
    m_ofn.nMaxFile = static_cast<DWORD>(file_.size());
    m_ofn.lpstrFileTitle = title_.data();
    m_ofn.nMaxFileTitle = static_cast<DWORD>(title_.size());
    if (!defaultExtension.IsNull()) {
        extension_ = AfxGbkOf(defaultExtension.Wide());
        m_ofn.lpstrDefExt = extension_.c_str();
    }
    if (!filter.IsNull()) {
        std::wstring wide = filter.Wide(); // In GBK the bar may be the second half of a character.
        std::replace(wide.begin(), wide.end(), L'|', L'\0');
        filter_ = AfxGbkOf(wide) + std::string(2, '\0');
        m_ofn.lpstrFilter = filter_.c_str();
    }
}

INT_PTR CFileDialog::DoModal()
{
    const std::wstring filter = wideListM(m_ofn.lpstrFilter);
    const WideOrNullCL folder(m_ofn.lpstrInitialDir);
    const WideOrNullCL caption(m_ofn.lpstrTitle);
    const WideOrNullCL extension(m_ofn.lpstrDefExt);
    const bool hasNamedTemplate = !IS_INTRESOURCE(m_ofn.lpTemplateName);
    const WideOrNullCL templateName(hasNamedTemplate ? m_ofn.lpTemplateName : nullptr);
    std::vector<wchar_t> file(std::max<size_t>(m_ofn.nMaxFile, 1));
    const std::wstring first = slGbkToShown(m_ofn.lpstrFile);
    first.copy(file.data(), file.size() - 1);

    OPENFILENAMEW wide = {};
    wide.lStructSize = sizeof wide;
    wide.hwndOwner = m_ofn.hwndOwner != nullptr ? m_ofn.hwndOwner : ownerM();
    wide.hInstance = m_ofn.hInstance != nullptr ? m_ofn.hInstance : AfxGetResourceHandle();
    wide.lpstrFilter = m_ofn.lpstrFilter == nullptr ? nullptr : filter.c_str();
    wide.nFilterIndex = m_ofn.nFilterIndex;
    wide.lpstrFile = file.data();
    wide.nMaxFile = static_cast<DWORD>(file.size());
    wide.lpstrInitialDir = folder.PointerM();
    wide.lpstrTitle = caption.PointerM();
    wide.lpstrDefExt = extension.PointerM();
    wide.Flags = m_ofn.Flags;
    wide.FlagsEx = m_ofn.FlagsEx;
    wide.lCustData = reinterpret_cast<LPARAM>(this);
    wide.lpfnHook = &CFileDialog::hookM;
    wide.lpTemplateName
        = hasNamedTemplate ? templateName.PointerM() : reinterpret_cast<LPCWSTR>(m_ofn.lpTemplateName);

    using CallTP = BOOL(WINAPI*)(OPENFILENAMEW*);
    const auto call = reinterpret_cast<CallTP>(
        reinterpret_cast<void*>(systemCallM(isOpen_ ? "GetOpenFileNameW" : "GetSaveFileNameW")));
    const bool isDone = call != nullptr && call(&wide);
    m_ofn.nFilterIndex = wide.nFilterIndex;
    m_ofn.Flags = wide.Flags;
    return isDone && takeNamesM(wide) ? IDOK : IDCANCEL;
}

bool CFileDialog::takeNamesM(const OPENFILENAMEW& wide)
{
    const bool isList = (wide.Flags & OFN_ALLOWMULTISELECT) != 0 && (wide.Flags & OFN_EXPLORER) != 0;
    const size_t units = isList ? listLengthM(wide.lpstrFile) : std::wcslen(wide.lpstrFile) + 1;
    const std::string names = AfxGbkOf(std::wstring(wide.lpstrFile, units));
    if (names.size() > m_ofn.nMaxFile) {
        return false;
    }
    std::memcpy(m_ofn.lpstrFile, names.data(), names.size());
    m_ofn.nFileOffset = byteOffsetM(wide.lpstrFile, wide.nFileOffset);
    m_ofn.nFileExtension = byteOffsetM(wide.lpstrFile, wide.nFileExtension);
    if (m_ofn.lpstrFileTitle != nullptr) {
        const char* name = m_ofn.lpstrFile + m_ofn.nFileOffset;
        slCopyText(m_ofn.lpstrFileTitle, static_cast<int>(m_ofn.nMaxFileTitle), name);
    }
    return true;
}

UINT_PTR CALLBACK CFileDialog::hookM(HWND hWnd, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG) {
        return 0; // The window is the object's: what comes later has gone there first.
    }
    const auto* given = reinterpret_cast<const OPENFILENAMEW*>(lParam);
    return adoptM(reinterpret_cast<CFileDialog*>(given->lCustData), hWnd);
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* notify = reinterpret_cast<const OFNOTIFYW*>(lParam);
    LRESULT answer = 0;
    switch (notify->hdr.code) {
    case CDN_INITDONE:
        OnInitDone();
        break;
    case CDN_SELCHANGE:
        OnFileNameChange();
        break;
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        break;
    case CDN_TYPECHANGE:
        OnTypeChange();
        break;
    case CDN_SHAREVIOLATION:
        answer = static_cast<LRESULT>(OnShareViolation(WideToGbk(notify->pszFile).c_str()));
        break;
    case CDN_FILEOK:
        answer = OnFileNameOK();
        break;
    default:
        return CCommonDialog::OnNotify(wParam, lParam, result);
    }
    if (m_hWnd != nullptr) {
        ::SetWindowLongPtrW(m_hWnd, DWLP_MSGRESULT, answer); // Where the system looks for it.
    }
    *result = answer;
    return TRUE;
}

CString CFileDialog::askedM(UINT message) const
{
    wchar_t text[MostBytes] = {};
    const LRESULT length = ::SendMessageW(
        ::GetParent(m_hWnd), message, MostBytes, reinterpret_cast<LPARAM>(static_cast<wchar_t*>(text)));
    return length < 0 ? CString() : CString(WideToGbk(text).c_str());
}

CString CFileDialog::GetPathName() const
{
    return isShownM() ? askedM(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const
{
    return isShownM() ? askedM(CDM_GETSPEC) : CString(m_ofn.lpstrFile + m_ofn.nFileOffset);
}

CString CFileDialog::GetFileTitle() const
{
    const CString name = GetFileName();
    const CString extension = GetFileExt();
    return extension.IsEmpty() ? name : name.Left(name.GetLength() - extension.GetLength() - 1);
}

CString CFileDialog::GetFileExt() const
{
    const CString name = GetFileName();
    const char* const dot = std::strrchr(name, '.'); // Never the second half of a character.
    return dot == nullptr ? CString() : CString(dot + 1);
}

CString CFileDialog::GetFolderPath() const
{
    return isShownM() ? askedM(CDM_GETFOLDERPATH) : CString();
}

CString CFileDialog::GetNextPathName(POSITION& at) const
{
    const char* name = reinterpret_cast<const char*>(at);
    const char* const folder = m_ofn.lpstrFile;
    const bool isList = (m_ofn.Flags & OFN_ALLOWMULTISELECT) != 0 && (m_ofn.Flags & OFN_EXPLORER) != 0;
    const char* const firstName = folder + std::strlen(folder) + 1;
    if (!isList || (name == folder && *firstName == 0)) {
        at = nullptr;
        return CString(folder); // A single file comes with its folder.
    }
    name = name == folder ? firstName : name;
    const char* const next = name + std::strlen(name) + 1;
    at = *next == 0 ? nullptr : reinterpret_cast<POSITION>(const_cast<char*>(next));
    const std::wstring wide = slGbkToShown(folder);
    const bool isRoot = !wide.empty() && wide.back() == L'\\';
    return CString((std::string(folder) + (isRoot ? "" : "\\") + name).c_str());
}

void CFileDialog::SetTemplate(UINT, UINT id)
{
    m_ofn.lpTemplateName = MAKEINTRESOURCEA(id);
    m_ofn.Flags |= OFN_ENABLETEMPLATE;
}

void CFileDialog::setTextM(int id, const AfxGivenText& text)
{
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(id),
        reinterpret_cast<LPARAM>(text.Wide().c_str()));
}

void CFileDialog::HideControl(int id)
{
    ::SendMessageW(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(id), 0);
}

void CFileDialog::setExtensionM(const AfxGivenText& extension)
{
    ::SendMessageW(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(extension.Wide().c_str()));
}
