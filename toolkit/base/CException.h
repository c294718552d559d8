// The toolkit's exceptions. By its custom they are thrown as pointers to objects of their own, and who
// catches one for good ends it: catch (CFileException* e) { ...; e->Delete(); }
#pragma once

#include "CObject.h"
#include "CString.h"

class ZEB17_EXPORT CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    void Delete() { delete this; }

    // Copies the text of the error, cut to `size` characters with the null. False if there is none.
    virtual BOOL GetErrorMessage(LPTSTR text, UINT size, UINT* helpContext = nullptr) const;

protected:
    // The text of the error; empty where there is none.
    virtual CString GetMessageText() const { return {}; }
};

class ZEB17_EXPORT CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)
protected:
    CString GetMessageText() const override;
};

class ZEB17_EXPORT CNotSupportedException : public CException
{
    DECLARE_DYNAMIC(CNotSupportedException)
protected:
    CString GetMessageText() const override;
};

class ZEB17_EXPORT CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)
protected:
    CString GetMessageText() const override;
};

class ZEB17_EXPORT CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)
public:
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

    explicit CFileException(int cause = none, LONG osError = -1, LPCTSTR fileName = nullptr)
        : m_cause(cause), m_lOsError(osError), m_strFileName(fileName)
    {
    }

    // The cause that a system error stands for.
    static int OsErrorToException(LONG osError);

    int m_cause;
    LONG m_lOsError; // the system's error code, -1 where there is none
    CString m_strFileName;

protected:
    CString GetMessageText() const override;
};

class ZEB17_EXPORT CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)
public:
    enum
    {
        none,
        genericException,
        readOnly, // a loading archive was written to
        endOfFile,
        writeOnly, // a storing archive was read from
        badIndex,
        badClass,
        badSchema
    };

    explicit CArchiveException(int cause = none, LPCTSTR archiveName = nullptr)
        : m_cause(cause), m_strFileName(archiveName)
    {
    }

    int m_cause;
    CString m_strFileName;

protected:
    CString GetMessageText() const override;
};

[[noreturn]] ZEB17_EXPORT void AfxThrowFileException(int cause, LONG osError = -1,
                                                     LPCTSTR fileName = nullptr);
[[noreturn]] ZEB17_EXPORT void AfxThrowArchiveException(int cause, LPCTSTR archiveName = nullptr);
[[noreturn]] ZEB17_EXPORT void AfxThrowMemoryException();
[[noreturn]] ZEB17_EXPORT void AfxThrowResourceException();
[[noreturn]] ZEB17_EXPORT void AfxThrowNotSupportedException();
