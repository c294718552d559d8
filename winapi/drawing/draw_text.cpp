// DrawText: the breaking of a text into lines, and their placing, cutting and underlined letters.
#include "context_painter.h"
#include "text.h"

#include <algorithm>
#include <span>
#include <vector>

namespace winapi {

namespace {

struct Line
{
    QString text;
    qsizetype underlined = -1; // index of the letter
};

// Takes out the ampersands that mark letters: "&x" underlines x, "&&" is one ampersand, and so is "&" at the
// end.
Line takePrefixes(const QString& text)
{
    Line line;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool prefix = text[i] == u'&' && i + 1 < text.size();
        if (prefix && text[++i] != u'&')
            line.underlined = line.text.size();
        line.text += text[i];
    }
    return line;
}

Line makeLine(const QString& text, UINT format)
{
    return format & DT_NOPREFIX ? Line{text} : takePrefixes(text);
}

QStringList splitLines(QString text, UINT format)
{
    if (format & DT_SINGLELINE)
        return {text.remove(u'\r').remove(u'\n')};
    text.replace("\r\n", "\n").replace(u'\r', u'\n');
    QStringList lines = text.split(u'\n');
    if (lines.last().isEmpty() && lines.size() > 1)
        lines.removeLast();
    return lines;
}

// How much of `text` goes on a line of `width`: up to the last blank that fits, but at least one word.
qsizetype breakPosition(const QString& text, const TextMeasure& measure, int width)
{
    qsizetype best = -1;
    for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1)) {
        if (best >= 0 && measure.width(text.left(blank)) > width)
            return best;
        best = blank;
    }
    return best >= 0 && measure.width(text) > width ? best : text.size();
}

QStringList breakLines(const QStringList& lines, const TextMeasure& measure, int width)
{
    QStringList broken;
    for (QString rest : lines) {
        for (qsizetype end = breakPosition(rest, measure, width); end < rest.size();
             end = breakPosition(rest, measure, width)) {
            broken += rest.left(end);
            rest = rest.mid(end + 1);
        }
        broken += rest;
    }
    return broken;
}

void shorten(Line& line, const TextMeasure& measure, int width)
{
    if (measure.width(line.text) <= width)
        return;
    static const QString kDots = "...";
    qsizetype kept = line.text.size();
    while (kept > 0 && measure.width(line.text.left(kept) + kDots) > width)
        --kept;
    line.text = line.text.left(kept) + kDots;
    if (line.underlined >= kept)
        line.underlined = -1;
}

using Lines = std::span<const ShapedLinePtr>;

std::vector<ShapedLinePtr> layOut(const QString& text, UINT format, const TextMeasure& measure, int width)
{
    QStringList texts = splitLines(text, format);
    if ((format & DT_WORDBREAK) && !(format & DT_SINGLELINE))
        texts = breakLines(texts, measure, width);
    std::vector<ShapedLinePtr> lines;
    for (const QString& one : texts) {
        Line line = makeLine(one, format);
        if (format & DT_END_ELLIPSIS)
            shorten(line, measure, width);
        lines.push_back(measure.shape(line.text, line.underlined));
    }
    return lines;
}

// The single line that a text makes wherever it is drawn, so that it is shaped once.
ShapedLinePtr keptLine(std::string_view text, UINT format, TextMeasure& measure)
{
    return measure.line(text, format & DT_NOPREFIX ? KeptLines::Plain : KeptLines::Marked, [&] {
        return layOut(toText(text.data(), static_cast<int>(text.size())), format, measure, 0).front();
    });
}

int lineLeft(const ShapedLine& line, const RECT& rect, UINT format)
{
    if (format & DT_CENTER)
        return (rect.left + rect.right - line.width) / 2;
    return format & DT_RIGHT ? rect.right - line.width : rect.left;
}

// Only a single line is placed by the rectangle's height.
int textTop(int height, const RECT& rect, UINT format)
{
    if (!(format & DT_SINGLELINE))
        return rect.top;
    return format & DT_VCENTER ? rect.top + (rect.bottom - rect.top) / 2 - height / 2 : rect.top;
}

bool showsMark(const ShapedLine& line, UINT format)
{
    return !line.mark.isEmpty() && !(format & DT_HIDEPREFIX);
}

// Whether all that the line draws lies within a rectangle, which then need not clip it. On a dense screen ink
// may be moved by a part of a pixel.
bool fits(const ShapedLine& line, QPoint position, const QRect& rect, const TextMeasure& measure,
          const Context& context, UINT format)
{
    if (line.glyphs.isEmpty())
        return false;
    QRect covered = line.ink;
    if (context.state.backgroundMode == OPAQUE)
        covered |= QRect(0, 0, line.width, measure.height());
    if (showsMark(line, format))
        covered |= line.mark;
    const int margin = measure.ratio() == 1 ? 0 : 1;
    return rect.contains(covered.translated(position).adjusted(-margin, -margin, margin, margin));
}

void drawLine(ContextPainter& painter, const Context& context, const TextMeasure& measure,
              const ShapedLine& line, QPoint position, UINT format)
{
    drawTextLine(painter, context, measure, position, line);
    if (showsMark(line, format))
        painter.fill(line.mark.translated(position), context.state.textColor);
}

void drawLines(Context& context, const TextMeasure& measure, Lines lines, int top, const RECT& rect,
               UINT format)
{
    const QRect area = toQRect(rect);
    ContextPainter painter(context, area);
    if (!painter)
        return;
    QPoint position(0, top);
    for (const ShapedLinePtr& line : lines) {
        position.setX(lineLeft(*line, rect, format));
        const bool clips = !fits(*line, position, area, measure, context, format);
        if (clips)
            painter.clipTo(area);
        drawLine(painter, context, measure, *line, position, format);
        if (clips)
            painter.unclip();
        position.ry() += measure.height();
    }
}

// Draws the lines, or only calculates. Gives the height of the text.
int placeLines(Context& context, const TextMeasure& measure, Lines lines, RECT& rect, UINT format)
{
    const int height = measure.height() * static_cast<int>(lines.size());
    const int top = textTop(height, rect, format);
    const int result = top + height - rect.top;
    if (!(format & DT_CALCRECT)) {
        drawLines(context, measure, lines, top, rect, format);
        return result;
    }
    int width = 0;
    for (const ShapedLinePtr& line : lines)
        width = std::max(width, line->width);
    rect.right = rect.left + width;
    rect.bottom = top + height;
    return result;
}

}

}

using namespace winapi;

int DrawTextA(HDC dc, LPCSTR text, int length, RECT* rect, UINT format)
{
    const auto context = findContext(dc);
    if (!context || !text || !rect || length < -1)
        return 0;
    const TextMeasurePtr measure = measureOf(*context);
    const std::string_view bytes =
        length < 0 ? std::string_view(text) : std::string_view(text, static_cast<std::size_t>(length));
    if ((format & DT_SINGLELINE) && !(format & DT_END_ELLIPSIS)) {
        const ShapedLinePtr line = keptLine(bytes, format, *measure);
        return placeLines(*context, *measure, {&line, 1}, *rect, format);
    }
    const auto lines = layOut(toText(text, length), format, *measure, rect->right - rect->left);
    return placeLines(*context, *measure, lines, *rect, format);
}
