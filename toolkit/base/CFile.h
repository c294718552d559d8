// A binary file.
#pragma once

#include "CException.h"

// Every operation that fails throws a CFileException with the cause, the system's error and the path.
// Others may read a file that is read, and nobody may open one that is written.
class ZEB17_EXPORT CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)
public:
    enum OpenFlags : UINT
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        modeCreate = 0x1000 // the file is made anew, empty
    };
    enum SeekPosition : UINT
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile() = default;
    CFile(LPCTSTR path, UINT openFlags);
    // Closes the file; a failure of that is lost, so whoever must know calls Close.
    ~CFile() override;

    // Opens; false on failure, with the reason in `error` if one is given.
    virtual BOOL Open(LPCTSTR path, UINT openFlags, CFileException* error = nullptr);

    // Reads up to `count` bytes and returns how many; fewer only at the end of the file.
    virtual UINT Read(void* buffer, UINT count);
    virtual void Write(const void* buffer, UINT count);
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    // Returns when what was written is on the disk.
    virtual void Flush();
    virtual void Close();
    // Closes without a word about failures.
    virtual void Abort() noexcept;
    virtual CString GetFilePath() const { return m_strFileName; }

    HANDLE m_hFile = INVALID_HANDLE_VALUE;

protected:
    bool IsOpen() const { return m_hFile != INVALID_HANDLE_VALUE; }

    // Ends the operation with the exception for a system error.
    [[noreturn]] void Fail(DWORD error) const;

    CString m_strFileName; // the path that failures name
};
