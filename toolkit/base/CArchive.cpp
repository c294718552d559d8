#include "CArchive.h"

#include "WideText.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <exception>
#include <utility>

namespace {

constexpr int kMinBufferSize = 128;

// Lead-ins of a wider length or count, and of a text of 16-bit characters.
constexpr BYTE kLongLength = 0xFF;
constexpr WORD kWideText = 0xFFFE;
constexpr WORD kLongCount = 0xFFFF;
constexpr DWORD kLongerCount = 0xFFFFFFFF;

// From UTF-16, little-endian.
CString ToText(const std::string& bytes)
{
    WideText wide(bytes.size() / 2, WCHAR());
    for (std::size_t i = 0; i < wide.size(); ++i)
        wide[i] =
            static_cast<WCHAR>(static_cast<BYTE>(bytes[2 * i]) | static_cast<BYTE>(bytes[2 * i + 1]) << 8);
    return FromWide(wide);
}

}

CArchive::CArchive(CFile* file, UINT mode, int bufferSize, void* buffer)
    : m_file(file), m_mode(mode & load ? load : store),
      m_size(static_cast<std::size_t>(std::max(bufferSize, kMinBufferSize))),
      m_exceptions(std::uncaught_exceptions())
{
    if (!buffer)
        m_ownBuffer = std::make_unique<BYTE[]>(m_size);
    m_buffer = buffer ? static_cast<BYTE*>(buffer) : m_ownBuffer.get();
}

CArchive::~CArchive() noexcept(false)
{
    if (std::uncaught_exceptions() == m_exceptions)
        Close();
}

void CArchive::Flush()
{
    if (!m_file)
        return;
    const std::size_t next = std::exchange(m_next, 0);
    const std::size_t end = std::exchange(m_end, 0);
    if (IsStoring() && next > 0)
        m_file->Write(m_buffer, static_cast<UINT>(next));
    if (IsLoading() && next < end)
        m_file->Seek(-static_cast<LONGLONG>(end - next), CFile::current);
}

void CArchive::Close()
{
    Flush();
    m_file = nullptr;
}

void CArchive::Abort()
{
    m_next = m_end = 0;
    m_file = nullptr;
}

UINT CArchive::Read(void* buffer, UINT count)
{
    RequireLoading();
    auto* out = static_cast<BYTE*>(buffer);
    UINT done = 0;
    while (done < count && (m_next < m_end || FillBuffer())) {
        const auto part = static_cast<UINT>(std::min<std::size_t>(count - done, m_end - m_next));
        std::memcpy(out + done, m_buffer + m_next, part);
        m_next += part;
        done += part;
    }
    return done;
}

void CArchive::Write(const void* buffer, UINT count)
{
    RequireStoring();
    const auto* in = static_cast<const BYTE*>(buffer);
    UINT done = 0;
    while (done < count) {
        if (m_next == m_size)
            Flush();
        const auto part = static_cast<UINT>(std::min<std::size_t>(count - done, m_size - m_next));
        std::memcpy(m_buffer + m_next, in + done, part);
        m_next += part;
        done += part;
    }
}

ULONGLONG CArchive::GetBytesLeft() const
{
    RequireLoading();
    const ULONGLONG length = m_file->GetLength();
    return m_end - m_next + length - std::min(length, m_file->GetPosition());
}

ULONGLONG CArchive::ReadCount()
{
    WORD count;
    *this >> count;
    return count == kLongCount ? ReadLongCount() : count;
}

void CArchive::WriteCount(ULONGLONG count)
{
    if (count < kLongCount) {
        *this << static_cast<WORD>(count);
        return;
    }
    *this << kLongCount;
    if (count < kLongerCount) {
        *this << static_cast<DWORD>(count);
        return;
    }
    *this << kLongerCount << count;
}

CArchive& CArchive::operator<<(const CString& text)
{
    const auto length = static_cast<UINT>(text.GetLength());
    if (length < kLongLength)
        *this << static_cast<BYTE>(length);
    else if (length < kWideText)
        *this << kLongLength << static_cast<WORD>(length);
    else
        *this << kLongLength << kLongCount << static_cast<DWORD>(length);
    Write(text.GetString(), length);
    return *this;
}

CArchive& CArchive::operator>>(CString& text)
{
    bool wide = false;
    const ULONGLONG length = ReadLength(wide);
    text = wide ? ToText(ReadBytes(length, sizeof(WCHAR))) : CString(ReadBytes(length, 1));
    return *this;
}

void CArchive::RequireLoading() const
{
    if (!m_file || !IsLoading())
        AfxThrowArchiveException(CArchiveException::writeOnly, m_file ? m_file->GetFilePath() : CString());
}

void CArchive::RequireStoring() const
{
    if (!m_file || !IsStoring())
        AfxThrowArchiveException(CArchiveException::readOnly, m_file ? m_file->GetFilePath() : CString());
}

bool CArchive::FillBuffer()
{
    m_next = 0;
    m_end = m_file->Read(m_buffer, static_cast<UINT>(m_size));
    return m_end > 0;
}

void CArchive::ReadExactly(void* buffer, UINT count)
{
    if (Read(buffer, count) != count)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_file->GetFilePath());
}

// What follows the 16-bit lead-in of a long count.
ULONGLONG CArchive::ReadLongCount()
{
    DWORD count;
    *this >> count;
    if (count != kLongerCount)
        return count;
    ULONGLONG longerCount;
    *this >> longerCount;
    return longerCount;
}

// The length of a text in characters; sets `wide` if they have 16 bits.
ULONGLONG CArchive::ReadLength(bool& wide)
{
    BYTE length;
    *this >> length;
    if (length != kLongLength)
        return length;

    WORD longLength;
    *this >> longLength;
    if (longLength == kWideText && !wide) {
        wide = true;
        return ReadLength(wide);
    }
    return longLength == kLongCount ? ReadLongCount() : longLength;
}

// Takes no memory for more than the file still holds.
std::string CArchive::ReadBytes(ULONGLONG count, std::size_t size)
{
    if (count > (m_end - m_next) / size && count > GetBytesLeft() / size)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_file->GetFilePath());
    if (count > INT_MAX / size)
        AfxThrowMemoryException(); // more than a text can hold
    std::string bytes(static_cast<std::size_t>(count) * size, '\0');
    ReadExactly(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}
