// Shapes that other rooms draw too.
#pragma once

#include "windef.h"

namespace winapi {

// Fills `rect` (context coordinates) with `brush`, as FillRect does; system colours count as brushes (index +
// 1).
void eraseRect(HDC dc, const RECT& rect, HBRUSH brush);
// Fills the ellipse that touches the edges of `rect` with the brush of the context, and draws its outline
// with the pen.
void drawEllipse(HDC dc, const RECT& rect);

}
