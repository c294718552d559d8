// How the face of a control is shaded in each of its states.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>
#include <array>

class ZEB17_EXPORT ShadeProps
{
public:
    enum State
    {
        StateNormal,
        StateHot,
        StatePressed,
        StateDisabled,
        StateCount
    };
    enum Direction
    {
        DirectionDown,
        DirectionRight
    };

    // A face runs from `m_crFrom` at its top to `m_crTo` at its bottom; equal colours make it flat.
    struct Face
    {
        COLORREF m_crFrom;
        COLORREF m_crTo;
        COLORREF m_crBorder;
    };

    // A flat look in the colours that the system has for push buttons.
    ShadeProps();
    explicit ShadeProps(const std::array<Face, StateCount>& aFaces);

    const Face& GetFace(State eState) const { return m_aFaces[eState]; }

    // Fills `rect` with the face of the state and draws its border, 1 pixel wide, inside the edge.
    void Draw(CDC* pDC, const CRect& rect, State eState) const;

private:
    std::array<Face, StateCount> m_aFaces;
};
