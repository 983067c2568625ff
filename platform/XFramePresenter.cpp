// SPDX-License-Identifier: MIT
#include "platform/FramePresenter.h"

#include "platform/XcbReply.h"

#include <QGuiApplication>
#include <QWindow>

#include <sys/mman.h>
#include <unistd.h>
#include <xcb/dpms.h>
#include <xcb/shm.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <cstdlib>
#include <optional>

namespace platform {

namespace {

/// Number of frames between two requests for the power state of the display.
constexpr int kFramesPerPowerQuestion = 10;

/// A connection to the X server besides Qt's. No event loop waits on it, so replies cause no
/// wake-up; they are read with the next frame.
class Connection
{
public:
    Connection() : m_connection(xcb_connect(nullptr, nullptr))
    {
        xcb_prefetch_extension_data(m_connection, &xcb_shm_id);
        xcb_prefetch_extension_data(m_connection, &xcb_dpms_id);
    }
    ~Connection() { xcb_disconnect(m_connection); }
    Q_DISABLE_COPY_MOVE(Connection)

    operator xcb_connection_t *() const { return m_connection; }

    bool has(xcb_extension_t *extension) const
    {
        const xcb_query_extension_reply_t *data = xcb_get_extension_data(m_connection, extension);
        return data && data->present;
    }

    bool succeeds(xcb_void_cookie_t request) const
    {
        const XcbReply<xcb_generic_error_t> error(xcb_request_check(m_connection, request));
        return !error && xcb_connection_has_error(m_connection) == 0;
    }

private:
    xcb_connection_t *m_connection;
};

/// Whether pixels of \p depth take four bytes each.
bool isUnpacked(const xcb_setup_t &setup, uint8_t depth)
{
    auto format = xcb_setup_pixmap_formats_iterator(&setup);
    for (; format.rem; xcb_format_next(&format)) {
        if (format.data->depth == depth)
            return format.data->bits_per_pixel == 32;
    }
    return false;
}

/// Whether the window's pixels are those of a QImage in RGB32.
bool hasPlainPixels(const xcb_setup_t &setup, xcb_visualid_t visualId)
{
    const auto native =
        Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    if (setup.image_byte_order != native)
        return false;
    for (auto screen = xcb_setup_roots_iterator(&setup); screen.rem; xcb_screen_next(&screen)) {
        auto depth = xcb_screen_allowed_depths_iterator(screen.data);
        for (; depth.rem; xcb_depth_next(&depth)) {
            auto visual = xcb_depth_visuals_iterator(depth.data);
            for (; visual.rem; xcb_visualtype_next(&visual)) {
                if (visual.data->visual_id == visualId)
                    return isUnpacked(setup, depth.data->depth) &&
                           visual.data->red_mask == 0xff0000 && visual.data->green_mask == 0xff00 &&
                           visual.data->blue_mask == 0xff;
            }
        }
    }
    return false;
}

/// Frame memory that the X server reads as well. It is freed by the kernel when both have let go of
/// it, however this process ends.
class SharedMemory
{
public:
    /// Null when there is no memory, or the X server cannot reach it.
    SharedMemory(const Connection &connection, const QSize &size) : m_connection(connection)
    {
        const size_t pixels = size_t(size.width()) * size_t(size.height());
        // The server requires complete rows, also for the last block: one row of padding.
        const size_t bytes = (2 * pixels + size_t(size.width())) * sizeof(QRgb);
        const int file = memfd_create("frame", MFD_CLOEXEC);
        if (file < 0 || pixels == 0 || ftruncate(file, off_t(bytes)) != 0) {
            ::close(file);
            return;
        }
        void *memory = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
        m_segment = xcb_generate_id(connection);
        // Takes ownership of the descriptor.
        const auto attached = xcb_shm_attach_fd_checked(connection, m_segment, file, 1);
        const bool isShared = connection.succeeds(attached);
        if (memory == MAP_FAILED)
            return;
        m_pixels = static_cast<QRgb *>(memory);
        m_bytes = bytes;
        if (isShared)
            m_frames = {QImage(static_cast<uchar *>(memory), size.width(), size.height(),
                               size.width() * qsizetype(sizeof(QRgb)), QImage::Format_RGB32),
                        m_pixels + pixels};
    }
    ~SharedMemory()
    {
        if (m_segment != XCB_NONE)
            xcb_shm_detach(m_connection, m_segment);
        if (m_pixels)
            munmap(m_pixels, m_bytes);
    }
    Q_DISABLE_COPY_MOVE(SharedMemory)

    FrameMemory &frames() { return m_frames; }
    xcb_shm_seg_t segment() const { return m_segment; }
    /// In bytes from the beginning.
    uint32_t offsetOf(const QRgb *pixel) const { return uint32_t((pixel - m_pixels) * 4); }

private:
    const Connection &m_connection;
    xcb_shm_seg_t m_segment = XCB_NONE;
    QRgb *m_pixels = nullptr;
    size_t m_bytes = 0;
    FrameMemory m_frames;
};

class XFramePresenter final : public FramePresenter
{
public:
    explicit XFramePresenter(QWindow &window)
        : m_qtWindow(window), m_window(xcb_window_t(window.winId()))
    {
    }

