// Fonts, the measures of text, and single lines of it.
#include "text.h"

#include "application.h"
#include "context_painter.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace winapi {

namespace {

// The faces that Windows programs ask for by name, for systems that don't have them.
QStringList familiesFor(const QString& face)
{
    struct Substitute
    {
        const char* face;
        const char* families;
    };
    static constexpr const char* sans = "Liberation Sans,Arial,DejaVu Sans";
    static constexpr Substitute substitutes[] = {
        {"", sans},
        {"System", sans},
        {"MS Sans Serif", sans},
        {"MS Shell Dlg", sans},
        {"MS Shell Dlg 2", sans},
        {"Tahoma", sans},
        {"Segoe UI", sans},
        {"Arial", sans},
        {"Times New Roman", "Liberation Serif,DejaVu Serif"},
        {"Courier New", "Liberation Mono,DejaVu Sans Mono"},
    };
    QStringList families(face);
    for (const Substitute& substitute : substitutes)
        if (face.compare(QLatin1String(substitute.face), Qt::CaseInsensitive) == 0)
            families += QString::fromLatin1(substitute.families).split(',');
    families.removeAll(QString());
    return families;
}

QFont::StyleHint styleHint(BYTE pitchAndFamily)
{
    if ((pitchAndFamily & 0xF0) == FF_MODERN || (pitchAndFamily & 0x03) == FIXED_PITCH)
        return QFont::TypeWriter;
    return (pitchAndFamily & 0xF0) == FF_ROMAN ? QFont::Serif : QFont::SansSerif;
}

int lineHeightAt(QFont font, int pixelSize)
{
    font.setPixelSize(pixelSize);
    const QFontMetrics metrics(font);
    return metrics.ascent() + metrics.descent();
}

// The largest size of the letters at which a line is no higher than asked for.
int pixelSizeForLine(const QFont& font, int height)
{
    constexpr int sample = 1000;
    int size = std::max(1, height * sample / lineHeightAt(font, sample) - 1);
    while (lineHeightAt(font, size + 1) <= height)
        ++size;
    return size;
}

void setHeight(QFont& font, LONG height)
{
    constexpr int defaultHeight = 16;
    if (height < 0)
        font.setPixelSize(-height);
    else
        font.setPixelSize(pixelSizeForLine(font, height == 0 ? defaultHeight : height));
}

QFont scaledFont(QFont font, qreal scale)
{
    font.setPixelSize(std::max(1, qRound(font.pixelSize() * scale)));
    return font;
}

// Text that is used to find the average width of a letter, as Windows does.
const QString& alphabet()
{
    static const QString letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    return letters;
}

int averageWidth(const TextMeasure& measure)
{
    return (measure.width(alphabet()) / 26 + 1) / 2;
}

// The upper left corner of a line that is placed at `reference`, as the alignment says.
QPoint aligned(QPoint reference, UINT align, int width, const TextMeasure& measure)
{
    const UINT horizontal = align & TA_CENTER;
    if (horizontal == TA_CENTER)
        reference.rx() -= width / 2;
    else if (horizontal == TA_RIGHT)
        reference.rx() -= width;
    const UINT vertical = align & TA_BASELINE;
    if (vertical == TA_BASELINE)
        reference.ry() -= measure.ascent();
    else if (vertical == TA_BOTTOM)
        reference.ry() -= measure.height();
    return reference;
}

// Where the next text goes when texts are placed one behind the other.
void advancePosition(DrawingState& state, int width)
{
    const UINT horizontal = state.textAlign & TA_CENTER;
    if ((state.textAlign & TA_UPDATECP) && horizontal != TA_CENTER)
        state.position.rx() += horizontal == TA_RIGHT ? -width : width;
}

void fillBackground(Context& context, const RECT& rect)
{
    const QRect area = toQRect(rect);
    ContextPainter painter(context, area);
    if (painter)
        painter->fillRect(area, toColor(context.state.backgroundColor));
}

void placeText(Context& context, QPoint position, const QString& text, const QRect* clip)
{
    const TextMeasure measure(context);
    const int width = measure.width(text);
    const QPoint reference = context.state.textAlign & TA_UPDATECP ? context.state.position : position;
    const QPoint corner = aligned(reference, context.state.textAlign, width, measure);
    advancePosition(context.state, width);
    ContextPainter painter(context, touchedByText(QRect(corner, QSize(width, measure.height())), measure));
    if (!painter)
        return;
    if (clip)
        painter->setClipRect(*clip, Qt::IntersectClip);
    drawTextLine(*painter, context, corner, text);
}

}

