// SPDX-License-Identifier: MIT
#include "platform/FramePresenter.h"

#include "platform/WaylandSurface.h"

#include <QEvent>
#include <QWindow>

#include <sys/mman.h>
#include <unistd.h>

#include "fractional-scale-v1-client-protocol.h"
#include "viewporter-client-protocol.h"
#include <wayland-client.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <vector>

namespace platform {

namespace {

using std::chrono::steady_clock;

/// The version of surfaces that takes damage in pixels of the buffer.
constexpr quint32 kBufferDamageVersion = 4;

/// Scales between whole numbers are told in parts of one.
constexpr double kScaleUnits = 120.0;

/// Frames between two questions whether the compositor shows them.
constexpr int kFramesPerQuestion = 30;
/// A surface whose question is not answered for so long is not seen.
constexpr std::chrono::milliseconds kPatience(500);

/// An object of the connection, which does not end with it, and the request that destroys it.
template <typename Object, auto destroy>
using Owned = std::unique_ptr<Object, decltype([](Object *object) { destroy(object); })>;

using Queue = Owned<wl_event_queue, wl_event_queue_destroy>;
using Shm = Owned<wl_shm, wl_shm_destroy>;
using Callback = Owned<wl_callback, wl_callback_destroy>;
using Viewporter = Owned<wp_viewporter, wp_viewporter_destroy>;
using Viewport = Owned<wp_viewport, wp_viewport_destroy>;
using ScaleTeller = Owned<wp_fractional_scale_manager_v1, wp_fractional_scale_manager_v1_destroy>;
using ScaleNews = Owned<wp_fractional_scale_v1, wp_fractional_scale_v1_destroy>;

/// A proxy of an object that Qt owns. What is made through it tells \p queue of its events, so that
/// Qt takes none of them for its own.
template <typename Object>
class Wrapper
{
public:
    Wrapper(Object *object, wl_event_queue *queue)
        : m_proxy(object ? wl_proxy_create_wrapper(object) : nullptr)
    {
        if (m_proxy)
            wl_proxy_set_queue(static_cast<wl_proxy *>(m_proxy), queue);
    }
    ~Wrapper()
    {
        if (m_proxy)
            wl_proxy_wrapper_destroy(m_proxy);
    }
    Q_DISABLE_COPY_MOVE(Wrapper)

    Object *get() const { return static_cast<Object *>(m_proxy); }

private:
    void *m_proxy;
};

/// A picture that is given to the compositor.
struct Buffer
{
    FrameMemory memory;
    /// Null until it is used.
    Owned<wl_buffer, wl_buffer_destroy> handle;
    /// Whether the compositor may read it.
    bool isHeld = false;
};

/// The buffers of one size, in memory that is touched only as far as they are used: two that take
/// turns, and one for a compositor that keeps both.
class BufferPool
{
public:
    BufferPool(wl_shm *shm, const QSize &size)
        : m_size(size), m_bytesEach(size_t(size.width()) * size_t(size.height()) * sizeof(QRgb)),
          m_file(memfd_create("frames", MFD_CLOEXEC))
    {
        const size_t bytes = m_buffers.size() * m_bytesEach;
        if (m_file < 0 || bytes == 0 || bytes > size_t(std::numeric_limits<qint32>::max()) ||
            ftruncate(m_file, off_t(bytes)) != 0)
            return;
        void *memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, m_file, 0);
        if (memory == MAP_FAILED)
            return;
        m_bytes = static_cast<uchar *>(memory);
        m_pool.reset(wl_shm_create_pool(shm, m_file, qint32(bytes)));
        for (size_t turn = 0; turn < m_buffers.size(); ++turn) {
            m_buffers[turn].memory = {QImage(m_bytes + turn * m_bytesEach, size.width(),
                                             size.height(), stride(), QImage::Format_RGB32),
                                      nullptr, turn};
            m_order[turn] = &m_buffers[turn];
        }
    }
    ~BufferPool()
    {
        if (m_bytes)
            munmap(m_bytes, m_buffers.size() * m_bytesEach);
        if (m_file >= 0)
            ::close(m_file);
    }
    Q_DISABLE_COPY_MOVE(BufferPool)

    bool isUsable() const { return m_pool != nullptr; }
    const QSize &size() const { return m_size; }

    /// Whether the compositor may read any of them.
    bool isHeld() const { return std::ranges::any_of(m_buffers, &Buffer::isHeld); }
    /// Whether one may be written to.
    bool hasFree() const { return !std::ranges::all_of(m_buffers, &Buffer::isHeld); }

    /// Of those that may be written to the one that was shown last, which is behind the least.
    Buffer &next()
    {
        auto *const free = std::ranges::find_if_not(m_order, &Buffer::isHeld);
        std::rotate(m_order.begin(), free, free + 1);
        Buffer &buffer = *m_order.front();
        if (!buffer.handle)
            create(buffer);
        return buffer;
    }

private:
    int stride() const { return m_size.width() * int(sizeof(QRgb)); }

