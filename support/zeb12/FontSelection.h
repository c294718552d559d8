// A font that is selected in a context for a while.
#pragma once

#include <afxgdi_.h>

class FontSelection
{
public:
    // Selects the font. Context and font must outlive the object.
    FontSelection(CDC& dc, const CFont& font)
        : m_hDC(dc.m_hDC), m_hOld(::SelectObject(dc.m_hDC, font.m_hObject))
    {
    }
    // Selects the font that was selected before.
    ~FontSelection() { ::SelectObject(m_hDC, m_hOld); }
    FontSelection(const FontSelection&) = delete;
    FontSelection& operator=(const FontSelection&) = delete;

private:
    HDC m_hDC;
    HGDIOBJ m_hOld;
};
