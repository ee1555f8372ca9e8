#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/text.h"
#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

// An open key of the registry; null: there is none.
class RegistryKeyCL
{
public:
    explicit RegistryKeyCL(HKEY key)
        : key_(key)
    {
    }
    ~RegistryKeyCL()
    {
        if (key_ != nullptr) {
            ::RegCloseKey(key_);
        }
    }
    RegistryKeyCL(const RegistryKeyCL&) = delete;
    RegistryKeyCL& operator=(const RegistryKeyCL&) = delete;
    operator HKEY() const { return key_; }

private:
    HKEY key_;
};

HKEY keyBelowM(HKEY key, const std::wstring& name)
{
    HKEY below = nullptr;
    ::RegCreateKeyExW(
        key, name.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr, &below, nullptr);
    return below;
}

bool writeM(HKEY key, LPCSTR entry, DWORD kind, const void* data, size_t bytes)
{
    return key != nullptr
        && ::RegSetValueExW(key, slGbkToShown(entry).c_str(), 0, kind, static_cast<const BYTE*>(data),
               static_cast<DWORD>(bytes))
        == ERROR_SUCCESS;
}

// The bytes of an entry of that kind; false: there is none.
bool readM(HKEY key, LPCSTR entry, DWORD kind, std::vector<BYTE>* to)
{
    const std::wstring name = slGbkToShown(entry);
    DWORD found = 0;
    DWORD bytes = 0;
    if (key == nullptr
        || ::RegQueryValueExW(key, name.c_str(), nullptr, &found, nullptr, &bytes) != ERROR_SUCCESS
        || found != kind) {
        return false;
    }
    to->resize(bytes);
    return ::RegQueryValueExW(key, name.c_str(), nullptr, &found, to->data(), &bytes) == ERROR_SUCCESS;
}

std::wstring iniFileM(LPCSTR name)
{
    const std::wstring file = slGbkToShown(name);
    if (file.find_first_of(L"\\/:") != std::wstring::npos) {
        return file;
    }
    wchar_t folder[MAX_PATH] = {};
    ::GetWindowsDirectoryW(folder, MAX_PATH);
    return std::wstring(folder) + L"\\" + file;
}

// The system writes texts in its own code page, unless the file begins as a wide one.
bool writeIniM(const std::wstring& file, LPCWSTR section, LPCWSTR entry, LPCWSTR value)
{
    const HANDLE made
        = ::CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made != INVALID_HANDLE_VALUE) {
        const wchar_t mark = 0xFEFF;
        DWORD written = 0;
        ::WriteFile(made, &mark, sizeof mark, &written, nullptr);
        ::CloseHandle(made);
    }
    return ::WritePrivateProfileStringW(section, entry, value, file.c_str()) != FALSE;
}

std::wstring iniTextM(LPCSTR section, LPCSTR entry, const std::wstring& otherwise, const std::wstring& file)
{
    std::vector<wchar_t> text(256);
    for (;;) {
        const DWORD used
            = ::GetPrivateProfileStringW(slGbkToShown(section).c_str(), slGbkToShown(entry).c_str(),
                otherwise.c_str(), text.data(), static_cast<DWORD>(text.size()), file.c_str());
        if (used + 1 < text.size()) {
            return std::wstring(text.data(), used);
        }
        text.resize(text.size() * 2);
    }
}

// Bytes as letters, two for each: a file of settings holds texts.
std::string lettersM(const BYTE* data, UINT bytes)
{
    std::string letters;
    for (UINT i = 0; i < bytes; ++i) {
        letters.push_back(static_cast<char>('A' + (data[i] & 15)));
        letters.push_back(static_cast<char>('A' + (data[i] >> 4)));
    }
    return letters;
}

} // namespace

void CWinApp::SetRegistryKey(LPCSTR company)
{
    std::free(const_cast<char*>(m_pszRegistryKey));
    m_pszRegistryKey = ::strdup(company);
    std::free(const_cast<char*>(m_pszProfileName));
    m_pszProfileName = ::strdup(m_pszAppName);
}

void CWinApp::SetRegistryKey(UINT textId)
{
    const wchar_t* text = nullptr;
    const int length = ::LoadStringW(AfxGetResourceHandle(), textId, reinterpret_cast<LPWSTR>(&text), 0);
    SetRegistryKey(WideToGbk(text, length).c_str());
}

HKEY CWinApp::GetAppRegistryKey()
{
    if (m_pszRegistryKey == nullptr) {
        return nullptr;
    }
    return keyBelowM(HKEY_CURRENT_USER,
        L"Software\\" + slGbkToShown(m_pszRegistryKey) + L"\\" + slGbkToShown(m_pszProfileName));
}

