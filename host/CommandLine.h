// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ExitStatus.h"

#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace host {

using platform::UsageError;

/// The name under which a shell and XScreenSaver find the program.
inline constexpr char kProgramName[] = "tamsel-clock";

enum class Mode {
    FullScreen,    ///< every screen, until the user comes back
    HostWindow,    ///< inside a window that a host names
    Window,        ///< an ordinary window
    Snapshot,      ///< one frame as a picture
    Configure,     ///< the options sheet
    SheetSnapshot, ///< the options sheet as a picture
    Idle,          ///< wait for the user to be idle, then every screen
    IdleAtLogin,   ///< start the waiting with each session, or no longer
    Get,           ///< print stored settings
    Set,           ///< store one
    Register,      ///< add the clock to XScreenSaver's list of programs
    Unregister,    ///< remove it from that list
    Help,
    Version,
};

/// What the command line and the host's environment ask for.
struct Options
{
    Mode mode = Mode::FullScreen;
    /// The host's window; none means the root window. Only with Mode::HostWindow.
    std::optional<quint32> hostWindow;
    /// Draw as the settings thumbnail.
    bool preview = false;
    /// Size of the window or picture, in points.
    QSize size{960, 540};
    QString pictureFile;
    /// Draw the picture of the options sheet in its dark appearance.
    bool dark = false;
    /// Device pixels per point of the picture.
    double scale = 1.0;
    /// The local time of the picture; none means now.
    std::optional<QDateTime> at;
    /// For how long the user has to be idle; less than the five minutes after which desktops lock.
    double idleMinutes = 4.0;
    /// Whether sessions start with the waiting. Only with Mode::IdleAtLogin.
    bool idleAtLogin = false;
    /// The setting to print or to store; null means all. Only with Mode::Get and Mode::Set.
    QString settingName;
    QString settingText;
};

/// Reads \p arguments (the program's name first) and \p namedWindow, the value of
/// XSCREENSAVER_WINDOW: a value that is no window id is meant for another kind of host and is
/// ignored.
std::variant<Options, UsageError> parseCommandLine(const QStringList &arguments,
                                                   const QString &namedWindow);

/// The text that --help prints.
QString helpText();

} // namespace host