    void create(Buffer &buffer)
    {
        static constexpr wl_buffer_listener kListener = {
            .release = [](void *data, wl_buffer *) { static_cast<Buffer *>(data)->isHeld = false; },
        };
        buffer.handle.reset(wl_shm_pool_create_buffer(
            m_pool.get(), qint32(buffer.memory.turn * m_bytesEach), m_size.width(), m_size.height(),
            stride(), WL_SHM_FORMAT_XRGB8888));
        wl_buffer_add_listener(buffer.handle.get(), &kListener, &buffer);
    }

    const QSize m_size;
    const size_t m_bytesEach;
    const int m_file;
    uchar *m_bytes = nullptr;
    Owned<wl_shm_pool, wl_shm_pool_destroy> m_pool;
    std::array<Buffer, FrameMemory::kMostTurns> m_buffers;
    /// That which was shown last comes first.
    std::array<Buffer *, FrameMemory::kMostTurns> m_order;
};

class WaylandFramePresenter final : public QObject, public FramePresenter
{
public:
    WaylandFramePresenter(QWindow &window, wl_display *display)
        : m_window(window), m_display(display)
    {
        window.installEventFilter(this);
    }

    /// Whether the compositor has what this needs.
    bool start()
    {
        static constexpr wl_registry_listener kGlobals = {
            .global =
                [](void *data, wl_registry *all, quint32 name, const char *kind, quint32 version) {
                    static_cast<WaylandFramePresenter *>(data)->bind(all, name, kind, version);
                },
            .global_remove = [](void *, wl_registry *, quint32) {},
        };
        const Wrapper<wl_display> display(m_display, m_queue.get());
        const Owned<wl_registry, wl_registry_destroy> all(wl_display_get_registry(display.get()));
        wl_registry_add_listener(all.get(), &kGlobals, this);
        wl_display_roundtrip_queue(m_display, m_queue.get());
        return m_shm && m_compositorVersion >= kBufferDamageVersion;
    }

    void poll() override
    {
        if (m_mayHaveAnother)
            followSurface();
        wl_display_dispatch_queue_pending(m_display, m_queue.get());
        followExtent();
        std::erase_if(m_retired, [](const auto &pool) { return !pool->isHeld(); });
        m_isSeen = !m_question || steady_clock::now() - m_asked < kPatience;
    }

    bool isSeen() const override { return m_isSeen; }

    bool isReady() const override
    {
        return m_surface && m_window.isExposed() && takesWaylandBuffers(m_window) && isSettled() &&
               (!m_pool || m_pool->hasFree());
    }

    double ratio() const override { return m_extent.ratio; }
    FrameMemory &memory(const QSize &size) override;
    void present(std::span<const PixelBlock> blocks) override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bind(wl_registry *all, quint32 name, const char *kind, quint32 version);
    void followSurface();
    void followExtent();
    void take(wl_surface *surface);
    void followScale();
    bool isSettled() const;
    void ask();

    QWindow &m_window;
    wl_display *const m_display;
    const Queue m_queue{wl_display_create_queue(m_display)};
    Shm m_shm;
    /// Null where surfaces have whole numbers for scales, or Qt gives them others itself.
    Viewporter m_viewporter;
    ScaleTeller m_scaleTeller;
    quint32 m_compositorVersion = 0;

    bool m_mayHaveAnother = true;
    wl_surface *m_shown = nullptr;
    std::optional<Wrapper<wl_surface>> m_surface;
    Viewport m_viewport;
    ScaleNews m_scaleNews;
    /// What the compositor would like it to have; 0 while it has not said.
    double m_scale = 0.0;
    /// As it was when the window system was last asked.
    WaylandExtent m_extent;
    std::unique_ptr<BufferPool> m_pool;
    /// Of other sizes, until the compositor has let go of them.
    std::vector<std::unique_ptr<BufferPool>> m_retired;
    /// The compositor has nothing of the surface, or of another extent.
    bool m_isFresh = true;
    /// The buffer that memory() gave.
    Buffer *m_next = nullptr;
    FrameMemory m_noMemory;

    Callback m_question;
    steady_clock::time_point m_asked;
    int m_untilQuestion = 0;
    bool m_isSeen = true;
};

void WaylandFramePresenter::bind(wl_registry *all, quint32 name, const char *kind, quint32 version)
{
    const auto take = [&]<typename Global>(Global &global, const wl_interface &interface) {
        if (std::strcmp(kind, interface.name) == 0)
            global.reset(
                static_cast<typename Global::pointer>(wl_registry_bind(all, name, &interface, 1)));
    };
    if (std::strcmp(kind, wl_compositor_interface.name) == 0)
        m_compositorVersion = version;
    take(m_shm, wl_shm_interface);
    if (toolkitScalesSurfaces())
        return;
    take(m_viewporter, wp_viewporter_interface);
    take(m_scaleTeller, wp_fractional_scale_manager_v1_interface);
}

/// A window that is hidden loses its surface, and one that is shown again has another. Nothing may
/// be asked of a surface that is gone; another may have its address.
bool WaylandFramePresenter::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::PlatformSurface:
    case QEvent::Hide:
        take(nullptr);
        [[fallthrough]];
    case QEvent::Expose:
        m_mayHaveAnother = true;
        break;
    default:
        break;
    }
    return false;
}