QFont toFont(const LOGFONTA& description)
{
    application();
    const auto length = strnlen(description.lfFaceName, LF_FACESIZE);
    QFont font;
    font.setFamilies(familiesFor(QString::fromUtf8(description.lfFaceName, static_cast<qsizetype>(length))));
    // Grey letters on whole pixels, hinted and without kerning, so that text is as wide as its letters.
    const auto strategy = QFont::PreferAntialias | QFont::NoSubpixelAntialias;
    font.setStyleHint(styleHint(description.lfPitchAndFamily), static_cast<QFont::StyleStrategy>(strategy));
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setKerning(false);
    if (description.lfWeight != FW_DONTCARE)
        font.setWeight(static_cast<QFont::Weight>(std::clamp<LONG>(description.lfWeight, 1, 1000)));
    font.setItalic(description.lfItalic != 0);
    font.setUnderline(description.lfUnderline != 0);
    font.setStrikeOut(description.lfStrikeOut != 0);
    setHeight(font, description.lfHeight);
    return font;
}

TextMeasure::TextMeasure(const Context& context)
    : m_scale(context.scale()), m_font(scaledFont(context.state.font->font, m_scale.height())),
      m_metrics(m_font, &context.surface().device())
{
}

int TextMeasure::width(const QString& text) const
{
    return qRound(m_metrics.horizontalAdvance(text) / m_scale.width());
}

QString toText(LPCSTR text, int length)
{
    return text ? QString::fromUtf8(text, length).replace(u'\t', u' ') : QString();
}

QRect touchedByText(const QRect& area, const TextMeasure& measure)
{
    const int overhang = measure.height();
    return area.adjusted(-overhang, 0, overhang, 0);
}

void drawTextLine(QPainter& painter, const Context& context, QPoint position, const QString& text)
{
    const DrawingState& state = context.state;
    const TextMeasure measure(context);
    if (state.backgroundMode == OPAQUE) {
        const QSize extent(measure.width(text), measure.height());
        painter.fillRect(QRect(position, extent), toColor(state.backgroundColor));
    }
    painter.save();
    painter.translate(position + QPoint(0, measure.ascent()));
    painter.scale(1 / measure.scale().width(), 1 / measure.scale().height());
    painter.setFont(measure.deviceFont());
    painter.setPen(toColor(state.textColor));
    painter.drawText(QPoint(0, 0), text);
    painter.restore();
}

}

using namespace winapi;

BOOL TextOutA(HDC dc, int x, int y, LPCSTR text, int length)
{
    return length >= 0 && ExtTextOutA(dc, x, y, 0, nullptr, text, static_cast<UINT>(length), nullptr);
}

BOOL ExtTextOutA(HDC dc, int x, int y, UINT options, const RECT* rect, LPCSTR text, UINT length, const INT*)
{
    const auto context = findContext(dc);
    if (!context || (length > 0 && !text))
        return FALSE;
    if ((options & ETO_OPAQUE) && rect)
        fillBackground(*context, *rect);
    if (length == 0)
        return TRUE;
    const QRect clip = rect ? toQRect(*rect) : QRect();
    placeText(*context, {x, y}, toText(text, static_cast<int>(length)),
              (options & ETO_CLIPPED) && rect ? &clip : nullptr);
    return TRUE;
}

BOOL GetTextExtentPoint32A(HDC dc, LPCSTR text, int length, SIZE* size)
{
    const auto context = findContext(dc);
    if (!context || !size || length < 0 || (length > 0 && !text))
        return FALSE;
    const TextMeasure measure(*context);
    *size = length == 0 ? SIZE{} : SIZE{measure.width(toText(text, length)), measure.height()};
    return TRUE;
}

BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* result)
{
    const auto context = findContext(dc);
    if (!context || !result)
        return FALSE;
    const QFont& font = context->state.font->font;
    const TextMeasure measure(*context);
    *result = {};
    result->tmHeight = measure.height();
    result->tmAscent = measure.ascent();
    result->tmDescent = measure.descent();
    result->tmInternalLeading = std::max(0, result->tmHeight - font.pixelSize());
    result->tmExternalLeading = std::max(0, measure.leading());
    result->tmAveCharWidth = averageWidth(measure);
    result->tmMaxCharWidth = measure.maxWidth();
    result->tmWeight = font.weight();
    result->tmDigitizedAspectX = result->tmDigitizedAspectY = 96;
    result->tmFirstChar = 0x20;
    result->tmLastChar = 0xFF;
    result->tmDefaultChar = '?';
    result->tmBreakChar = ' ';
    result->tmItalic = font.italic();
    result->tmUnderlined = font.underline();
    result->tmStruckOut = font.strikeOut();
    result->tmCharSet = context->state.font->description.lfCharSet;
    return TRUE;
}

int GetTextFaceA(HDC dc, int size, LPSTR name)
{
    const auto context = findContext(dc);
    if (!context)
        return 0;
    const QByteArray family = QFontInfo(context->state.font->font).family().toUtf8();
    if (!name)
        return static_cast<int>(family.size()) + 1;
    if (size <= 0)
        return 0;
    qstrncpy(name, family.constData(), static_cast<std::size_t>(size));
    return static_cast<int>(std::strlen(name));
}
