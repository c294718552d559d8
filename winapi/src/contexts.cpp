// Device contexts: their life, their state and their coordinates.
#include "context.h"

#include "application.h"
#include "handles.h"
#include "printing.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace winapi {

namespace {

HandleTable<HDC, Context>& contexts()
{
    static HandleTable<HDC, Context> table;
    return table;
}

// What memory contexts draw on: the bitmap that they hold.
class BitmapSurface : public Surface
{
public:
    explicit BitmapSurface(std::shared_ptr<Bitmap> bitmap) : m_bitmap(std::move(bitmap)) {}

    QPaintDevice& device() override { return m_bitmap->image; }

private:
    std::shared_ptr<Bitmap> m_bitmap;
};

// Stands for the screen as a whole, which can be asked but not drawn on.
class ScreenSurface : public Surface
{
public:
    ScreenSurface() : m_image(makeImage(1, 1, application().devicePixelRatio())) {}

    QPaintDevice& device() override { return m_image; }

private:
    QImage m_image;
};

template <class Kind>
Selected<Kind> stock(int index)
{
    return {GetStockObject(index), findObject<Kind>(GetStockObject(index))};
}

DrawingState initialState()
{
    DrawingState state;
    state.pen = stock<Pen>(BLACK_PEN);
    state.brush = stock<Brush>(WHITE_BRUSH);
    state.font = stock<Font>(SYSTEM_FONT);
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

QImage* Context::image() const
{
    return dynamic_cast<QImage*>(&m_surface->device());
}

void Context::selectBitmap(const Selected<Bitmap>& bitmap)
{
    if (isMemory())
        state.bitmap.object->selected = false;
    state.bitmap = bitmap;
    applyBitmap();
}

void Context::applyBitmap()
{
    state.bitmap.object->selected = true;
    m_owned = std::make_unique<BitmapSurface>(state.bitmap.object);
    m_surface = m_owned.get();
    m_visible = QRect({}, state.bitmap->image.deviceIndependentSize().toSize());
}

void Context::restore(int level)
{
    const bool memory = isMemory();
    if (memory)
        state.bitmap.object->selected = false;
    state = saved[static_cast<std::size_t>(level - 1)];
    saved.resize(static_cast<std::size_t>(level - 1));
    if (memory)
        applyBitmap();
}

QSizeF Context::scale() const
{
    return {qreal(state.viewportExtent.width()) / state.windowExtent.width(),
            qreal(state.viewportExtent.height()) / state.windowExtent.height()};
}

QTransform Context::toDevice() const
{
    return QTransform::fromTranslate(state.viewportOrigin.x(), state.viewportOrigin.y())
        .scale(scale().width(), scale().height())
        .translate(-state.windowOrigin.x(), -state.windowOrigin.y());
}

QPointF Context::gridShift() const
{
    // Far less than a pixel, it lets a half always go up, whatever small errors come in between.
    constexpr qreal tieBreak = 1.0 / 1024;
    const qreal ratio = m_surface->device().devicePixelRatio();
    if (ratio == std::floor(ratio))
        return {};
    const QPointF start = (m_gridOrigin - toDevice().map(QPointF())) * ratio;
    const auto pastPixel = [](qreal place) { return place - std::floor(place + 0.5); };
    const QPointF shift = isMemory() ? QPointF(pastPixel(start.x()), pastPixel(start.y())) : QPointF();
    return (shift + QPointF(tieBreak, tieBreak)) / ratio;
}

QRegion Context::drawable() const
{
    return state.clip ? visible() & *state.clip : visible();
}

ContextPainter::ContextPainter(Context& context, const QRect& touched)
    : m_context(context), m_touched(context.toDevice().mapRect(touched).translated(context.origin()))
{
    const QRegion clip = context.drawable().translated(context.origin());
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

using namespace winapi;

namespace {

// Stores `value` and gives what held before; `failure` where there is no such context.
template <class Value, class Argument>
Value exchangeState(HDC dc, Value DrawingState::*member, Argument value, Value failure)
{
    const auto context = findContext(dc);
    return context ? std::exchange(context->state.*member, static_cast<Value>(value)) : failure;
}

template <class Value>
Value readState(HDC dc, Value DrawingState::*member, Value failure)
{
    const auto context = findContext(dc);
    return context ? context->state.*member : failure;
}

BOOL moveOrigin(HDC dc, QPoint DrawingState::*member, QPoint origin, POINT* old)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const QPoint before = std::exchange(context->state.*member, origin);
    if (old)
        *old = {before.x(), before.y()};
    return TRUE;
}

BOOL readOrigin(HDC dc, QPoint DrawingState::*member, POINT* origin)
{
    const auto context = findContext(dc);
    if (!context || !origin)
        return FALSE;
    *origin = {(context->state.*member).x(), (context->state.*member).y()};
    return TRUE;
}

void mapPoints(POINT* points, int count, const QTransform& transform)
{
    std::for_each_n(points, std::max(count, 0), [&transform](POINT& point) {
        const QPoint mapped = transform.map(QPointF(point.x, point.y)).toPoint();
        point = {mapped.x(), mapped.y()};
    });
}

BOOL setExtent(HDC dc, QSize DrawingState::*member, QSize extent, SIZE* old)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const QSize before = context->state.*member;
    if (old)
        *old = {before.width(), before.height()};
    // With pixels as units the extents are fixed, which is no failure.
    if (context->state.mapMode != MM_ANISOTROPIC)
        return TRUE;
    if (extent.width() == 0 || extent.height() == 0)
        return FALSE;
    context->state.*member = extent;
    return TRUE;
}

int screenCapability(int index)
{
    const QScreen* screen = application().primaryScreen();
    switch (index) {
    case TECHNOLOGY:
        return DT_RASDISPLAY;
    case HORZSIZE:
        return qRound(screen->physicalSize().width());
    case VERTSIZE:
        return qRound(screen->physicalSize().height());
    case HORZRES:
        return screen->geometry().width();
    case VERTRES:
        return screen->geometry().height();
    case BITSPIXEL:
        return 32;
    case PLANES:
        return 1;
    case NUMCOLORS:
        return -1;
    case RASTERCAPS:
        return RC_BITBLT;
    case LOGPIXELSX:
    case LOGPIXELSY:
        return 96;
    default:
        return 0;
    }
}

qreal devicePixelRatio(HDC dc)
{
    const auto context = findContext(dc);
    return context ? context->surface().device().devicePixelRatio() : application().devicePixelRatio();
}

}

HDC CreateDCA(LPCSTR driver, LPCSTR device, LPCSTR port, const DEVMODEA* mode)
{
    if (driver && qstricmp(driver, "DISPLAY") == 0)
        return createScreenContext();
    return device ? createPrinterContext(device, port, mode) : nullptr;
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

int SaveDC(HDC dc)
{
    const auto context = findContext(dc);
    if (!context)
        return 0;
    context->saved.push_back(context->state);
    return static_cast<int>(context->saved.size());
}

BOOL RestoreDC(HDC dc, int level)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    const int count = static_cast<int>(context->saved.size());
    const int target = level < 0 ? count + level + 1 : level;
    if (target < 1 || target > count)
        return FALSE;
    context->restore(target);
    return TRUE;
}

int GetDeviceCaps(HDC dc, int index)
{
    const auto context = findContext(dc);
    if (!context)
        return 0;
    const auto printer = printerOf(*context);
    return printer ? printerCapability(*printer, index) : screenCapability(index);
}

int SetMapMode(HDC dc, int mode)
{
    const auto context = findContext(dc);
    if (!context || (mode != MM_TEXT && mode != MM_ANISOTROPIC))
        return 0;
    if (mode == MM_TEXT)
        context->state.windowExtent = context->state.viewportExtent = {1, 1};
    return std::exchange(context->state.mapMode, mode);
}

BOOL SetWindowExtEx(HDC dc, int width, int height, SIZE* old)
{
    return setExtent(dc, &DrawingState::windowExtent, {width, height}, old);
}

BOOL SetViewportExtEx(HDC dc, int width, int height, SIZE* old)
{
    return setExtent(dc, &DrawingState::viewportExtent, {width, height}, old);
}

BOOL SetViewportOrgEx(HDC dc, int x, int y, POINT* old)
{
    return moveOrigin(dc, &DrawingState::viewportOrigin, {x, y}, old);
}

BOOL GetViewportOrgEx(HDC dc, POINT* origin)
{
    return readOrigin(dc, &DrawingState::viewportOrigin, origin);
}

BOOL SetWindowOrgEx(HDC dc, int x, int y, POINT* old)
{
    return moveOrigin(dc, &DrawingState::windowOrigin, {x, y}, old);
}

BOOL GetWindowOrgEx(HDC dc, POINT* origin)
{
    return readOrigin(dc, &DrawingState::windowOrigin, origin);
}

BOOL DPtoLP(HDC dc, POINT* points, int count)
{
    const auto context = findContext(dc);
    if (!context)
        return FALSE;
    mapPoints(points, count, context->toDevice().inverted());
    return TRUE;
}

COLORREF SetBkColor(HDC dc, COLORREF color)
{
    return exchangeState(dc, &DrawingState::backgroundColor, color, CLR_INVALID);
}

COLORREF GetBkColor(HDC dc)
{
    return readState(dc, &DrawingState::backgroundColor, CLR_INVALID);
}

int SetBkMode(HDC dc, int mode)
{
    if (mode != TRANSPARENT && mode != OPAQUE)
        return 0;
    return exchangeState(dc, &DrawingState::backgroundMode, mode, 0);
}

int GetBkMode(HDC dc)
{
    return readState(dc, &DrawingState::backgroundMode, 0);
}

COLORREF SetTextColor(HDC dc, COLORREF color)
{
    return exchangeState(dc, &DrawingState::textColor, color, CLR_INVALID);
}

COLORREF GetTextColor(HDC dc)
{
    return readState(dc, &DrawingState::textColor, CLR_INVALID);
}

UINT SetTextAlign(HDC dc, UINT align)
{
    return exchangeState(dc, &DrawingState::textAlign, align, GDI_ERROR);
}

UINT GetTextAlign(HDC dc)
{
    return readState(dc, &DrawingState::textAlign, GDI_ERROR);
}
