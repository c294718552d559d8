// Drawing helpers that belong to no single class.
#pragma once

#include <afxwin.h>
#include <zeb17_export.h>

class ZEB17_EXPORT GraphicsUtils
{
public:
    // Fills in the description of a font.
    //   strFace    the face; empty for the default face of the user interface
    //   nHeight    height of a line in pixels
    //   nWeight    weight as in LOGFONT, 100 to 900; -1 for the normal weight
    static void SetDefaultFont(LOGFONTA& lf, const CString& strFace, int nHeight, int nWeight, bool bItalic,
                               bool bUnderline, bool bStrikeOut);
};
