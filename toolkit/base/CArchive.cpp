// The buffer of an archive, and the stored forms of texts and counts.
#include "CArchive.h"

#include "WideText.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <exception>
#include <string_view>
#include <utility>

namespace {

constexpr int kMinBufferSize = 128;

// Values that stand before a longer form of a length or a count, and before a text of 16-bit characters.
constexpr BYTE kLongLength = 0xFF;
constexpr WORD kWideText = 0xFFFE;
constexpr WORD kLongCount = 0xFFFF;
constexpr DWORD kLongerCount = 0xFFFFFFFF;

// Whether the text is the same in every code page.
bool IsAscii(const CString& strText)
{
    const std::string_view strBytes(strText.GetString(), static_cast<std::size_t>(strText.GetLength()));
    return std::ranges::all_of(strBytes, [](char ch) { return static_cast<BYTE>(ch) < 0x80; });
}

std::string ToLittleEndianUtf16(const WideText& strWide)
{
    std::string strBytes;
    strBytes.reserve(2 * strWide.size());
    for (const WCHAR ch : strWide) {
        strBytes += static_cast<char>(ch & 0xFF);
        strBytes += static_cast<char>(ch >> 8 & 0xFF);
    }
    return strBytes;
}

CString FromLittleEndianUtf16(const std::string& strBytes)
{
    WideText strWide(strBytes.size() / 2, WCHAR());
    for (std::size_t i = 0; i < strWide.size(); ++i) {
        const auto byLow = static_cast<BYTE>(strBytes[2 * i]);
        const auto byHigh = static_cast<BYTE>(strBytes[2 * i + 1]);
        strWide[i] = static_cast<WCHAR>(byLow | byHigh << 8);
    }
    return FromWide(strWide);
}

}

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufferSize, void* pBuffer)
    : m_pFile(pFile), m_nMode(nMode & load ? load : store),
      m_nSize(static_cast<std::size_t>(std::max(nBufferSize, kMinBufferSize))),
      m_nExceptions(std::uncaught_exceptions())
{
    if (!pBuffer)
        m_pOwnBuffer = std::make_unique<BYTE[]>(m_nSize);
    m_pBuffer = pBuffer ? static_cast<BYTE*>(pBuffer) : m_pOwnBuffer.get();
}

CArchive::~CArchive() noexcept(false)
{
    if (std::uncaught_exceptions() == m_nExceptions)
        Close();
}

void CArchive::Flush()
{
    if (!m_pFile)
        return;
    const std::size_t nNext = std::exchange(m_nNext, 0);
    const std::size_t nEnd = std::exchange(m_nEnd, 0);
    if (IsStoring() && nNext > 0)
        m_pFile->Write(m_pBuffer, static_cast<UINT>(nNext));
    if (IsLoading() && nNext < nEnd)
        m_pFile->Seek(-static_cast<LONGLONG>(nEnd - nNext), CFile::current);
}

void CArchive::Close()
{
    Flush();
    m_pFile = nullptr;
}

UINT CArchive::Read(void* pBuffer, UINT nCount)
{
    RequireLoading();
    auto* pOut = static_cast<BYTE*>(pBuffer);
    UINT nDone = 0;
    while (nDone < nCount && (m_nNext < m_nEnd || FillBuffer())) {
        const auto nPart = static_cast<UINT>(std::min<std::size_t>(nCount - nDone, m_nEnd - m_nNext));
        std::memcpy(pOut + nDone, m_pBuffer + m_nNext, nPart);
        m_nNext += nPart;
        nDone += nPart;
    }
    return nDone;
}

void CArchive::Write(const void* pBuffer, UINT nCount)
{
    RequireStoring();
    const auto* pIn = static_cast<const BYTE*>(pBuffer);
    UINT nDone = 0;
    while (nDone < nCount) {
        if (m_nNext == m_nSize)
            Flush();
        const auto nPart = static_cast<UINT>(std::min<std::size_t>(nCount - nDone, m_nSize - m_nNext));
        std::memcpy(m_pBuffer + m_nNext, pIn + nDone, nPart);
        m_nNext += nPart;
        nDone += nPart;
    }
}

ULONGLONG CArchive::GetBytesLeft() const
{
    RequireLoading();
    const ULONGLONG nLength = m_pFile->GetLength();
    return m_nEnd - m_nNext + nLength - std::min(nLength, m_pFile->GetPosition());
}

