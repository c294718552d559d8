// The toolkit's exceptions. They are thrown as pointers to objects made by `new`, and the catch clause that
// does not throw again deletes the object: catch (CFileException* e) { ...; e->Delete(); }
#pragma once

#include "CObject.h"
#include "CString.h"

class ZEB17_EXPORT CException : public CObject
{
    DECLARE_DYNAMIC(CException)
public:
    void Delete() { delete this; }

    // Copies the text of the error to lpszText, cut to nSize characters with the null. False if there is no
    // text. *pnHelpContext becomes 0: there is no help.
    virtual BOOL GetErrorMessage(LPTSTR lpszText, UINT nSize, UINT* pnHelpContext = nullptr) const;

protected:
    // The text of the error; empty where there is none.
    virtual CString GetMessageText() const { return {}; }
};

// No memory was to be had.
class ZEB17_EXPORT CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)
protected:
    CString GetMessageText() const override;
};

// The system had no window, drawing object or resource to give.
class ZEB17_EXPORT CResourceException : public CException
{
    DECLARE_DYNAMIC(CResourceException)
protected:
    CString GetMessageText() const override;
};

// A file could not be opened, read or written.
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

    explicit CFileException(int nCause = none, LONG lOsError = -1, LPCTSTR lpszFileName = nullptr)
        : m_cause(nCause), m_lOsError(lOsError), m_strFileName(lpszFileName)
    {
    }

    // The cause that a system error stands for.
    static int OsErrorToException(LONG lOsError);

    int m_cause;     // one of the values above
    LONG m_lOsError; // the system's error code, -1 where there is none
    CString m_strFileName;

protected:
    CString GetMessageText() const override;
};

// An archive ended too early or holds what it must not, or was used the wrong way round.
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

    explicit CArchiveException(int nCause = none, LPCTSTR lpszArchiveName = nullptr)
        : m_cause(nCause), m_strFileName(lpszArchiveName)
    {
    }

    int m_cause; // one of the values above
    CString m_strFileName;

protected:
    CString GetMessageText() const override;
};

// Each throws the exception of that name.
[[noreturn]] ZEB17_EXPORT void AfxThrowFileException(int nCause, LONG lOsError = -1,
                                                     LPCTSTR lpszFileName = nullptr);
[[noreturn]] ZEB17_EXPORT void AfxThrowArchiveException(int nCause, LPCTSTR lpszArchiveName = nullptr);
[[noreturn]] ZEB17_EXPORT void AfxThrowMemoryException();
[[noreturn]] ZEB17_EXPORT void AfxThrowResourceException();
