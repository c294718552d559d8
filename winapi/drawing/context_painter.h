// Draws on what a context stands for.
#pragma once

#include "context.h"
#include "geometry.h"

namespace winapi {

// Draws in logical coordinates, clipped as the context says, for the time of one call.
class ContextPainter
{
public:
    // `touched`: the part that the call may change, in logical coordinates.
    ContextPainter(Context& context, const QRect& touched);
    ~ContextPainter();
    ContextPainter(const ContextPainter&) = delete;
    ContextPainter& operator=(const ContextPainter&) = delete;

    QPainter* operator->() const { return m_painter; }
    QPainter& operator*() const { return *m_painter; }
    // False where the call can't change anything that shows.
    explicit operator bool() const { return m_painter != nullptr; }

private:
    Context& m_context;
    QRect m_touched; // pixels of the surface
    std::unique_ptr<QPainter> m_own;
    QPainter* m_painter = nullptr;
};

}
