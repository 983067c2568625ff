// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPalette>

#include <memory>
#include <optional>

namespace platform {

class DesktopSettingsReader;

/// The look the user asked the desktop for: light or dark, the accent colour, less motion. The
/// desktop portal tells it, without ever being waited for; until it has, and where it does not, the
/// application's palette decides. Every colour is opaque.
class Appearance : public QObject
{
    Q_OBJECT

public:
    enum class Scheme { Light, Dark };

    /// A look that stands still, for pictures and tests; the desktop is never asked.
    explicit Appearance(Scheme scheme, QObject *parent = nullptr);
    ~Appearance() override;

    /// The look of this process, which follows the desktop. Made on first use and ended with the
    /// application object, which must be there.
    static Appearance &shared();

    /// Shows \p scheme in its own colours whatever the desktop says; none follows the desktop.
    void setForcedScheme(std::optional<Scheme> scheme);

    bool isDark() const;
    /// Text; at least 4.5 : 1 against the window's background, as are the next three.
    QColor labelColor() const;
    QColor secondaryLabelColor() const;
    QColor controlTextColor() const;
    QColor systemRedColor() const;
    /// The user's accent colour.
    QColor controlAccentColor() const;
    QColor windowBackgroundColor() const;
    /// The same colours for Qt's own widgets. For a window of ours, not for the application, whose
    /// palette is one of the sources.
    QPalette palette() const;

    /// Whether the user asked for less motion.
    bool reducedMotion() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Anything of the above may be different now.
    void changed();

private:
    explicit Appearance(QObject *application);

    std::optional<Scheme> m_forcedScheme;
    /// Null when the look stands still.
    std::unique_ptr<DesktopSettingsReader> m_desktop;
};

/// The interface's typeface: Inter where it is installed, else the desktop's own. \p size is the
/// font's pixel size in Qt's logical pixels, rounded to whole ones.
QFont systemFont(double size, QFont::Weight weight = QFont::Normal);

} // namespace platform
