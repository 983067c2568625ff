// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBus.h"

#include <QColor>
#include <QObject>
#include <QVariant>

#include <optional>

namespace platform {

/// The user's settings as far as the desktop has reported them. A setting that was not reported, or
/// not in a valid form, is absent.
struct DesktopSettings
{
    /// Absent also when the user has no preference.
    std::optional<bool> prefersDark{};
    /// Invalid when there is none.
    QColor accent{};
    std::optional<bool> reducedMotion{};
    /// The switch of GNOME and the desktops derived from it.
    std::optional<bool> enableAnimations{};
    /// KDE's factor on all durations; 0 means no animation.
    std::optional<double> animationFactor{};

    bool operator==(const DesktopSettings &) const = default;

    /// Whether to reduce motion. The first of the last three settings that is present decides;
    /// false when none is.
    bool wantsReducedMotion() const;

    /// Stores one setting of the desktop portal; settings we do not use are ignored. An invalid
    /// \p value means that the portal has no such setting.
    void take(const QString &group, const QString &key, const QVariant &value);
};

/// Follows the settings of the desktop portal. Never blocks; settings arrive one by one.
class DesktopSettingsReader : public QObject
{
    Q_OBJECT

public:
    explicit DesktopSettingsReader(QObject *parent = nullptr);

    const DesktopSettings &settings() const { return m_settings; }

Q_SIGNALS:
    void changed();

private:
    void readAll();
    void read(const QString &method, const QString &group, const QString &key);
    void take(const QString &group, const QString &key, const QVariant &value);

    DesktopSettings m_settings;
    MessageBus m_bus;
};

} // namespace platform