    /// Whether this can present to the window.
    bool start()
    {
        if (xcb_connection_has_error(m_connection) != 0 || !m_connection.has(&xcb_shm_id))
            return false;
        const auto geometryAsked = xcb_get_geometry(m_connection, m_window);
        const auto attributesAsked = xcb_get_window_attributes(m_connection, m_window);
        const XcbReply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(m_connection, geometryAsked, nullptr));
        const XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(m_connection, attributesAsked, nullptr));
        if (!geometry || !attributes ||
            !hasPlainPixels(*xcb_get_setup(m_connection), attributes->visual))
            return false;
        m_depth = geometry->depth;
        m_context = xcb_generate_id(m_connection);
        xcb_create_gc(m_connection, m_context, m_window, 0, nullptr);
        const uint32_t events = XCB_EVENT_MASK_VISIBILITY_CHANGE;
        xcb_change_window_attributes(m_connection, m_window, XCB_CW_EVENT_MASK, &events);
        m_hasPower = m_connection.has(&xcb_dpms_id);
        // A display that is far away cannot reach it.
        return !memory({geometry->width, geometry->height}).picture.isNull();
    }

    void poll() override
    {
        if (m_isOpen || !isSeen())
            readAnswers();
        if (!m_isOpen && !isSeen())
            ask();
    }

    bool isSeen() const override { return !m_isCovered && m_isOn; }
    bool isReady() const override { return !m_isOpen; }

    double ratio() const override { return m_qtWindow.devicePixelRatio(); }

    FrameMemory &memory(const QSize &size) override
    {
        if (!m_memory || m_memory->frames().picture.size() != size) {
            m_memory.reset();
            m_memory.emplace(m_connection, size);
        }
        return m_memory->frames();
    }

    void present(std::span<const PixelBlock> blocks) override
    {
        if (blocks.empty() || !m_memory)
            return;
        for (const PixelBlock &block : blocks) {
            const QRect &rect = block.rect;
            xcb_shm_put_image(m_connection, m_window, m_context, uint16_t(block.stride),
                              uint16_t(rect.height()), 0, 0, uint16_t(rect.width()),
                              uint16_t(rect.height()), int16_t(rect.x()), int16_t(rect.y()),
                              m_depth, XCB_IMAGE_FORMAT_Z_PIXMAP, 0, m_memory->segment(),
                              m_memory->offsetOf(block.pixels));
        }
        ask();
    }

private:
    /// Answered when all that was put before is on the window. One question is open at a time.
    void ask()
    {
        m_asksPower = m_hasPower && (!isSeen() || --m_untilPowerQuestion <= 0);
        if (m_asksPower) {
            m_untilPowerQuestion = kFramesPerPowerQuestion;
            m_powerQuestion = xcb_dpms_info(m_connection);
        }
        m_question = xcb_get_input_focus(m_connection);
        m_isOpen = true;
        xcb_flush(m_connection);
    }

    void readAnswers()
    {
        while (const XcbReply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)})
            take(*event);
        void *answer = nullptr;
        if (!m_isOpen || !poll(m_question.sequence, answer))
            return;
        std::free(answer);
        m_isOpen = false;
        if (!m_asksPower || !poll(m_powerQuestion.sequence, answer) || !answer)
            return;
        const XcbReply<xcb_dpms_info_reply_t> power(static_cast<xcb_dpms_info_reply_t *>(answer));
        m_isOn = !power->state || power->power_level == XCB_DPMS_DPMS_MODE_ON;
    }

    /// Whether a request has been answered; \p answer is null after an error.
    bool poll(unsigned sequence, void *&answer)
    {
        xcb_generic_error_t *fault = nullptr;
        answer = nullptr;
        const bool isAnswered = xcb_poll_for_reply(m_connection, sequence, &answer, &fault) != 0;
        std::free(fault);
        return isAnswered;
    }

    void take(const xcb_generic_event_t &event)
    {
        if ((event.response_type & 0x7f) == XCB_VISIBILITY_NOTIFY) {
            const auto &notify = reinterpret_cast<const xcb_visibility_notify_event_t &>(event);
            m_isCovered = notify.state == XCB_VISIBILITY_FULLY_OBSCURED;
        }
    }

    const Connection m_connection;
    const QWindow &m_qtWindow;
    const xcb_window_t m_window;
    xcb_gcontext_t m_context = XCB_NONE;
    uint8_t m_depth = 0;
    std::optional<SharedMemory> m_memory;

    bool m_hasPower = false;
    bool m_isCovered = false;
    bool m_isOn = true;

    /// Whether there is a question without an answer.
    bool m_isOpen = false;
    xcb_get_input_focus_cookie_t m_question = {};
    /// Whether it also asks whether the display is on.
    bool m_asksPower = false;
    int m_untilPowerQuestion = 0;
    xcb_dpms_info_cookie_t m_powerQuestion = {};
};

} // namespace

std::unique_ptr<FramePresenter> makeXFramePresenter(QWindow &window)
{
    const auto *x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x || !x->connection())
        return nullptr;
    // The window is known to other connections only when the server has heard of it on Qt's.
    std::free(
        xcb_get_input_focus_reply(x->connection(), xcb_get_input_focus(x->connection()), nullptr));
    auto presenter = std::make_unique<XFramePresenter>(window);
    if (!presenter->start())
        return nullptr;
    return presenter;
}

} // namespace platform
