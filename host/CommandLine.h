// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace host {

enum class Mode {
    FullScreen,    ///< every screen, until the user comes back
    HostWindow,    ///< inside a window that a host names
    Window,        ///< an ordinary window
    Snapshot,      ///< one frame as a picture
    Configure,     ///< the options sheet
    SheetSnapshot, ///< the options sheet as a picture
    Idle,          ///< wait for the user to be idle, then every screen
    Register,      ///< enter the clock in XScreenSaver's list of programs
    Unregister,    ///< and take it out again
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
    /// In points; of a window or a picture.
    QSize size{960, 540};
    QString pictureFile;
    /// The picture of the sheet in its dark appearance.
    bool dark = false;
    /// Device pixels per point of a picture.
    double scale = 1.0;
    /// The wall clock of a picture; none means now.
    std::optional<QDateTime> at;
    /// How long the user has to be idle.
    double idleMinutes = 0.0;
};

/// A wrong use of the command line, in one line without a final full stop.
struct UsageError
{
    QString text;
};

/// Reads \p arguments (the program's name first) and \p namedWindow, the value of
/// XSCREENSAVER_WINDOW: a text that is not a number there is some other host's token and counts as
/// not set.
std::variant<Options, UsageError> parseCommandLine(const QStringList &arguments,
                                                   const QString &namedWindow);

/// The text that --help prints.
QString helpText();

} // namespace host
