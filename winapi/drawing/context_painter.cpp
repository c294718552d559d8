// The painter that each drawing call paints with.
#include "context_painter.h"

namespace winapi {

ContextPainter::ContextPainter(Context& context, const QRect& touched)
    : m_context(context), m_touched(context.toDevice().mapRect(touched).translated(context.origin()))
{
    const QRegion clip = context.visible().translated(context.origin());
    m_touched &= clip.boundingRect();
    if (m_touched.isEmpty())
        return;
    m_painter = context.surface().heldPainter();
    if (!m_painter && context.image()) {
        m_own = std::make_unique<QPainter>(context.image());
        m_painter = m_own.get();
    }
    if (!m_painter)
        return; // a printer between two pages
    m_painter->save();
    m_painter->translate(context.gridShift());
    m_painter->setClipRegion(clip);
    m_painter->translate(context.origin());
    m_painter->setTransform(context.toDevice(), true);
}

ContextPainter::~ContextPainter()
{
    if (!m_painter)
        return;
    m_painter->restore();
    m_own.reset();
    m_context.surface().changed(m_touched);
}

}
