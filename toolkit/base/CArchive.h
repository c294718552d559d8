// A stream of numbers and texts on a file, with a buffer: little-endian, without padding.
#pragma once

#include "CFile.h"

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>

// A number that an archive stores in its own width. `bool` is none, and neither is `long` where it is wider
// than the 32 bits that it has in a file.
template <class T>
concept ArchiveNumber = std::integral<T> && !std::same_as<T, bool> &&
                        (sizeof(long) == 4 || (!std::same_as<T, long> && !std::same_as<T, unsigned long>));

// Reading past the end of the file throws a CArchiveException with the cause endOfFile; the file's own
// failures come through as CFileException. Lengths and counts in a file are not believed: a text takes memory
// only as its characters are read.
class ZEB17_EXPORT CArchive
{
public:
    enum Mode : UINT
    {
        store = 0,
        load = 1
    };

    // The file stays the caller's and must outlive the archive. With a null buffer the archive makes one of
    // `bufferSize` bytes (at least 128); else the buffer stays the caller's.
    CArchive(CFile* file, UINT mode, int bufferSize = 4096, void* buffer = nullptr);
    // Closes an archive that was not closed, with the exceptions of Close; while an exception passes, what is
    // buffered is dropped instead.
    ~CArchive() noexcept(false);
    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    bool IsLoading() const { return m_mode == load; }
    bool IsStoring() const { return m_mode == store; }
    CFile* GetFile() const { return m_file; }

    // Writes what is buffered to the file; loading, puts the file's position where the archive's is.
    void Flush();
    // Flushes and ends the archive. The file stays open.
    void Close();
    // Ends the archive and drops what is buffered.
    void Abort();

    // Reads up to `count` bytes and returns how many; fewer only at the end of the file.
    UINT Read(void* buffer, UINT count);
    void Write(const void* buffer, UINT count);

    // How many bytes can still be read at most: a bound for any count that a file claims.
    ULONGLONG GetBytesLeft() const;

    // A count in the customary form: 16 bits, or 0xFFFF and 32, or 0xFFFF, 0xFFFFFFFF and 64.
    ULONGLONG ReadCount();
    void WriteCount(ULONGLONG count);

    template <ArchiveNumber T>
    CArchive& operator<<(T value);
    template <ArchiveNumber T>
    CArchive& operator>>(T& value);
    CArchive& operator<<(const CString& text);
    // Texts of 16-bit characters are turned into 8-bit ones.
    CArchive& operator>>(CString& text);

private:
    void RequireLoading() const;
    void RequireStoring() const;
    void ReadExactly(void* buffer, UINT count);
    bool FillBuffer();
    ULONGLONG ReadLongCount();
    ULONGLONG ReadLength(bool& wide);
    std::string ReadBytes(ULONGLONG count, std::size_t size);

    CFile* m_file;
    Mode m_mode;
    std::unique_ptr<BYTE[]> m_ownBuffer;
    BYTE* m_buffer;
    std::size_t m_size;
    std::size_t m_next = 0; // where the buffer is read or written next
    std::size_t m_end = 0;  // loading: behind the last byte read from the file
    int m_exceptions;       // passing when the archive was made
};

template <ArchiveNumber T>
CArchive& CArchive::operator<<(T value)
{
    BYTE bytes[sizeof(T)];
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bytes[i] = static_cast<BYTE>(static_cast<std::make_unsigned_t<T>>(value) >> (8 * i));
    Write(bytes, sizeof(T));
    return *this;
}

template <ArchiveNumber T>
CArchive& CArchive::operator>>(T& value)
{
    BYTE bytes[sizeof(T)];
    ReadExactly(bytes, sizeof(T));
    ULONGLONG bits = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bits |= static_cast<ULONGLONG>(bytes[i]) << (8 * i);
    value = static_cast<T>(bits);
    return *this;
}
