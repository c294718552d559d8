// A stream of numbers and texts on a file, with a buffer: little-endian, without padding.
#pragma once

#include "CFile.h"

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

// A type of number that an archive stores. `bool` is left out, since its width is not fixed, and so is `long`
// where it has other than 32 bits: the bytes in a file must be the same on every system.
template <class T>
concept ArchiveNumber = std::integral<T> && !std::same_as<T, bool> &&
                        (sizeof(long) == 4 || (!std::same_as<T, long> && !std::same_as<T, unsigned long>));

// Reading past the end of the file throws a CArchiveException with the cause endOfFile; a failure of the file
// itself is a CFileException. A damaged file does no harm: no memory is taken for a text before it is known
// that the file is long enough for it.
class ZEB17_EXPORT CArchive
{
public:
    enum Mode : UINT
    {
        store = 0,
        load = 1
    };

    // The file stays the caller's and must outlive the archive. nMode: `load` or `store`. pBuffer: the
    // caller's own buffer of nBufferSize bytes, at least 128, or null to have the archive make one.
    CArchive(CFile* pFile, UINT nMode, int nBufferSize = 4096, void* pBuffer = nullptr);
    // Closes the archive if it is still open, and throws what Close throws. When an exception is the reason
    // for the end of the archive, what is buffered is dropped instead.
    ~CArchive() noexcept(false);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    bool IsLoading() const { return m_nMode == load; }
    bool IsStoring() const { return m_nMode == store; }
    CFile* GetFile() const { return m_pFile; }

    // Storing: writes what is buffered to the file. Loading: moves the file's position back over what was
    // read ahead.
    void Flush();
    // Flushes and ends the archive. The file stays open.
    void Close();

    // Reads up to nCount bytes and returns how many; fewer only at the end of the file.
    UINT Read(void* pBuffer, UINT nCount);
    void Write(const void* pBuffer, UINT nCount);

    // How many bytes can still be read: no count of records in the file can truly be larger.
    ULONGLONG GetBytesLeft() const;

    // A count as the toolkit stores it: in 16 bits; or 0xFFFF and 32 bits; or 0xFFFF, 0xFFFFFFFF and 64 bits.
    ULONGLONG ReadCount();
    void WriteCount(ULONGLONG nCount);

    template <ArchiveNumber T>
    CArchive& operator<<(T value);
    template <ArchiveNumber T>
    CArchive& operator>>(T& value);
    // A text beyond ASCII is stored in 16-bit characters, so that readers with another code page know it too;
    // one that is so stored is turned into an 8-bit one.
    CArchive& operator<<(const CString& strText);
    CArchive& operator>>(CString& strText);

private:
    void RequireLoading() const;
    void RequireStoring() const;
    void ReadExactly(void* pBuffer, UINT nCount);
    bool FillBuffer();
    void WriteLength(UINT nLength);
    ULONGLONG ReadLongCount();
    ULONGLONG ReadLength(bool& bWide);
    std::string ReadBytes(ULONGLONG nCount, std::size_t nSize);

    CFile* m_pFile;
    Mode m_nMode;
    std::unique_ptr<BYTE[]> m_pOwnBuffer;
    BYTE* m_pBuffer;
    std::size_t m_nSize;
    std::size_t m_nNext = 0; // the index of the byte to be read or written next
    std::size_t m_nEnd = 0;  // loading: the number of bytes that the buffer holds
    int m_nExceptions;       // how many exceptions were passing when the archive was made
};

// The bytes of a number, one expression, which the compiler makes one instruction of where it can.
template <class T, std::size_t... I>
void PutBytes(T value, BYTE* pBytes, std::index_sequence<I...>)
{
    ((pBytes[I] = static_cast<BYTE>(static_cast<std::make_unsigned_t<T>>(value) >> (8 * I))), ...);
}

template <class T, std::size_t... I>
T GetBytes(const BYTE* pBytes, std::index_sequence<I...>)
{
    return static_cast<T>(((static_cast<ULONGLONG>(pBytes[I]) << (8 * I)) | ...));
}

// Numbers that lie in the buffer whole need no call.
template <ArchiveNumber T>
CArchive& CArchive::operator<<(T value)
{
    constexpr std::make_index_sequence<sizeof(T)> kBytes;
    if (IsStoring() && m_pFile && m_nSize - m_nNext >= sizeof(T)) {
        PutBytes(value, m_pBuffer + m_nNext, kBytes);
        m_nNext += sizeof(T);
        return *this;
    }
    BYTE bytes[sizeof(T)];
    PutBytes(value, bytes, kBytes);
    Write(bytes, sizeof(T));
    return *this;
}

template <ArchiveNumber T>
CArchive& CArchive::operator>>(T& value)
{
    constexpr std::make_index_sequence<sizeof(T)> kBytes;
    if (IsLoading() && m_nEnd - m_nNext >= sizeof(T)) {
        value = GetBytes<T>(m_pBuffer + m_nNext, kBytes);
        m_nNext += sizeof(T);
        return *this;
    }
    BYTE bytes[sizeof(T)];
    ReadExactly(bytes, sizeof(T));
    value = GetBytes<T>(bytes, kBytes);
    return *this;
}
