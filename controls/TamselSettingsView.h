// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The background of the options sheet, or of one of its grouped sections.
class TamselSettingsView : public QWidget
{
    Q_OBJECT

public:
    explicit TamselSettingsView(QWidget *parent = nullptr);

    /// Whether this is a section: a rounded tint instead of the window background.
    bool group() const { return m_group; }
    void setGroup(bool group);

    /// Whether nothing is drawn at all, whatever else is set.
    bool transparent() const { return m_transparent; }
    void setTransparent(bool transparent);

    /// Corner radius of a section in points.
    double groupRadius() const { return m_groupRadius; }
    void setGroupRadius(double radius);

    /// Alpha of a section's tint, which is the label colour: it darkens where that is dark and
    /// lightens where it is light.
    double groupContrast() const { return m_groupContrast; }
    void setGroupContrast(double contrast);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_group = false;
    bool m_transparent = false;
    double m_groupRadius = 0.0;
    double m_groupContrast = 0.0;
};
