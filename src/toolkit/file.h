#pragma once
#include "toolkit/exceptions.h"
#include "toolkit/gbk_string.h"

// Why a file operation has failed; thrown as a pointer.
class PANELKIT_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
    // Causes.
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };
    // osError: what GetLastError said; -1: none. fileName: GBK, copied; may be null.
    explicit CFileException(int cause = none, LONG osError = -1, LPCSTR fileName = nullptr)
        : m_cause(cause)
        , m_lOsError(osError)
        , m_strFileName(fileName)
    {
    }
    // The cause that a GetLastError number means.
    static int OsErrorToException(LONG osError);

    BOOL GetErrorMessage(LPSTR to, UINT size, PUINT helpId = nullptr) const override;

    int m_cause;           // one of those above
    LONG m_lOsError;       // of GetLastError; -1: none
    CString m_strFileName; // GBK; empty: not known
};

// Throws a new CFileException.
[[noreturn]] PANELKIT_API void AfxThrowFileException(int cause, LONG osError = -1, LPCSTR fileName = nullptr);

// A file, named in GBK. What fails throws a CFileException, Open alone tells it by its result.
class PANELKIT_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    // How a file is opened, combined by |.
    enum OpenFlags
    {
        modeRead = 0,
        modeWrite = 1,
        modeReadWrite = 2,
        shareCompat = 0,
        shareExclusive = 0x10,
        shareDenyWrite = 0x20,
        shareDenyRead = 0x30,
        shareDenyNone = 0x40,
        modeNoInherit = 0x80,
        modeCreate = 0x1000,     // a new file, an old one is emptied
        modeNoTruncate = 0x2000, // with modeCreate: an old one stays as it is
        typeText = 0x4000,       // CStdioFile alone
        typeBinary = 0x8000
    };
    // What an offset counts from.
    enum SeekPosition
    {
        begin,
        current,
        end
    };
    CFile() = default;
    explicit CFile(HANDLE file) // which it takes over
        : m_hFile(file)
    {
    }
    CFile(LPCSTR fileName, UINT flags);
    ~CFile() override;
    // FALSE: it could not be opened, *error (null: nobody asks) tells why.
    virtual BOOL Open(LPCSTR fileName, UINT flags, CFileException* error = nullptr);
    // Closes it; what was written may fail only now.
    virtual void Close();
    virtual void Abort();                    // closes without a complaint
    virtual UINT Read(void* to, UINT bytes); // result: how many; less than asked at the file's end
    virtual void Write(const void* from, UINT bytes);
    virtual void Flush();
    virtual ULONGLONG Seek(LONGLONG offset, UINT from); // result: the position now

    // To its first byte; behind its last one, with the position as result.
    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }

    // In bytes from the file's beginning.
    virtual ULONGLONG GetPosition() const;
    // How many bytes it has.
    virtual ULONGLONG GetLength() const;
    // Cuts it to so many bytes, or lengthens it.
    virtual void SetLength(ULONGLONG bytes);
    virtual CString GetFilePath() const { return m_strFileName; } // as it was opened
    // Without the folder.
    virtual CString GetFileName() const;
    virtual CString GetFileTitle() const; // the name without its extension
    static void Remove(LPCSTR fileName);
    static void Rename(LPCSTR from, LPCSTR to);
    operator HANDLE() const { return m_hFile; }

    // No file.
    static inline const HANDLE hFileNull = INVALID_HANDLE_VALUE;
    HANDLE m_hFile = INVALID_HANDLE_VALUE; // the object's, closed with it

protected:
    CString m_strFileName; // as it was opened
};

// A file of lines: in text mode, the default, a line ends in the file with CR LF and here with LF.
class PANELKIT_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)
public:
    CStdioFile() = default;
    CStdioFile(LPCSTR fileName, UINT flags);
    ~CStdioFile() override;
    BOOL Open(LPCSTR fileName, UINT flags, CFileException* error = nullptr) override;
    void Close() override;
    void Abort() override;
    UINT Read(void* to, UINT bytes) override;
    void Write(const void* from, UINT bytes) override;
    void Flush() override;
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetPosition() const override;
    virtual BOOL ReadString(CString& line); // without its end; FALSE: there is no more
    virtual LPSTR ReadString(
        LPSTR to, UINT size);              // with its end, cut to size bytes with the zero; null: no more
    virtual void WriteString(LPCSTR text); // as it is: no line end is added

    FILE* m_pStream = nullptr; // the object's; null: not open

private:
    void failIfM(bool failed) const;
};
