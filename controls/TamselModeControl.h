// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QAbstractButton>
#include <QColor>
#include <QList>

/// The small day and night switch on the live preview: two symbols on a faint background, both in
/// an ink that its owner adapts to the preview's colours.
class TamselModeControl : public QWidget
{
    Q_OBJECT

public:
    enum Segment { Day = 0, Night = 1 };

    /// \p clocks must outlive the control.
    TamselModeControl(const platform::Clocks &clocks, QWidget *parent);

    /// The palette that the preview shows: Day or Night.
    int selectedSegment() const { return m_selectedSegment; }
    void setSelectedSegment(int segment);

    QColor ink() const { return m_ink; }
    void setInk(const QColor &ink);

    /// One per segment, Day first.
    const QList<QAbstractButton *> &buttons() const { return m_buttons; }

    using QWidget::setVisible;
    /// Shows or hides the control; \p animated fades from the current opacity. The buttons are
    /// enabled or disabled at once.
    void setVisible(bool visible, bool animated);
    /// The fade of setVisible().
    Glide &visibilityTimer() { return m_visibilityTimer; }

Q_SIGNALS:
    /// Emitted when the user clicks a segment, even the selected one.
    void triggered();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void selectMode(int segment);
    void updateIcons();

    int m_selectedSegment = Day;
    QColor m_ink = Qt::white;
    QList<QAbstractButton *> m_buttons;
    Glide m_visibilityTimer;
    bool m_fadingIn = false;
};
