// Text in the font of a context.
#pragma once

#include "context.h"

#include <QFontMetrics>
#include <QString>

#include <string_view>

namespace winapi {

QFontMetrics metricsOf(const Context& context);

// The 8-bit text of a call, with blanks for tabs; `length` -1 counts up to its end.
QString toText(LPCSTR text, int length);

int lineHeight(const QFontMetrics& metrics);

// Draws one line with its upper left corner at `position`, on the background that the context asks for.
void drawTextLine(QPainter& painter, const Context& context, QPoint position, const QString& text);

// What a line may touch: letters may lean out of their own width.
QRect touchedByText(const QRect& area, const QFontMetrics& metrics);

}
