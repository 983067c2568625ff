// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include "ext-idle-notify-v1-server-protocol.h"
#include <wayland-server.h>

/// A Wayland compositor without outputs, which runs in the test's event loop; WAYLAND_DISPLAY names
/// it. It has a seat and sends idle notifications on demand.
class FakeCompositor
{
public:
    enum Kind { Plain, WithIdleNotifier };

    explicit FakeCompositor(Kind kind)
        : m_display(wl_display_create()), m_loop(wl_display_get_event_loop(m_display)),
          m_notifier(wl_event_loop_get_fd(m_loop), QSocketNotifier::Read)
    {
        qputenv("WAYLAND_DISPLAY", wl_display_add_socket_auto(m_display));
        wl_global_create(m_display, &wl_seat_interface, 1, this, bindSeat);
        if (kind == WithIdleNotifier)
            wl_global_create(m_display, &ext_idle_notifier_v1_interface, 1, this, bindNotifier);
        QObject::connect(&m_notifier, &QSocketNotifier::activated, &m_notifier, [this] {
            wl_event_loop_dispatch(m_loop, 0);
            wl_display_flush_clients(m_display);
        });
    }

    ~FakeCompositor()
    {
        wl_display_destroy_clients(m_display);
        wl_display_destroy(m_display);
        qunsetenv("WAYLAND_DISPLAY");
    }
    Q_DISABLE_COPY_MOVE(FakeCompositor)

    /// The idle time that the client asked for; 0 before it did.
    quint32 idleMilliseconds() const { return m_idleMilliseconds; }

    void sendIdled()
    {
        ext_idle_notification_v1_send_idled(m_notification);
        wl_display_flush_clients(m_display);
    }
    void sendResumed()
    {
        ext_idle_notification_v1_send_resumed(m_notification);
        wl_display_flush_clients(m_display);
    }

private:
    static void destroy(wl_client *, wl_resource *resource) { wl_resource_destroy(resource); }

    static void bindSeat(wl_client *client, void *, quint32 version, quint32 id)
    {
        wl_resource_create(client, &wl_seat_interface, int(version), id);
    }

    static void bindNotifier(wl_client *client, void *self, quint32 version, quint32 id)
    {
        // Later versions of the protocol have requests that nobody makes here.
        static const auto kNotifier = [] {
            struct ext_idle_notifier_v1_interface requests = {};
            requests.destroy = destroy;
            requests.get_idle_notification = notify;
            return requests;
        }();
        wl_resource_set_implementation(
            wl_resource_create(client, &ext_idle_notifier_v1_interface, int(version), id),
            &kNotifier, self, nullptr);
    }

    static void notify(wl_client *client, wl_resource *notifier, quint32 id, quint32 milliseconds,
                       wl_resource *)
    {
        static const struct ext_idle_notification_v1_interface kNotification = {destroy};
        auto &self = *static_cast<FakeCompositor *>(wl_resource_get_user_data(notifier));
        self.m_idleMilliseconds = milliseconds;
        self.m_notification =
            wl_resource_create(client, &ext_idle_notification_v1_interface, 1, id);
        wl_resource_set_implementation(self.m_notification, &kNotification, &self, nullptr);
    }

    wl_display *m_display;
    wl_event_loop *m_loop;
    QSocketNotifier m_notifier;
    wl_resource *m_notification = nullptr;
    quint32 m_idleMilliseconds = 0;
};
