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

bool waylandAnswers()
{
    const QByteArray name = qgetenv("WAYLAND_DISPLAY");
    if (name.isEmpty())
        return false;
    const QByteArray path = name.startsWith('/') ? name : qgetenv("XDG_RUNTIME_DIR") + '/' + name;
    sockaddr_un address = {};
    if (path.size() >= qsizetype(sizeof address.sun_path))
        return false;
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.constData(), size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return false;
    const bool connected =
        ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    ::close(socket);
    return connected;
}

} // namespace

std::optional<QByteArray> reachablePlatform()
{
    const QByteArray chosen = qgetenv("QT_QPA_PLATFORM");
    const QByteArray chosenName = chosen.split(':').first();
    const bool any = chosen.isEmpty();
    if ((any || chosenName.startsWith("wayland")) && waylandAnswers() &&
        hasPlatformPlugin("libqwayland*"))
        return any ? QByteArray("wayland") : chosen;
    if ((any || chosenName.startsWith("xcb")) && xServerAnswers())
        return any ? QByteArray("xcb") : chosen;
    const bool needsDisplay = chosenName.startsWith("wayland") || chosenName.startsWith("xcb");
    return any || needsDisplay ? std::nullopt : std::optional(chosen);
}

bool xServerAnswers()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace platform
