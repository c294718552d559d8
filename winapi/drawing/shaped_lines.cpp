// The shaping of a line of text, by Qt.
#include "shaped_lines.h"

#include <QFont>
#include <QRawFont>
#include <QTextLayout>

#include <algorithm>

namespace winapi {

QList<QGlyphRun> shapeGlyphs(const QString& text, const QFont& font)
{
    if (font.underline() || font.strikeOut())
        return {};
    QTextLayout layout(text, font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return {};
    line.setPosition(QPointF(0, -line.ascent()));
    const QList<QGlyphRun> runs = layout.glyphRuns();
    // For letters that no font has, Qt draws boxes, which are of no font.
    const auto isBox = [](const QGlyphRun& run) { return run.rawFont().fontTable("head").isEmpty(); };
    return std::any_of(runs.begin(), runs.end(), isBox) ? QList<QGlyphRun>() : runs;
}

QRect inkOf(const QList<QGlyphRun>& glyphs)
{
    QRectF ink;
    for (const QGlyphRun& run : glyphs)
        ink |= run.boundingRect();
    return ink.toAlignedRect();
}

}
