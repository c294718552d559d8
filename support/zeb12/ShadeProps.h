// The shading of the face of a control in each of its states.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

#include <array>

class ZEB17_EXPORT ShadeProps
{
public:
    // The states: at rest, under the pointer, held down, disabled.
    enum State
    {
        StateNormal,
        StateHot,
        StatePressed,
        StateDisabled,
        StateCount
    };

    // A face runs from `m_crFrom` at its top to `m_crTo` at its bottom; equal colours make it flat.
    struct Face
    {
        COLORREF m_crFrom;   // this and the others are 0x00BBGGRR
        COLORREF m_crTo;     // the colour at the bottom
        COLORREF m_crBorder; // the line around the face
    };

    // Flat faces in the colours that the system has for push buttons.
    ShadeProps();
    // One face for each state, in the order of the states.
    explicit ShadeProps(const std::array<Face, StateCount>& aFaces);

    // Faces that keep to the colours of the system for the text of push buttons and what lies behind it, so
    // that they can be read in its dark and high-contrast themes.
    static ShadeProps OfSystemTheme();

    // Whether text of this colour can be read on every face: its contrast is about 3 or more, as the Web
    // Content Accessibility Guidelines 2.0 (W3C, 2008) define contrast.
    bool CanCarry(COLORREF crText) const;

    // The face of a state.
    const Face& GetFace(State eState) const { return m_aFaces[eState]; }

    // Fills `rect` with the face of the state and draws its border, 1 pixel wide, inside the edge.
    void Draw(CDC* pDC, const CRect& rect, State eState) const;

private:
    std::array<Face, StateCount> m_aFaces;
};
