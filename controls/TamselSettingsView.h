// SPDX-License-Identifier: MIT
#pragma once

#include "controls/SetAndUpdate.h"

#include <QWidget>

/// The background of the options sheet, or of one of its grouped sections.
class TamselSettingsView : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSettingsView(QWidget *parent = nullptr);

    /// Whether this is a section, drawn as a rounded tint instead of the window background.
    bool group() const { return m_group; }
    void setGroup(bool group);

    /// Whether nothing is drawn, regardless of the other properties.
    bool transparent() const { return m_transparent; }
    void setTransparent(bool transparent) { setAndUpdate(this, m_transparent, transparent); }

    /// Corner radius of a section in points.
    double groupRadius() const { return m_groupRadius; }
    void setGroupRadius(double radius) { setAndUpdate(this, m_groupRadius, radius); }

    /// Alpha of a section's tint. The tint is the label colour: it darkens a light appearance and
    /// lightens a dark one.
    double groupContrast() const { return m_groupContrast; }
    void setGroupContrast(double contrast) { setAndUpdate(this, m_groupContrast, contrast); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_group = false;
    bool m_transparent = false;
    double m_groupRadius = 0.0;
    double m_groupContrast = 0.0;
};
