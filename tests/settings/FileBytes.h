// The data file by docs/data-file.md alone, written and read byte by byte without the product's code.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

struct OverlayRecord
{
    std::int32_t nID = 0;
    std::uint32_t nColor = 0xFFFFFF;
    bool bShow = true;

    bool operator==(const OverlayRecord&) const = default;
};

struct DateRecord
{
    std::int32_t nRule = 1; // a fixed date
    std::int32_t nKind = 0;
    bool bRuleFlag = false;
    std::int32_t anRule[4] = {4, 7, 0, 0}; // 4 July
    std::int32_t nStartYear = 0;
    std::int32_t nID = 0;
    std::string strDesc = "Fourth";

    bool operator==(const DateRecord&) const = default;
};

struct EntryRecord
{
    DateRecord date;
    bool bShow = true;
    std::uint32_t nColor = 0xFFFFFF;

    bool operator==(const EntryRecord&) const = default;
};

class FileBytes
{
public:
    FileBytes& Number(std::uint64_t nValue, int nBytes)
    {
        for (int i = 0; i < nBytes; ++i)
            m_bytes += static_cast<char>(nValue >> (8 * i));
        return *this;
    }
    FileBytes& U8(unsigned nValue) { return Number(nValue, 1); }
    FileBytes& U16(unsigned nValue) { return Number(nValue, 2); }
    FileBytes& U32(std::uint32_t nValue) { return Number(nValue, 4); }
    FileBytes& I32(std::int32_t nValue) { return Number(static_cast<std::uint32_t>(nValue), 4); }
    FileBytes& U64(std::uint64_t nValue) { return Number(nValue, 8); }
    FileBytes& Raw(const std::string& bytes)
    {
        m_bytes += bytes;
        return *this;
    }

    FileBytes& Text(const std::string& text)
    {
        if (text.size() < 255)
            return U8(static_cast<unsigned>(text.size())).Raw(text);
        if (text.size() < 0xFFFE)
            return U8(255).U16(static_cast<unsigned>(text.size())).Raw(text);
        return U8(255).U16(0xFFFF).U32(static_cast<std::uint32_t>(text.size())).Raw(text);
    }

    FileBytes& Date(const DateRecord& date, unsigned nForm = 2)
    {
        U16(nForm).I32(date.nRule).I32(date.nKind);
        if (nForm == 2)
            U8(date.bRuleFlag ? 1 : 0);
        for (const std::int32_t nValue : date.anRule)
            I32(nValue);
        if (nForm == 2)
            I32(date.nStartYear);
        return I32(date.nID).Text(date.strDesc);
    }
    FileBytes& Entry(const EntryRecord& entry, unsigned nForm = 2)
    {
        return Date(entry.date, nForm).U16(1).U8(entry.bShow ? 1 : 0).U32(entry.nColor);
    }

    FileBytes& Overlay(const std::vector<OverlayRecord>& records, unsigned nSectionWord = 2)
    {
        U16(nSectionWord).Number(records.size(), nSectionWord == 1 ? 2 : 8);
        for (const OverlayRecord& record : records)
            I32(record.nID).U32(record.nColor).U8(record.bShow ? 1 : 0);
        return *this;
    }
    FileBytes& Custom(const std::vector<EntryRecord>& entries, unsigned nSectionWord = 3)
    {
        U16(nSectionWord).Number(entries.size(), nSectionWord <= 2 ? 2 : 8);
        for (const EntryRecord& entry : entries)
            nSectionWord == 1 ? Date(entry.date) : Entry(entry);
        return *this;
    }
    FileBytes& ToDo(const std::vector<EntryRecord>& entries, unsigned nSectionWord = 1)
    {
        U16(nSectionWord).U64(entries.size());
        for (const EntryRecord& entry : entries)
            Entry(entry);
        return *this;
    }

    std::size_t Size() const { return m_bytes.size(); }
    operator const std::string&() const { return m_bytes; }

private:
    std::string m_bytes;
};

// What a file of version 4 holds.
struct FileContent
{
    unsigned nFileWord = 0;
    std::vector<OverlayRecord> us, canada, netherlands;
    unsigned nCustomWord = 0;
    std::vector<EntryRecord> custom;
    unsigned nToDoWord = 0;
    std::vector<EntryRecord> toDo;
    std::uint32_t nNextCustomID = 0;
};

class FileParser
{
public:
    explicit FileParser(const std::string& bytes) : m_bytes(bytes) {}

    FileContent Parse()
    {
        FileContent content;
        content.nFileWord = static_cast<unsigned>(Number(2));
        for (auto* pRecords : {&content.us, &content.canada, &content.netherlands})
            ParseOverlay(*pRecords);
        content.nCustomWord = ParseEntries(content.custom);
        content.nToDoWord = ParseEntries(content.toDo);
        content.nNextCustomID = static_cast<std::uint32_t>(Number(4));
        if (m_nNext != m_bytes.size())
            throw std::runtime_error("bytes behind the last field");
        return content;
    }

private:
    std::uint64_t Number(int nBytes)
    {
        std::uint64_t nValue = 0;
        for (int i = 0; i < nBytes; ++i)
            nValue |= static_cast<std::uint64_t>(static_cast<unsigned char>(m_bytes.at(m_nNext++)))
                      << (8 * i);
        return nValue;
    }
    std::int32_t I32() { return static_cast<std::int32_t>(Number(4)); }
    bool Flag()
    {
        const auto nValue = Number(1);
        if (nValue > 1)
            throw std::runtime_error("a flag is written as 0 or 1");
        return nValue == 1;
    }
    void Expect(unsigned nWord)
    {
        if (Number(2) != nWord)
            throw std::runtime_error("another word than is written here");
    }
    std::string Text()
    {
        std::uint64_t nLength = Number(1);
        if (nLength == 255)
            nLength = Number(2);
        if (nLength == 0xFFFF)
            nLength = Number(4);
        const std::string text = m_bytes.substr(m_nNext, nLength);
        m_nNext += nLength;
        return text;
    }

    void ParseOverlay(std::vector<OverlayRecord>& records)
    {
        Expect(2);
        for (auto nCount = Number(8); nCount > 0; --nCount) {
            OverlayRecord& record = records.emplace_back();
            record.nID = I32();
            record.nColor = static_cast<std::uint32_t>(Number(4));
            record.bShow = Flag();
        }
    }
    unsigned ParseEntries(std::vector<EntryRecord>& entries)
    {
        const auto nSectionWord = static_cast<unsigned>(Number(2));
        for (auto nCount = Number(8); nCount > 0; --nCount) {
            EntryRecord& entry = entries.emplace_back();
            Expect(2);
            entry.date.nRule = I32();
            entry.date.nKind = I32();
            entry.date.bRuleFlag = Flag();
            for (std::int32_t& nValue : entry.date.anRule)
                nValue = I32();
            entry.date.nStartYear = I32();
            entry.date.nID = I32();
            entry.date.strDesc = Text();
            Expect(1);
            entry.bShow = Flag();
            entry.nColor = static_cast<std::uint32_t>(Number(4));
        }
        return nSectionWord;
    }

    const std::string m_bytes;
    std::size_t m_nNext = 0;
};
