// SPDX-License-Identifier: MIT
#include "host/WaylandIdleSource.h"

#include <cstring>
#include <memory>
#include <type_traits>

#include "ext-idle-notify-v1-client-protocol.h"
#include <wayland-client.h>

namespace host {

namespace {

constexpr double kMilliseconds = 1000.0;

/// Owns a protocol object, which closing the connection does not free.
template <typename Object, auto destroy>
using Owned = std::unique_ptr<Object, decltype([](Object *object) { destroy(object); })>;

/// Binds the global \p name to \p object if it has that \p interface and \p object is still null.
void bindFirst(auto &object, wl_registry *registry, quint32 name, const char *kind,
               const wl_interface &interface)
{
    using Object = typename std::remove_reference_t<decltype(object)>::element_type;
    if (!object && std::strcmp(kind, interface.name) == 0)
        object.reset(static_cast<Object *>(wl_registry_bind(registry, name, &interface, 1)));
}

} // namespace

struct WaylandIdleSource::Protocol
{
    WaylandIdleSource &source;
    quint32 idleMilliseconds;
    Owned<wl_display, wl_display_disconnect> display{wl_display_connect(nullptr)};
    Owned<wl_registry, wl_registry_destroy> registry;
    Owned<wl_callback, wl_callback_destroy> allAnnounced;
    Owned<wl_seat, wl_seat_destroy> seat;
    Owned<ext_idle_notifier_v1, ext_idle_notifier_v1_destroy> notifier;
    Owned<ext_idle_notification_v1, ext_idle_notification_v1_destroy> notification;

    Protocol(WaylandIdleSource &owner, double idleSeconds)
        : source(owner), idleMilliseconds(quint32(idleSeconds * kMilliseconds))
    {
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
    registry.reset(wl_display_get_registry(display.get()));
    wl_registry_add_listener(registry.get(), &kGlobals, this);
    allAnnounced.reset(wl_display_sync(display.get()));
    wl_callback_add_listener(allAnnounced.get(), &kAllAnnounced, this);
    wl_display_flush(display.get());
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
    if (!seat || !notifier) {
        Q_EMIT source.unavailable();
        return;
    }
    notification.reset(
        ext_idle_notifier_v1_get_idle_notification(notifier.get(), idleMilliseconds, seat.get()));
    ext_idle_notification_v1_add_listener(notification.get(), &kNotification, this);
    wl_display_flush(display.get());
    Q_EMIT source.available();
}

WaylandIdleSource::WaylandIdleSource(double idleSeconds)
    : m_protocol(std::make_unique<Protocol>(*this, idleSeconds))
{
}

WaylandIdleSource::~WaylandIdleSource() = default;

void WaylandIdleSource::start()
{
    if (!m_protocol->display) {
        Q_EMIT unavailable();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_protocol->display.get()),
                                                   QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &WaylandIdleSource::dispatch);
    m_protocol->begin();
}

/// Does not block, because the socket is readable.
void WaylandIdleSource::dispatch()
{
    if (wl_display_dispatch(m_protocol->display.get()) >= 0)
        return;
    m_notifier->setEnabled(false);
    Q_EMIT unavailable();
}

} // namespace host
