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

/// The look the user chose for the desktop: light or dark, the accent colour, reduced motion. It
/// comes from the desktop portal, which is asked asynchronously; the application's palette decides
/// until the portal has answered and where it does not. Every colour is opaque.
class Appearance : public QObject
{
    Q_OBJECT

public:
    enum class Scheme { Light, Dark };

    /// A fixed look, for pictures and tests; the desktop is never asked.
    explicit Appearance(Scheme scheme, QObject *parent = nullptr);
    ~Appearance() override;

    /// The look of this process, which follows the desktop. Made on first use and destroyed with
    /// the application object, which must exist.
    static Appearance &shared();

    /// Uses \p scheme with our own colours whatever the desktop says; nullopt follows the desktop.
    void setForcedScheme(std::optional<Scheme> scheme);

    bool isDark() const;
    /// Colour of text. This and the next three have a contrast of at least 4.5 : 1 against
    /// windowBackgroundColor().
    QColor labelColor() const;
    QColor secondaryLabelColor() const;
    QColor controlTextColor() const;
    QColor systemRedColor() const;
    /// The user's accent colour.
    QColor controlAccentColor() const;
    QColor windowBackgroundColor() const;
    /// Of a panel that lies over a window; the contrasts above hold there, too.
    QColor panelColor() const;
    /// Of an edge that can be seen: a contrast of 3 : 1 against the two before.
    QColor edgeColor() const;
    /// The same colours for Qt's own widgets, but for selections. To be set on our windows, not on
    /// the application, whose palette is an input of this class.
    QPalette palette() const;

    /// Whether the user asked for less motion.
    bool reducedMotion() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Any of the values above may have changed.
    void changed();

private:
    explicit Appearance(QObject *application);

    std::optional<Scheme> m_forcedScheme;
    /// Null when the look is fixed.
    std::unique_ptr<DesktopSettingsReader> m_desktop;
};

/// The interface's typeface: Inter where it is installed, else the desktop's own. \p size is the
/// font's pixel size in Qt's logical pixels, rounded to whole ones.
QFont systemFont(double size, QFont::Weight weight = QFont::Normal);

} // namespace platform
