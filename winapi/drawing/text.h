// Text in the font of a context.
#pragma once

#include "context.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

namespace winapi {

// The font as it is drawn, in pixels of the device, and its measures in logical units.
class TextMeasure
{
public:
    explicit TextMeasure(const Context& context);

    int width(const QString& text) const;
    int ascent() const { return toLogical(m_metrics.ascent()); }
    int descent() const { return toLogical(m_metrics.descent()); }
    int height() const { return ascent() + descent(); }
    int leading() const { return std::max(0, toLogical(m_metrics.leading())); }
    int maxWidth() const { return toLogical(m_metrics.maxWidth()); }
    // From the base line to the line below the letters, and how thick that is.
    int underlinePosition() const { return toLogical(m_metrics.underlinePos()); }
    int lineWidth() const { return std::max(1, toLogical(m_metrics.lineWidth())); }

    const QFont& deviceFont() const { return m_font; }
    QSizeF scale() const { return m_scale; }

private:
    int toLogical(int height) const { return qRound(height / m_scale.height()); }

    QSizeF m_scale; // device units a logical unit
    QFont m_font;
    QFontMetrics m_metrics;
};

// The font that Qt has for a description.
QFont toFont(const LOGFONTA& description);

// The 8-bit text of a call, with blanks for tabs; `length` -1 counts up to its end.
QString toText(LPCSTR text, int length);

// Draws one line with its upper left corner at `position`, on the background that the context asks for.
void drawTextLine(QPainter& painter, const Context& context, QPoint position, const QString& text);

// What a line may touch: letters may lean out of their own width.
QRect touchedByText(const QRect& area, const TextMeasure& measure);

}
