// SPDX-License-Identifier: MIT
#include "platform/DisplayServer.h"

#include <QDir>
#include <QLibraryInfo>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstring>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

bool hasPlatformPlugin(const char *pattern)
{
    const QDir plugins(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms"_L1);
    return !plugins.entryList({QLatin1StringView(pattern)}, QDir::Files).isEmpty();
}

DisplayConnection connectToWayland()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return nullptr;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address = {};
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return nullptr;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return nullptr;
    const std::shared_ptr<int> connection(new int(socket), [](const int *open) {
        ::close(*open);
        delete open;
    });
    const auto *to = reinterpret_cast<const sockaddr *>(&address);
    return ::connect(socket, to, sizeof address) == 0 ? connection : nullptr;
}

} // namespace

std::optional<ReachableDisplay> reachableDisplay()
{
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    const auto entries = (chosen.isEmpty() ? "wayland;xcb" : chosen).split(';');
    QByteArrayList others;
    for (const QByteArray &entry : entries) {
        DisplayConnection connection;
        if (entry.startsWith("wayland"))
            connection = hasPlatformPlugin("libqwayland*") ? connectToWayland() : nullptr;
        else if (entry.startsWith("xcb"))
            connection = connectToXServer();
        else if (!entry.isEmpty())
            others.append(entry);
        if (connection)
            return ReachableDisplay{(others << entry).join(';'), connection};
    }
    if (others.isEmpty())
        return std::nullopt;
    return ReachableDisplay{others.join(';'), nullptr};
}

DisplayConnection connectToXServer()
{
    const std::shared_ptr<xcb_connection_t> connection(xcb_connect(nullptr, nullptr),
                                                       xcb_disconnect);
    return xcb_connection_has_error(connection.get()) == 0 ? connection : nullptr;
}

} // namespace platform
