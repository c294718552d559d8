// A binary file.
#pragma once

#include "CException.h"

// Every operation that fails throws a CFileException with the cause, the system's error and the path. A pipe
// cannot be opened.
//
// A file that is open for reading asks the system that others may only read it, one that is open for writing
// that nobody else opens it. Windows sees to that; on Linux nothing does.
class ZEB17_EXPORT CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeCreate = 0x1000 // with modeWrite: an empty file, in place of one that is there
    };
    enum SeekPosition : UINT
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile() = default;
    CFile(LPCTSTR lpszPath, UINT nOpenFlags);
    // Closes the file without telling a failure; Close tells it.
    ~CFile() override;

    // Opens the file, and gives false on failure, with the reason in *pError if pError is not null.
    virtual BOOL Open(LPCTSTR lpszPath, UINT nOpenFlags, CFileException* pError = nullptr);

    // Reads up to nCount bytes and returns how many; fewer only at the end of the file.
    virtual UINT Read(void* pBuffer, UINT nCount);
    virtual void Write(const void* pBuffer, UINT nCount);
    // Moves the position and returns it, counted from the beginning. nFrom: a SeekPosition.
    virtual ULONGLONG Seek(LONGLONG nOffset, UINT nFrom);
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    // Returns when what was written is on the disk.
    virtual void Flush();
    virtual void Close();
    // Closes the file without telling a failure.
    virtual void Abort() noexcept;
    virtual CString GetFilePath() const { return m_strFileName; }

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

protected:
    bool IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }

    // Throws the exception for an error of the system.
    [[noreturn]] void Fail(DWORD dwError) const;

    CString m_strFileName; // the path that exceptions tell
};