void WaylandFramePresenter::followSurface()
{
    m_mayHaveAnother = false;
    if (wl_surface *surface = waylandSurface(m_window); surface != m_shown)
        take(surface);
}

void WaylandFramePresenter::followExtent()
{
    WaylandExtent extent = waylandExtent(m_window);
    if (m_scale > 0.0)
        extent = scaledTo(extent, m_scale);
    if (extent == m_extent)
        return;
    m_extent = extent;
    m_isFresh = true;
}

/// The compositor may go on reading what it holds of the last surface, so that memory is not used
/// again.
void WaylandFramePresenter::take(wl_surface *surface)
{
    m_shown = surface;
    m_question.reset();
    m_isSeen = true;
    m_retired.clear();
    m_pool.reset();
    m_next = nullptr;
    m_scaleNews.reset();
    m_viewport.reset();
    m_scale = 0.0;
    m_surface.reset();
    m_isFresh = true;
    if (!surface)
        return;
    m_surface.emplace(surface, m_queue.get());
    if (m_viewporter && m_scaleTeller)
        followScale();
}

/// A buffer with a scale between two whole numbers fits its surface only as a viewport of its size.
void WaylandFramePresenter::followScale()
{
    static constexpr wp_fractional_scale_v1_listener kListener = {
        .preferred_scale =
            [](void *data, wp_fractional_scale_v1 *, quint32 scale) {
                static_cast<WaylandFramePresenter *>(data)->m_scale = scale / kScaleUnits;
            },
    };
    m_viewport.reset(wp_viewporter_get_viewport(m_viewporter.get(), m_surface->get()));
    m_scaleNews.reset(
        wp_fractional_scale_manager_v1_get_fractional_scale(m_scaleTeller.get(), m_surface->get()));
    wp_fractional_scale_v1_add_listener(m_scaleNews.get(), &kListener, this);
}

/// Whether the window's QWindow, and so the view, has heard of the surface's size.
bool WaylandFramePresenter::isSettled() const
{
    const QSize beyond = m_extent.pixels - m_window.size() * m_extent.ratio;
    return std::max(std::abs(beyond.width()), std::abs(beyond.height())) <=
           std::ceil(m_extent.ratio);
}

FrameMemory &WaylandFramePresenter::memory(const QSize &)
{
    const QSize size = m_extent.pixels;
    if (!m_pool || m_pool->size() != size) {
        if (m_pool)
            m_retired.push_back(std::move(m_pool));
        m_pool = std::make_unique<BufferPool>(m_shm.get(), size);
    }
    m_next = m_pool->isUsable() ? &m_pool->next() : nullptr;
    return m_next ? m_next->memory : m_noMemory;
}

void WaylandFramePresenter::present(std::span<const PixelBlock> blocks)
{
    if (!m_next || (blocks.empty() && !m_isFresh))
        return;
    if (m_extent.scale != 0 && m_isFresh)
        wl_surface_set_buffer_scale(m_surface->get(), m_extent.scale);
    if (m_viewport && m_isFresh && m_scale > 0.0)
        wp_viewport_set_destination(m_viewport.get(), m_extent.size.width(),
                                    m_extent.size.height());
    wl_surface_attach(m_surface->get(), m_next->handle.get(), 0, 0);
    m_next->isHeld = true;
    const auto damage = [this](const QRect &rect) {
        wl_surface_damage_buffer(m_surface->get(), rect.x(), rect.y(), rect.width(), rect.height());
    };
    if (m_isFresh)
        damage(QRect(QPoint(), m_pool->size()));
    else
        std::ranges::for_each(blocks, damage, &PixelBlock::rect);
    m_isFresh = false;
    if (!m_question && --m_untilQuestion <= 0)
        ask();
    wl_surface_commit(m_surface->get());
    wl_display_flush(m_display);
}

/// Answered when the compositor would like another frame: not before somebody can see this one.
void WaylandFramePresenter::ask()
{
    static constexpr wl_callback_listener kListener = {
        .done = [](void *data, wl_callback *,
                   quint32) { static_cast<WaylandFramePresenter *>(data)->m_question.reset(); },
    };
    m_untilQuestion = kFramesPerQuestion;
    m_asked = steady_clock::now();
    m_question.reset(wl_surface_frame(m_surface->get()));
    wl_callback_add_listener(m_question.get(), &kListener, this);
}

} // namespace

std::unique_ptr<FramePresenter> makeWaylandFramePresenter(QWindow &window)
{
    // Qt draws the frame of a window in the same surface where the compositor does not. With
    // another connection after one that broke it would have to be followed there.
    wl_display *display = window.flags() & Qt::FramelessWindowHint ? waylandDisplay() : nullptr;
    if (!display || qEnvironmentVariableIsSet("QT_WAYLAND_RECONNECT"))
        return nullptr;
    auto presenter = std::make_unique<WaylandFramePresenter>(window, display);
    return presenter->start() ? std::move(presenter) : nullptr;
}

} // namespace platform
