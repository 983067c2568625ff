// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SvgImage.h"

#include <QColor>
#include <QWidget>

#include <functional>

class QLabel;
class TamselSettingsView;

namespace platform {
class Appearance;
}

// The plain pieces that the sheet is put together from. Frames are in the parent's coordinates;
// each piece belongs to its parent.

/// A line of text in the label colour, at the top of \p frame.
QLabel *labelWithString(const QString &text, const QRect &frame, QWidget *parent);
/// Writes \p label in \p color of its appearance instead.
void setLabelColor(QLabel *label, QColor (platform::Appearance::*color)() const);

/// A rounded section in which the rows of one subject stand.
TamselSettingsView *settingsGroupIn(QWidget *parent);
void addSettingsDividerAt(int y, QWidget *view);

/// The bracket that joins two colour rows.
class ConnectorView : public QWidget
{
public:
    ConnectorView(platform::SvgImage image, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    platform::SvgImage m_image;
};
