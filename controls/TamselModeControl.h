// SPDX-License-Identifier: MIT
#pragma once

#include "controls/Glide.h"

#include <QAbstractButton>
#include <QColor>
#include <QList>

/// The small day and night switch on the live preview: two symbols on a faint background, both in
/// the ink its owner chooses to suit what is below.
class TamselModeControl : public QWidget
{
    Q_OBJECT

public:
    enum Segment { Day = 0, Night = 1 };

    explicit TamselModeControl(QWidget *parent = nullptr);
    /// \p clocks must outlive the control.
    TamselModeControl(const platform::Clocks &clocks, QWidget *parent);

    /// Whose colours the preview shows: Day or Night.
    int selectedSegment() const { return m_selectedSegment; }
    void setSelectedSegment(int segment);

    QColor ink() const { return m_ink; }
    void setInk(const QColor &ink);

    /// The button of each segment, Day first.
    const QList<QAbstractButton *> &buttons() const { return m_buttons; }

    using QWidget::setVisible;
    /// Shows or hides the control, fading from where it is when \p animated. The buttons work, or
    /// stop working, at once.
    void setVisible(bool visible, bool animated);
    /// The fade: running, or idle.
    Glide &visibilityTimer() { return m_visibilityTimer; }

Q_SIGNALS:
    /// The user chose a segment, be it the one already selected.
    void triggered();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void selectMode(int segment);
    void updateIcons();
    void fadeStep(double alpha, bool atEnd);

    int m_selectedSegment = Day;
    QColor m_ink = Qt::white;
    QList<QAbstractButton *> m_buttons;
    Glide m_visibilityTimer;
    bool m_fadingIn = false;
};
