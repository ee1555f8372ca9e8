#include "toolkit/file.h"
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include "toolkit/window_class.h"

IMPLEMENT_DYNAMIC(CFileException, CException)
IMPLEMENT_DYNAMIC(CFile, CObject)

int CFileException::OsErrorToException(LONG osError)
{
    switch (osError) {
    case ERROR_SUCCESS:
        return none;
    case ERROR_FILE_NOT_FOUND:
        return fileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH:
        return badPath;
    case ERROR_TOO_MANY_OPEN_FILES:
        return tooManyOpenFiles;
    case ERROR_ACCESS_DENIED:
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return accessDenied;
    case ERROR_INVALID_HANDLE:
        return invalidFile;
    case ERROR_CURRENT_DIRECTORY:
        return removeCurrentDir;
    case ERROR_SEEK:
    case ERROR_NEGATIVE_SEEK:
        return badSeek;
    case ERROR_SHARING_VIOLATION:
        return sharingViolation;
    case ERROR_LOCK_VIOLATION:
        return lockViolation;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
        return diskFull;
    case ERROR_HANDLE_EOF:
        return endOfFile;
    default:
        return genericException;
    }
}

BOOL CFileException::GetErrorMessage(LPSTR to, UINT size, PUINT helpId) const
{
    CException::GetErrorMessage(to, size, helpId);
    wchar_t text[512] = L"";
    const DWORD flags
        = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
    if (m_lOsError < 0
        || !::FormatMessageW(flags, nullptr, static_cast<DWORD>(m_lOsError), 0, text, 512, nullptr)) {
        return FALSE;
    }
    slCopyText(to, static_cast<int>(size), WideToGbk(text));
    return TRUE;
}

void AfxThrowFileException(int cause, LONG osError, LPCSTR fileName)
{
    throw new CFileException(cause, osError, fileName);
}

namespace {

[[noreturn]] void throwLastError(LPCSTR fileName)
{
    const LONG error = static_cast<LONG>(::GetLastError());
    AfxThrowFileException(CFileException::OsErrorToException(error), error, fileName);
}

CString lastPart(const CString& path)
{
    const std::wstring wide = GbkToWide(path);
    const size_t cut = wide.find_last_of(L"\\/:");
    return CString(wide.c_str() + (cut == std::wstring::npos ? 0 : cut + 1));
}

} // namespace

CFile::CFile(LPCSTR fileName, UINT flags)
{
    CFileException error;
    if (!CFile::Open(fileName, flags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, fileName);
    }
}

CFile::~CFile()
{
    CFile::Abort();
}

BOOL CFile::Open(LPCSTR fileName, UINT flags, CFileException* error)
{
    CFile::Abort();
    const UINT mode = flags & 3;
    const DWORD access = (mode != modeWrite ? GENERIC_READ : 0) | (mode != modeRead ? GENERIC_WRITE : 0);
    const UINT share = flags & 0x70;
    const DWORD shared = (share == shareDenyWrite || share == shareDenyNone ? FILE_SHARE_READ : 0)
        | (share == shareDenyRead || share == shareDenyNone ? FILE_SHARE_WRITE : 0)
        | (share == shareCompat && mode == modeRead ? FILE_SHARE_READ : 0);
    const DWORD creation = !(flags & modeCreate) ? OPEN_EXISTING
        : flags & modeNoTruncate                 ? OPEN_ALWAYS
                                                 : CREATE_ALWAYS;
    SECURITY_ATTRIBUTES inherited { sizeof inherited, nullptr, !(flags & modeNoInherit) };
    m_strFileName = fileName;
    m_hFile = ::CreateFileW(
        WindowClassNameCL(fileName), access, shared, &inherited, creation, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (m_hFile == hFileNull && error != nullptr) {
        error->m_lOsError = static_cast<LONG>(::GetLastError());
        error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
        error->m_strFileName = fileName;
    }
    return m_hFile != hFileNull;
}

void CFile::Close()
{
    const HANDLE file = std::exchange(m_hFile, hFileNull);
    if (file != hFileNull && !::CloseHandle(file)) {
        throwLastError(m_strFileName);
    }
}

void CFile::Abort()
{
    const HANDLE file = std::exchange(m_hFile, hFileNull);
    if (file != hFileNull) {
        ::CloseHandle(file);
    }
}

UINT CFile::Read(void* to, UINT bytes)
{
    DWORD read = 0;
    if (!::ReadFile(m_hFile, to, bytes, &read, nullptr)) {
        throwLastError(m_strFileName);
    }
    return read;
}

void CFile::Write(const void* from, UINT bytes)
{
    DWORD written = 0;
    if (!::WriteFile(m_hFile, from, bytes, &written, nullptr)) {
        throwLastError(m_strFileName);
    }
    if (written != bytes) {
        AfxThrowFileException(CFileException::diskFull, -1, m_strFileName);
    }
}

void CFile::Flush()
{
    if (!::FlushFileBuffers(m_hFile)) {
        throwLastError(m_strFileName);
    }
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from)
{
    LARGE_INTEGER by {};
    LARGE_INTEGER now {};
    by.QuadPart = offset;
    if (!::SetFilePointerEx(m_hFile, by, &now, from)) {
        throwLastError(m_strFileName);
    }
    return static_cast<ULONGLONG>(now.QuadPart);
}

ULONGLONG CFile::GetPosition() const
{
    return const_cast<CFile*>(this)->CFile::Seek(0, current);
}

ULONGLONG CFile::GetLength() const
{
    LARGE_INTEGER size {};
    if (!::GetFileSizeEx(m_hFile, &size)) {
        throwLastError(m_strFileName);
    }
    return static_cast<ULONGLONG>(size.QuadPart);
}

void CFile::SetLength(ULONGLONG bytes)
{
    Seek(static_cast<LONGLONG>(bytes), begin);
    if (!::SetEndOfFile(m_hFile)) {
        throwLastError(m_strFileName);
    }
}

CString CFile::GetFileName() const
{
    return lastPart(m_strFileName);
}

CString CFile::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

void CFile::Remove(LPCSTR fileName)
{
    if (!::DeleteFileW(WindowClassNameCL(fileName))) {
        throwLastError(fileName);
    }
}

void CFile::Rename(LPCSTR from, LPCSTR to)
{
    if (!::MoveFileW(WindowClassNameCL(from), WindowClassNameCL(to))) {
        throwLastError(from);
    }
}
