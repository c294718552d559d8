// Device contexts: how they are made and ended, and where their coordinates lie on a surface.
#include "context.h"

#include "application.h"
#include "bitmaps.h"
#include "handle_table.h"

#include <cmath>

namespace winapi {

namespace {

HandleTable<HDC, Context>& contexts()
{
    static auto& table = *new HandleTable<HDC, Context>;
    return table;
}

// What memory contexts draw on: the bitmap that they hold.
class BitmapSurface : public ImageSurface
{
public:
    explicit BitmapSurface(std::shared_ptr<Bitmap> bitmap) : m_bitmap(std::move(bitmap)) {}
    ~BitmapSurface() override { settle(); }

    QImage* image() override { return &m_bitmap->image; }

private:
    std::shared_ptr<Bitmap> m_bitmap;
};

// Stands for the screen as a whole, which can be asked but not drawn on.
class ScreenSurface : public ImageSurface
{
public:
    ScreenSurface() : m_image(makeImage(1, 1, application().devicePixelRatio())) {}
    ~ScreenSurface() override { settle(); }

    QImage* image() override { return &m_image; }

private:
    QImage m_image;
};

template <class Kind>
Selected<Kind> selected(HGDIOBJ handle)
{
    return {handle, findObject<Kind>(handle)};
}

DrawingState initialState()
{
    DrawingState state;
    state.pen = selected<Pen>(blackPen());
    state.brush = selected<Brush>(whiteBrush());
    state.font = selected<Font>(systemFont());
    return state;
}

Selected<Bitmap> makeDefaultBitmap(qreal devicePixelRatio)
{
    return {defaultBitmap(), std::make_shared<Bitmap>(Bitmap{makeImage(1, 1, devicePixelRatio)})};
}

}

HDC addContext(std::shared_ptr<Context> context)
{
    return contexts().add(std::move(context));
}

std::shared_ptr<Context> findContext(HDC dc)
{
    return contexts().find(dc);
}

HDC createContext(Surface& surface, QPoint origin, const QRegion& clip)
{
    return addContext(std::make_shared<Context>(surface, origin, clip));
}

void destroyContext(HDC dc)
{
    contexts().remove(dc);
}

HDC createScreenContext()
{
    return addContext(std::make_shared<Context>(std::make_unique<ScreenSurface>(), QRegion()));
}

Context::Context(Surface& surface, QPoint origin, QRegion visible)
    : state(initialState()), m_surface(&surface), m_origin(origin), m_visible(std::move(visible))
{
}

Context::Context(std::unique_ptr<Surface> surface, const QRegion& visible, QPoint gridOrigin)
    : state(initialState()), m_owned(std::move(surface)), m_surface(m_owned.get()), m_gridOrigin(gridOrigin),
      m_visible(visible)
{
}

Context::~Context()
{
    if (isMemory())
        state.bitmap.object->selected = false;
}

void Context::selectBitmap(const Selected<Bitmap>& bitmap)
{
    if (isMemory())
        state.bitmap.object->selected = false;
    state.bitmap = bitmap;
    state.bitmap.object->selected = true;
    m_owned = std::make_unique<BitmapSurface>(state.bitmap.object);
    m_surface = m_owned.get();
    m_visible = QRect({}, state.bitmap->image.deviceIndependentSize().toSize());
    m_placement.reset();
}

void Context::clipTo(const QRect& area)
{
    m_visible &= area.translated(m_origin);
    m_placement.reset();
}

Mapping& Context::changeMapping()
{
    m_placement.reset();
    return m_mapping;
}

const Placement& Context::placement() const
{
    const qreal ratio = pixelRatio(); // a window may come to a screen of another density
    if (!m_placement || m_placement->ratio != ratio)
        m_placement.emplace(toDevice(), m_origin, gridShift(), m_visible, ratio);
    return *m_placement;
}

QSizeF Context::scale() const
{
    return {qreal(m_mapping.viewportExtent.width()) / m_mapping.windowExtent.width(),
            qreal(m_mapping.viewportExtent.height()) / m_mapping.windowExtent.height()};
}

QTransform Context::toDevice() const
{
    return QTransform::fromScale(scale().width(), scale().height())
        .translate(-m_mapping.windowOrigin.x(), -m_mapping.windowOrigin.y());
}

QPointF Context::gridShift() const
{
    // Far less than a pixel: it makes halves go up even where a rounding error took something off them.
    constexpr qreal kTieBreak = 1.0 / 1024;
    const qreal ratio = pixelRatio();
    if (ratio == std::floor(ratio))
        return {};
    const QPointF start = (m_gridOrigin - toDevice().map(QPointF())) * ratio;
    const auto pastPixel = [](qreal place) { return place - std::floor(place + 0.5); };
    const QPointF shift = isMemory() ? QPointF(pastPixel(start.x()), pastPixel(start.y())) : QPointF();
    return (shift + QPointF(kTieBreak, kTieBreak)) / ratio;
}

}

using namespace winapi;

namespace {

qreal devicePixelRatio(HDC dc)
{
    const auto context = findContext(dc);
    return context ? context->pixelRatio() : application().devicePixelRatio();
}

}

HDC CreateCompatibleDC(HDC dc)
{
    const auto other = findContext(dc);
    if (dc && !other)
        return nullptr;
    auto context = std::make_shared<Context>(nullptr, QRegion(), other ? other->gridOrigin() : QPoint());
    context->selectBitmap(makeDefaultBitmap(devicePixelRatio(dc)));
    return addContext(std::move(context));
}

BOOL DeleteDC(HDC dc)
{
    return contexts().remove(dc) != nullptr;
}
