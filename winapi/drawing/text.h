// Text in the font of a context.
#pragma once

#include "context_painter.h"
#include "shaped_lines.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>
#include <memory>
#include <string_view>

namespace winapi {

// The font of a context: its measures in logical units, and the font that Qt draws with, in pixels of the
// device.
class TextMeasure
{
public:
    // `scale`: device units a logical unit. `keepsLines`: whether lines are shaped, and kept, to be drawn
    // again.
    TextMeasure(const QFont& font, QSizeF scale, QPaintDevice& device, bool keepsLines);

    int width(const QString& text) const;
    int ascent() const { return m_ascent; }
    int descent() const { return m_descent; }
    int height() const { return m_ascent + m_descent; }
    int leading() const { return std::max(0, toLogical(m_metrics.leading())); }
    int maxWidth() const { return toLogical(m_metrics.maxWidth()); }
    // Where an underline lies below the base line, and how thick it is.
    int underlinePosition() const { return toLogical(m_metrics.underlinePos()); }
    int lineWidth() const { return std::max(1, toLogical(m_metrics.lineWidth())); }

    const QFont& deviceFont() const { return m_font; }
    QSizeF scale() const { return m_scale; }
    qreal ratio() const { return m_ratio; }

    // `underlined`: the index of the letter that is underlined, or -1.
    ShapedLinePtr shape(const QString& text, qsizetype underlined) const;
    // The line that `make` makes of the text of a call. Lines of the same `form` are kept for the same texts.
    template <class Make>
    ShapedLinePtr line(std::string_view text, KeptLines::Form form, Make make)
    {
        return m_keepsLines ? m_lines.get(text, form, make) : make();
    }

private:
    int toLogical(int height) const { return qRound(height / m_scale.height()); }

    QSizeF m_scale; // device units a logical unit
    QFont m_font;
    QFontMetrics m_metrics;
    int m_ascent;
    int m_descent;
    qreal m_ratio; // pixels of the device a logical pixel
    bool m_keepsLines;
    KeptLines m_lines;
};
using TextMeasurePtr = std::shared_ptr<TextMeasure>;

// Kept with the font for contexts that draw on pixels without a scale.
TextMeasurePtr measureOf(const Context& context);

// The font of Qt that comes nearest to a description.
QFont toFont(const LOGFONTA& description);

// The text of a call, with blanks for tabs. `length` -1: up to its null.
QString toText(LPCSTR text, int length);

// Draws one line with its upper left corner at `position`, on a background of its own if the context is
// opaque.
void drawTextLine(ContextPainter& painter, const Context& context, const TextMeasure& measure,
                  QPoint position, const ShapedLine& line);

}
