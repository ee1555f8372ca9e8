#include "toolkit/file.h"
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <string>

IMPLEMENT_DYNAMIC(CStdioFile, CFile)

CStdioFile::CStdioFile(LPCSTR fileName, UINT flags)
{
    CFileException error;
    if (!CStdioFile::Open(fileName, flags, &error)) {
        AfxThrowFileException(error.m_cause, error.m_lOsError, fileName);
    }
}

CStdioFile::~CStdioFile()
{
    CStdioFile::Abort();
}

void CStdioFile::failIfM(bool failed) const
{
    if (failed) {
        AfxThrowFileException(errno == ENOSPC ? CFileException::diskFull : CFileException::hardIO,
            static_cast<LONG>(::GetLastError()), m_strFileName);
    }
}

// The stream owns the handle from here on.
BOOL CStdioFile::Open(LPCSTR fileName, UINT flags, CFileException* error)
{
    CStdioFile::Abort();
    if (!CFile::Open(fileName, flags, error)) {
        return FALSE;
    }
    const bool isBinary = (flags & typeBinary) != 0;
    const bool reads = (flags & 3) == modeRead;
    const int number = ::_open_osfhandle(
        reinterpret_cast<intptr_t>(m_hFile), (reads ? _O_RDONLY : 0) | (isBinary ? _O_BINARY : _O_TEXT));
    const char* const mode = (flags & 3) == modeReadWrite ? (isBinary ? "r+b" : "r+t")
        : reads                                           ? (isBinary ? "rb" : "rt")
                                                          : (isBinary ? "wb" : "wt");
    m_pStream = number == -1 ? nullptr : ::_fdopen(number, mode);
    if (m_pStream == nullptr) {
        CFile::Abort();
        if (error != nullptr) {
            error->m_cause = CFileException::tooManyOpenFiles;
        }
    }
    return m_pStream != nullptr;
}

void CStdioFile::Close()
{
    FILE* const stream = std::exchange(m_pStream, nullptr);
    m_hFile = hFileNull;
    failIfM(stream != nullptr && std::fclose(stream) != 0);
}

void CStdioFile::Abort()
{
    if (FILE* const stream = std::exchange(m_pStream, nullptr)) {
        std::fclose(stream);
        m_hFile = hFileNull;
    }
}

UINT CStdioFile::Read(void* to, UINT bytes)
{
    const size_t read = std::fread(to, 1, bytes, m_pStream);
    failIfM(read != bytes && std::ferror(m_pStream));
    return static_cast<UINT>(read);
}

void CStdioFile::Write(const void* from, UINT bytes)
{
    failIfM(std::fwrite(from, 1, bytes, m_pStream) != bytes);
}

void CStdioFile::Flush()
{
    failIfM(std::fflush(m_pStream) != 0);
}

ULONGLONG CStdioFile::Seek(LONGLONG offset, UINT from)
{
    if (::_fseeki64(m_pStream, offset, static_cast<int>(from)) != 0) {
        AfxThrowFileException(CFileException::badSeek, -1, m_strFileName);
    }
    return GetPosition();
}

ULONGLONG CStdioFile::GetPosition() const
{
    return static_cast<ULONGLONG>(::_ftelli64(m_pStream));
}

LPSTR CStdioFile::ReadString(LPSTR to, UINT size)
{
    LPSTR const read = std::fgets(to, static_cast<int>(size), m_pStream);
    failIfM(read == nullptr && std::ferror(m_pStream));
    return read;
}

BOOL CStdioFile::ReadString(CString& line)
{
    std::string bytes; // A piece may end within a character.
    char piece[256];
    bool hasAny = false;
    while (
        (bytes.empty() || bytes.back() != '\n') && CStdioFile::ReadString(piece, sizeof piece) != nullptr) {
        hasAny = true;
        bytes += piece;
    }
    if (!bytes.empty() && bytes.back() == '\n') {
        bytes.pop_back();
    }
    line = bytes.c_str();
    return hasAny;
}

void CStdioFile::WriteString(LPCSTR text)
{
    failIfM(std::fputs(text, m_pStream) < 0);
}