HKEY CWinApp::GetSectionKey(LPCSTR section)
{
    const RegistryKeyCL application(GetAppRegistryKey());
    return application == nullptr ? nullptr : keyBelowM(application, slGbkToShown(section));
}

UINT CWinApp::GetProfileInt(LPCSTR section, LPCSTR entry, int otherwise)
{
    if (m_pszRegistryKey == nullptr) {
        return ::GetPrivateProfileIntW(slGbkToShown(section).c_str(), slGbkToShown(entry).c_str(), otherwise,
            iniFileM(m_pszProfileName).c_str());
    }
    std::vector<BYTE> bytes;
    DWORD value = static_cast<DWORD>(otherwise);
    if (readM(RegistryKeyCL(GetSectionKey(section)), entry, REG_DWORD, &bytes)
        && bytes.size() == sizeof value) {
        std::memcpy(&value, bytes.data(), sizeof value);
    }
    return value;
}

BOOL CWinApp::WriteProfileInt(LPCSTR section, LPCSTR entry, int value)
{
    if (m_pszRegistryKey == nullptr) {
        return WriteProfileString(section, entry, std::to_string(value).c_str());
    }
    return writeM(RegistryKeyCL(GetSectionKey(section)), entry, REG_DWORD, &value, sizeof value);
}

CString CWinApp::GetProfileString(LPCSTR section, LPCSTR entry, LPCSTR otherwise)
{
    if (m_pszRegistryKey == nullptr) {
        return WideToGbk(
            iniTextM(section, entry, slGbkToShown(otherwise), iniFileM(m_pszProfileName)).c_str())
            .c_str();
    }
    std::vector<BYTE> bytes;
    if (!readM(RegistryKeyCL(GetSectionKey(section)), entry, REG_SZ, &bytes)) {
        return otherwise;
    }
    bytes.resize(bytes.size() + sizeof(wchar_t)); // who wrote it may have left out the zero
    return WideToGbk(reinterpret_cast<const wchar_t*>(bytes.data())).c_str();
}

BOOL CWinApp::WriteProfileString(LPCSTR section, LPCSTR entry, LPCSTR value)
{
    const std::wstring wideEntry = slGbkToShown(entry);
    const std::wstring wideValue = slGbkToShown(value);
    if (m_pszRegistryKey == nullptr) {
        return writeIniM(iniFileM(m_pszProfileName), slGbkToShown(section).c_str(),
            entry == nullptr ? nullptr : wideEntry.c_str(), value == nullptr ? nullptr : wideValue.c_str());
    }
    if (entry == nullptr) {
        const RegistryKeyCL application(GetAppRegistryKey());
        return application != nullptr
            && ::RegDeleteKeyW(application, slGbkToShown(section).c_str()) == ERROR_SUCCESS;
    }
    const RegistryKeyCL key(GetSectionKey(section));
    if (value == nullptr) {
        const LONG result = key == nullptr ? ERROR_SUCCESS : ::RegDeleteValueW(key, wideEntry.c_str());
        return result == ERROR_SUCCESS || result == ERROR_FILE_NOT_FOUND;
    }
    return writeM(key, entry, REG_SZ, wideValue.c_str(), (wideValue.size() + 1) * sizeof(wchar_t));
}

BOOL CWinApp::GetProfileBinary(LPCSTR section, LPCSTR entry, LPBYTE* data, UINT* bytes)
{
    *data = nullptr;
    *bytes = 0;
    std::vector<BYTE> found;
    if (m_pszRegistryKey == nullptr) {
        const std::wstring letters = iniTextM(section, entry, L"", iniFileM(m_pszProfileName));
        for (size_t i = 0; i + 1 < letters.size(); i += 2) {
            found.push_back(static_cast<BYTE>((letters[i] - L'A') | (letters[i + 1] - L'A') << 4));
        }
    } else if (!readM(RegistryKeyCL(GetSectionKey(section)), entry, REG_BINARY, &found)) {
        return FALSE;
    }
    if (found.empty()) {
        return FALSE;
    }
    *data = new BYTE[found.size()];
    *bytes = static_cast<UINT>(found.size());
    std::memcpy(*data, found.data(), found.size());
    return TRUE;
}

BOOL CWinApp::WriteProfileBinary(LPCSTR section, LPCSTR entry, LPBYTE data, UINT bytes)
{
    if (m_pszRegistryKey == nullptr) {
        return WriteProfileString(section, entry, lettersM(data, bytes).c_str());
    }
    return writeM(RegistryKeyCL(GetSectionKey(section)), entry, REG_BINARY, data, bytes);
}
