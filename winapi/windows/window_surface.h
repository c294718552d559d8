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

    // As large as the window, with the old content in place; what is new is white.
    QImage& image();
    // Moves pixels by `delta` to `target`.
    void copy(const QRegion& target, QPoint delta);
    // Whether such a move ends on whole pixels of the screen.
    bool canCopy(QPoint delta);

private:
    Window& m_root;
    QImage m_image;
};

WindowSurface& surfaceOf(Window& root);

}
