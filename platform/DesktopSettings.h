// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageBus.h"

#include <QColor>
#include <QObject>
#include <QVariant>

#include <optional>

namespace platform {

/// What the desktop has told of the user's wishes. What it never told, or told in a form that makes
/// no sense, is absent.
struct DesktopSettings
{
    /// Absent also when the user has no preference.
    std::optional<bool> prefersDark{};
    /// Invalid when there is none.
    QColor accent{};
    std::optional<bool> reducedMotion{};
    /// GNOME's and its relatives' switch.
    std::optional<bool> enableAnimations{};
    /// KDE's factor on all durations.
    std::optional<double> animationFactor{};

    bool operator==(const DesktopSettings &) const = default;

    /// Whether to move less: the first of the three settings above that is there decides; no when
    /// none is.
    bool wantsReducedMotion() const;

    /// Takes over one setting of the desktop portal; settings we do not use are ignored. An invalid
    /// \p value means that the setting is not there.
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
