// Fonts, the measures of text, and the drawing of single lines.
#include "text.h"

#include "application.h"
#include "context_painter.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

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
    constexpr const char* kSans = "Liberation Sans,Arial,DejaVu Sans";
    constexpr Substitute kSubstitutes[] = {
        {"", kSans},
        {"System", kSans},
        {"MS Sans Serif", kSans},
        {"MS Shell Dlg", kSans},
        {"MS Shell Dlg 2", kSans},
        {"Tahoma", kSans},
        {"Segoe UI", kSans},
        {"Arial", kSans},
        {"Times New Roman", "Liberation Serif,DejaVu Serif"},
        {"Courier New", "Liberation Mono,DejaVu Sans Mono"},
    };
    QStringList families(face);
    for (const Substitute& substitute : kSubstitutes)
        if (face.compare(QLatin1String(substitute.face), Qt::CaseInsensitive) == 0)
            families += QString::fromLatin1(substitute.families).split(',');
    families.removeAll(QString());
    return families;
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
    constexpr int kSample = 1000;
    int size = std::max(1, height * kSample / lineHeightAt(font, kSample) - 1);
    while (lineHeightAt(font, size + 1) <= height)
        ++size;
    return size;
}

void setHeight(QFont& font, LONG height)
{
    constexpr int kDefaultHeight = 16;
    if (height < 0)
        font.setPixelSize(-height);
    else
        font.setPixelSize(pixelSizeForLine(font, height == 0 ? kDefaultHeight : height));
}

QFont scaledFont(QFont font, qreal scale)
{
    font.setPixelSize(std::max(1, qRound(font.pixelSize() * scale)));
    return font;
}

// The letters whose average width Windows tells as that of a font.
const QString& alphabet()
{
    static const QString kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    return kLetters;
}

int averageWidth(const TextMeasure& measure)
{
    return (measure.width(alphabet()) / 26 + 1) / 2;
}

void fillBackground(Context& context, const RECT& rect)
{
    const QRect area = toQRect(rect);
    ContextPainter painter(context, area);
    if (painter)
        painter.fill(area, context.state.backgroundColor);
}

}

QFont toFont(const LOGFONTA& description)
{
    application();
    const auto length = strnlen(description.lfFaceName, LF_FACESIZE);
    QFont font;
    font.setFamilies(familiesFor(QString::fromUtf8(description.lfFaceName, static_cast<qsizetype>(length))));
    // Grey letters on whole pixels, hinted and without kerning, so that text is as wide as its letters.
    constexpr auto kStrategy =
        static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias);
    font.setStyleHint(QFont::SansSerif, kStrategy);
    font.setHintingPreference(QFont::PreferFullHinting);
    font.setKerning(false);
    if (description.lfWeight != 0)
        font.setWeight(static_cast<QFont::Weight>(std::clamp<LONG>(description.lfWeight, 1, 1000)));
    font.setItalic(description.lfItalic != 0);
    font.setUnderline(description.lfUnderline != 0);
    font.setStrikeOut(description.lfStrikeOut != 0);
    setHeight(font, description.lfHeight);
    return font;
}

TextMeasure::TextMeasure(const QFont& font, QSizeF scale, QPaintDevice& device, bool keepsLines)
    : m_scale(scale), m_font(scaledFont(font, scale.height()), &device), m_metrics(m_font),
      m_ascent(toLogical(m_metrics.ascent())), m_descent(toLogical(m_metrics.descent())),
      m_ratio(device.devicePixelRatio()), m_keepsLines(keepsLines)
{
}

TextMeasurePtr measureOf(const Context& context)
{
    const bool plain = context.image() && context.scale() == QSizeF(1, 1);
    TextMeasurePtr& kept = context.state.font.object->measure;
    if (plain && kept && kept->ratio() == context.pixelRatio())
        return kept;
    auto measure = std::make_shared<TextMeasure>(context.state.font->font, context.scale(),
                                                 context.surface().device(), plain);
    if (plain) {
        forgetMeasuresAtExit();
        kept = measure;
    }
    return measure;
}

ShapedLinePtr TextMeasure::shape(const QString& text, qsizetype underlined) const
{
    auto line = std::make_shared<ShapedLine>();
    line->text = text;
    line->width = width(text);
    if (underlined >= 0)
        line->mark = QRect(width(text.left(underlined)), ascent() + underlinePosition(),
                           width(text[underlined]), lineWidth());
    if (m_keepsLines) {
        line->glyphs = shapeGlyphs(text, m_font);
        line->ink = inkOf(line->glyphs).translated(0, ascent());
    }
    return line;
}

int TextMeasure::width(const QString& text) const
{
    return qRound(m_metrics.horizontalAdvance(text) / m_scale.width());
}

QString toText(LPCSTR text, int length)
{
    return text ? QString::fromUtf8(text, length).replace(u'\t', u' ') : QString();
}

namespace {

// The pens of the colours in use, since Qt takes memory for each pen that is made.
const QPen& penOf(COLORREF color)
{
    constexpr std::size_t kMostPens = 64;
    static auto& pens = *new std::unordered_map<COLORREF, QPen>;
    if (pens.size() == kMostPens && !pens.contains(color))
        pens.clear();
    return pens.try_emplace(color, toColor(color)).first->second;
}

void drawByQt(QPainter& painter, const TextMeasure& measure, QPoint base, const QString& text)
{
    painter.save();
    painter.translate(base);
    painter.scale(1 / measure.scale().width(), 1 / measure.scale().height());
    painter.setFont(measure.deviceFont());
    painter.drawText(QPoint(0, 0), text);
    painter.restore();
}

}

void drawTextLine(ContextPainter& painter, const Context& context, const TextMeasure& measure,
                  QPoint position, const ShapedLine& line)
{
    const DrawingState& state = context.state;
    if (state.backgroundMode == OPAQUE)
        painter.fill(QRect(position, QSize(line.width, measure.height())), state.backgroundColor);
    const QPoint base = position + QPoint(0, measure.ascent());
    painter->setPen(penOf(state.textColor));
    for (const QGlyphRun& run : line.glyphs)
        painter->drawGlyphRun(base, run);
    if (line.glyphs.isEmpty())
        drawByQt(*painter, measure, base, line.text);
}

}

using namespace winapi;

BOOL ExtTextOutA(HDC dc, int, int, UINT options, const RECT* rect, LPCSTR, UINT length, const INT*)
{
    const auto context = findContext(dc);
    if (!context || options != ETO_OPAQUE || !rect || length != 0)
        return FALSE;
    fillBackground(*context, *rect);
    return TRUE;
}

BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* result)
{
    const auto context = findContext(dc);
    if (!context || !result)
        return FALSE;
    const QFont& font = context->state.font->font;
    const TextMeasurePtr kept = measureOf(*context);
    const TextMeasure& measure = *kept;
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
    result->tmCharSet = context->state.font->charSet;
    return TRUE;
}
