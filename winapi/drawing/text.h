// Text in the font of a context.
#pragma once

#include "context.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

namespace winapi {

// The font of a context: its measures in logical units, and the font that Qt draws with, in pixels of the
// device.
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
    // Where an underline lies below the base line, and how thick it is.
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

// The font of Qt that comes nearest to a description.
QFont toFont(const LOGFONTA& description);

// The text of a call, with blanks for tabs. `length` -1: up to its null.
QString toText(LPCSTR text, int length);

// Draws one line with its upper left corner at `position`, on a background of its own if the context is
// opaque.
void drawTextLine(QPainter& painter, const Context& context, QPoint position, const QString& text);

}
