// The painter that each drawing call paints with.
#pragma once

#include "context.h"
#include "geometry.h"

namespace winapi {

// Paints on the surface of a context, in logical coordinates, where the context shows. Lives for one call.
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
    // False if nothing that the call draws would show.
    explicit operator bool() const { return m_painter != nullptr; }

private:
    Context& m_context;
    QRect m_touched; // logical pixels of the surface
    std::unique_ptr<QPainter> m_own;
    QPainter* m_painter = nullptr;
};

}