ULONGLONG CArchive::ReadCount()
{
    WORD wCount;
    *this >> wCount;
    return wCount == kLongCount ? ReadLongCount() : wCount;
}

void CArchive::WriteCount(ULONGLONG nCount)
{
    if (nCount < kLongCount) {
        *this << static_cast<WORD>(nCount);
        return;
    }
    *this << kLongCount;
    if (nCount < kLongerCount) {
        *this << static_cast<DWORD>(nCount);
        return;
    }
    *this << kLongerCount << nCount;
}

// Text beyond ASCII is stored in 16-bit characters; bytes that are no text in the code page are stored as
// they are.
CArchive& CArchive::operator<<(const CString& strText)
{
    const WideText strWide = IsAscii(strText) ? WideText() : ToWideIfValid(strText);
    if (strWide.empty()) {
        WriteLength(static_cast<UINT>(strText.GetLength()));
        Write(strText.GetString(), static_cast<UINT>(strText.GetLength()));
        return *this;
    }
    const std::string strBytes = ToLittleEndianUtf16(strWide);
    *this << kLongLength << kWideText;
    WriteLength(static_cast<UINT>(strWide.size()));
    Write(strBytes.data(), static_cast<UINT>(strBytes.size()));
    return *this;
}

CArchive& CArchive::operator>>(CString& strText)
{
    bool bWide = false;
    const ULONGLONG nLength = ReadLength(bWide);
    if (bWide) {
        strText = FromLittleEndianUtf16(ReadBytes(nLength, sizeof(WCHAR)));
    } else if (nLength <= m_nEnd - m_nNext) { // it lies in the buffer whole
        strText = CString(reinterpret_cast<const char*>(m_pBuffer) + m_nNext, static_cast<int>(nLength));
        m_nNext += static_cast<std::size_t>(nLength);
    } else {
        strText = CString(ReadBytes(nLength, 1));
    }
    return *this;
}

void CArchive::RequireLoading() const
{
    if (!m_pFile || !IsLoading())
        AfxThrowArchiveException(CArchiveException::writeOnly, m_pFile ? m_pFile->GetFilePath() : CString());
}

void CArchive::RequireStoring() const
{
    if (!m_pFile || !IsStoring())
        AfxThrowArchiveException(CArchiveException::readOnly, m_pFile ? m_pFile->GetFilePath() : CString());
}

bool CArchive::FillBuffer()
{
    m_nNext = 0;
    m_nEnd = m_pFile->Read(m_pBuffer, static_cast<UINT>(m_nSize));
    return m_nEnd > 0;
}

void CArchive::ReadExactly(void* pBuffer, UINT nCount)
{
    if (Read(pBuffer, nCount) != nCount)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_pFile->GetFilePath());
}

// What follows kLongCount.
ULONGLONG CArchive::ReadLongCount()
{
    DWORD dwCount;
    *this >> dwCount;
    if (dwCount != kLongerCount)
        return dwCount;
    ULONGLONG nLongerCount;
    *this >> nLongerCount;
    return nLongerCount;
}

void CArchive::WriteLength(UINT nLength)
{
    if (nLength < kLongLength)
        *this << static_cast<BYTE>(nLength);
    else if (nLength < kWideText)
        *this << kLongLength << static_cast<WORD>(nLength);
    else
        *this << kLongLength << kLongCount << static_cast<DWORD>(nLength);
}

// The length of a text in characters; bWide becomes true if they have 16 bits.
ULONGLONG CArchive::ReadLength(bool& bWide)
{
    BYTE byLength;
    *this >> byLength;
    if (byLength != kLongLength)
        return byLength;

    WORD wLength;
    *this >> wLength;
    if (wLength == kWideText && !bWide) {
        bWide = true;
        return ReadLength(bWide);
    }
    return wLength == kLongCount ? ReadLongCount() : wLength;
}

// Takes no memory before it knows that the file still holds so much.
std::string CArchive::ReadBytes(ULONGLONG nCount, std::size_t nSize)
{
    if (nCount > (m_nEnd - m_nNext) / nSize && nCount > GetBytesLeft() / nSize)
        AfxThrowArchiveException(CArchiveException::endOfFile, m_pFile->GetFilePath());
    if (nCount > INT_MAX / nSize)
        AfxThrowMemoryException(); // more than a text can hold
    std::string strBytes(static_cast<std::size_t>(nCount) * nSize, '\0');
    ReadExactly(strBytes.data(), static_cast<UINT>(strBytes.size()));
    return strBytes;
}
