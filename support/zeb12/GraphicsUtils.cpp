#include "GraphicsUtils.h"

namespace {
// Present on both platforms, on Linux through a face of the same metrics.
constexpr char DEFAULT_FACE[] = "Arial";
}

void GraphicsUtils::SetDefaultFont(LOGFONTA& lf, const CString& strFace, int nHeight, int nWeight,
                                   bool bItalic, bool bUnderline, bool bStrikeOut)
{
    lf = LOGFONTA();
    lf.lfHeight = nHeight;
    lf.lfWeight = nWeight < 0 ? FW_NORMAL : nWeight;
    lf.lfItalic = bItalic;
    lf.lfUnderline = bUnderline;
    lf.lfStrikeOut = bStrikeOut;
    lf.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpynA(lf.lfFaceName, strFace.IsEmpty() ? DEFAULT_FACE : strFace.GetString(), LF_FACESIZE);
}
