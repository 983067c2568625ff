// SPDX-License-Identifier: MIT
#pragma once

#include "platform/SvgImage.h"

#include <QWidget>

class TamselSettingsView;

// The plain pieces that the sheet is put together from. Frames are in the parent's coordinates;
// each piece belongs to its parent.

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
