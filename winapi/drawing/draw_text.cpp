// DrawText: the breaking of a text into lines, and their placing, cutting and underlined letters.
#include "context_painter.h"
#include "text.h"

#include <algorithm>
#include <vector>

namespace winapi {

namespace {

struct Line
{
    QString text;
    qsizetype underlined = -1; // index of the letter
    int width = 0;
};

struct Layout
{
    std::vector<Line> lines;
    int width = 0;
    int lineHeight = 0;

    int height() const { return lineHeight * static_cast<int>(lines.size()); }
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

Layout layOut(const QString& text, UINT format, const TextMeasure& measure, int width)
{
    QStringList texts = splitLines(text, format);
    if ((format & DT_WORDBREAK) && !(format & DT_SINGLELINE))
        texts = breakLines(texts, measure, width);
    Layout layout;
    layout.lineHeight = measure.height();
    for (const QString& one : texts) {
        Line line = makeLine(one, format);
        if (format & DT_END_ELLIPSIS)
            shorten(line, measure, width);
        line.width = measure.width(line.text);
        layout.width = std::max(layout.width, line.width);
        layout.lines.push_back(std::move(line));
    }
    return layout;
}

int lineLeft(const Line& line, const RECT& rect, UINT format)
{
    if (format & DT_CENTER)
        return (rect.left + rect.right - line.width) / 2;
    return format & DT_RIGHT ? rect.right - line.width : rect.left;
}

// Only a single line is placed by the rectangle's height.
int textTop(const Layout& layout, const RECT& rect, UINT format)
{
    if (!(format & DT_SINGLELINE))
        return rect.top;
    return format & DT_VCENTER ? rect.top + (rect.bottom - rect.top) / 2 - layout.height() / 2 : rect.top;
}

void underline(QPainter& painter, const Context& context, QPoint position, const Line& line)
{
    const TextMeasure measure(context);
    const int left = position.x() + measure.width(line.text.left(line.underlined));
    const int width = measure.width(line.text[line.underlined]);
    const int top = position.y() + measure.ascent() + measure.underlinePosition();
    painter.fillRect(left, top, width, measure.lineWidth(), toColor(context.state.textColor));
}

void drawLayout(Context& context, const Layout& layout, const RECT& rect, UINT format)
{
    ContextPainter painter(context, toQRect(rect));
    if (!painter)
        return;
    painter->setClipRect(toQRect(rect), Qt::IntersectClip);
    int y = textTop(layout, rect, format);
    for (const Line& line : layout.lines) {
        const QPoint position(lineLeft(line, rect, format), y);
        drawTextLine(*painter, context, position, line.text);
        if (line.underlined >= 0 && !(format & DT_HIDEPREFIX))
            underline(*painter, context, position, line);
        y += layout.lineHeight;
    }
}

}

}

using namespace winapi;

int DrawTextA(HDC dc, LPCSTR text, int length, RECT* rect, UINT format)
{
    const auto context = findContext(dc);
    if (!context || !text || !rect || length < -1)
        return 0;
    const TextMeasure measure(*context);
    const Layout layout = layOut(toText(text, length), format, measure, rect->right - rect->left);
    const int bottom = textTop(layout, *rect, format) + layout.height();
    const int height = bottom - rect->top;
    if (!(format & DT_CALCRECT)) {
        drawLayout(*context, layout, *rect, format);
        return height;
    }
    rect->right = rect->left + layout.width;
    rect->bottom = bottom;
    return height;
}
