// The pixels of a top-level window and its children.
#pragma once

#include "surface.h"
#include "window.h"

#include <QImage>

namespace winapi {

class WindowSurface : public ImageSurface
{
public:
    explicit WindowSurface(Window& root) : m_root(root) {}
    ~WindowSurface() override { settle(); }

    // As large as the window. When the window grows, the old pixels stay in place and the new ones are white.
    QImage* image() override;
    void endCall(const QRect& changed) override;

    // Between these, in pairs, what changes is gathered, and is then shown in one step.
    void beginPaint() { ++m_paints; }
    void endPaint();

    // Moves pixels by `delta`, to the region `target`.
    void copy(const QRegion& target, QPoint delta);
    // False when such a move would end between two pixels of the screen.
    bool canCopy(QPoint delta);

private:
    void show(const QRect& changed);
    void resize(QSize size, qreal ratio);

    Window& m_root;
    QImage m_memory;  // with room for a larger window
    QImage m_image;   // the part of m_memory that the window fills
    int m_paints = 0; // that are under way
    QRect m_gathered; // around all that they have changed
};

// Made when first asked for.
WindowSurface& surfaceOf(Window& root);

}
