// SPDX-License-Identifier: MIT
#include "host/WaylandIdleSource.h"

#include <cstring>

#include "ext-idle-notify-v1-client-protocol.h"
#include <wayland-client.h>

namespace host {

namespace {

constexpr double kMilliseconds = 1000.0;

/// Binds the global \p name as \p Object if it is of that \p interface and the first of its kind.
template <typename Object>
void bindFirst(Object *&object, wl_registry *registry, quint32 name, const char *kind,
               const wl_interface &interface)
{
    if (object == nullptr && std::strcmp(kind, interface.name) == 0)
        object = static_cast<Object *>(wl_registry_bind(registry, name, &interface, 1));
}

} // namespace

/// The objects of the connection; they go with it.
struct WaylandIdleSource::Protocol
{
    WaylandIdleSource &source;
    quint32 idleMilliseconds;
    wl_display *display = wl_display_connect(nullptr);
    wl_registry *registry = nullptr;
    wl_seat *seat = nullptr;
    ext_idle_notifier_v1 *notifier = nullptr;

    Protocol(WaylandIdleSource &owner, double idleSeconds)
        : source(owner), idleMilliseconds(quint32(idleSeconds * kMilliseconds))
    {
    }
    Q_DISABLE_COPY_MOVE(Protocol)
    ~Protocol()
    {
        if (display != nullptr)
            wl_display_disconnect(display);
    }

    void begin();
    void watch();
};

void WaylandIdleSource::Protocol::begin()
{
    static constexpr wl_registry_listener kGlobals = {
        .global =
            [](void *data, wl_registry *all, quint32 name, const char *kind, quint32) {
                auto &self = *static_cast<Protocol *>(data);
                bindFirst(self.seat, all, name, kind, wl_seat_interface);
                bindFirst(self.notifier, all, name, kind, ext_idle_notifier_v1_interface);
            },
        .global_remove = [](void *, wl_registry *, quint32) {},
    };
    static constexpr wl_callback_listener kAllAnnounced = {
        .done = [](void *data, wl_callback *, quint32) { static_cast<Protocol *>(data)->watch(); },
    };
    registry = wl_display_get_registry(display);
    wl_registry_add_listener(registry, &kGlobals, this);
    wl_callback_add_listener(wl_display_sync(display), &kAllAnnounced, this);
    wl_display_flush(display);
}

void WaylandIdleSource::Protocol::watch()
{
    static constexpr ext_idle_notification_v1_listener kNotification = {
        .idled =
            [](void *data, ext_idle_notification_v1 *) {
                Q_EMIT static_cast<Protocol *>(data)->source.becameIdle();
            },
        .resumed =
            [](void *data, ext_idle_notification_v1 *) {
                Q_EMIT static_cast<Protocol *>(data)->source.becameActive();
            },
    };
    if (seat == nullptr || notifier == nullptr) {
        Q_EMIT source.unavailable();
        return;
    }
    auto *notification =
        ext_idle_notifier_v1_get_idle_notification(notifier, idleMilliseconds, seat);
    ext_idle_notification_v1_add_listener(notification, &kNotification, this);
    wl_display_flush(display);
    Q_EMIT source.available();
}

WaylandIdleSource::WaylandIdleSource(double idleSeconds)
    : m_protocol(std::make_unique<Protocol>(*this, idleSeconds))
{
}

WaylandIdleSource::~WaylandIdleSource() = default;

void WaylandIdleSource::start()
{
    if (m_protocol->display == nullptr) {
        Q_EMIT unavailable();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_protocol->display),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &WaylandIdleSource::dispatch);
    m_protocol->begin();
}

/// There is something to read, so this does not wait.
void WaylandIdleSource::dispatch()
{
    if (wl_display_dispatch(m_protocol->display) >= 0)
        return;
    m_notifier->setEnabled(false);
    Q_EMIT unavailable();
}

} // namespace host
