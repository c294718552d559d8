// The description of a font.
#include "GraphicsUtils.h"

namespace {

// Known on both platforms; Linux has a face of the same measures in its place.
constexpr char kDefaultFace[] = "Arial";

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
    ::lstrcpynA(lf.lfFaceName, strFace.IsEmpty() ? kDefaultFace : strFace.GetString(), LF_FACESIZE);
}
