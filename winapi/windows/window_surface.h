// The pixels of a top-level window and its children.
#pragma once

#include "surface.h"
#include "window.h"

#include <QImage>

namespace winapi {

class WindowSurface : public Surface
{
public:
    explicit WindowSurface(Window& root) : m_root(root) {}

    QPaintDevice& device() override { return image(); }
    void changed(const QRect& rect) override;

    // As large as the window. When the window grows, the old pixels stay in place and the new ones are white.
    QImage& image();
    // Moves pixels by `delta`, to the region `target`.
    void copy(const QRegion& target, QPoint delta);
    // False when such a move would end between two pixels of the screen.
    bool canCopy(QPoint delta);

private:
    Window& m_root;
    QImage m_image;
};

// Made when first asked for.
WindowSurface& surfaceOf(Window& root);

}
